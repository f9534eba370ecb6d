#include "core/FcsHeader.h"

#include "core/Numbers.h"
#include "core/Text.h"

namespace tessarin {
namespace {

std::optional<int32_t> Offset(std::string_view bytes, std::size_t at) {
    constexpr std::size_t kDigits = 8;
    const auto offset = ParseWholeNumber(bytes.substr(at, kDigits));
    return offset && *offset >= 0 ? offset : std::nullopt;
}

}  // namespace

bool IsReadableVersion(std::string_view version) {
    return version == "FCS3.0" || version == "FCS2.0";
}

std::optional<FcsHeader> TakeHeader(std::string_view bytes) {
    if (bytes.size() < kHeaderLength || !IsReadableVersion(bytes.substr(0, kVersionLength))) {
        return std::nullopt;
    }
    const auto textBegin = Offset(bytes, 10);
    const auto textEnd = Offset(bytes, 18);
    if (!textBegin || !textEnd || *textEnd < *textBegin) {
        return std::nullopt;
    }
    FcsHeader header;
    header.version = bytes.substr(0, kVersionLength);
    header.textBegin = *textBegin;
    header.textEnd = *textEnd;
    header.dataBegin = Offset(bytes, 26);
    if (header.dataBegin == 0) {
        header.dataBegin.reset();
    }
    header.dataEnd = Offset(bytes, 34).value_or(0);
    return header;
}

std::string WhyNoHeader(std::string_view bytes) {
    const std::string_view version = bytes.substr(0, kVersionLength);
    if (version.starts_with("FCS") && version.size() == kVersionLength &&
        !IsReadableVersion(version)) {
        return "version " + DecodeText(version) + " is not read";
    }
    if (!IsReadableVersion(version)) {
        return "it does not begin like an FCS file";
    }
    return bytes.size() < kHeaderLength ? "it ends within the header"
                                        : "its header does not tell where TEXT is";
}

}  // namespace tessarin
