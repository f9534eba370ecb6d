#include "sheets/SheetPath.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

#include "core/Text.h"

namespace tessarin {
namespace {

constexpr std::string_view kMark = "percent:";
constexpr std::size_t kDigits = 2;

bool IsControl(char letter) {
    return static_cast<unsigned char>(letter) < 0x20 || letter == 0x7f;
}

bool IsPlain(char letter) {
    return static_cast<unsigned char>(letter) < 0x80 && !IsControl(letter) && letter != '%';
}

}  // namespace

std::string PathToLine(const std::string& path) {
    if (DecodeText(path) == path && !path.starts_with(kMark) &&
        std::none_of(path.begin(), path.end(), IsControl)) {
        return path;
    }
    constexpr std::string_view kHex = "0123456789ABCDEF";
    std::string text(kMark);
    for (const char letter : path) {
        const auto byte = static_cast<unsigned char>(letter);
        if (IsPlain(letter)) {
            text += letter;
        } else {
            text += {'%', kHex[byte / 16U], kHex[byte % 16U]};
        }
    }
    return text;
}

std::string PathFromLine(std::string_view text) {
    if (!text.starts_with(kMark)) {
        return std::string(text);
    }
    text.remove_prefix(kMark.size());
    std::string path;
    for (std::size_t at = 0; at < text.size(); ++at) {
        uint8_t byte = 0;
        const std::string_view digits = text.substr(at + 1, kDigits);
        const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), byte, 16);
        if (text[at] == '%' && digits.size() == kDigits && read.ptr == digits.end()) {
            path += static_cast<char>(byte);
            at += kDigits;
        } else {
            path += text[at];
        }
    }
    return path;
}

}  // namespace tessarin
