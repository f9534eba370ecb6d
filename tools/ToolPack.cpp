#include "tools/ToolPack.h"

#include <algorithm>
#include <array>

#include "core/InputFile.h"
#include "core/Text.h"

namespace tessarin {
namespace {

constexpr std::string_view kMagic = "TsrScriptPackVer1";
constexpr std::array<unsigned, 12> kKey = {7, 3, 11, 5, 2, 13, 9, 4, 12, 6, 1, 8};

std::string Ending(const std::string& name) {
    std::string ending = name.substr(name.rfind('.') + 1);
    std::transform(ending.begin(), ending.end(), ending.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return ending;
}

}  // namespace

std::string PuraPaketti(std::string_view bytes) {
    if (!bytes.starts_with(kMagic)) {
        return "";
    }
    std::string text(bytes.substr(kMagic.size()));
    for (std::size_t i = 0; i < text.size(); ++i) {
        text[i] = static_cast<char>(static_cast<unsigned char>(text[i]) - kKey[i % kKey.size()]);
    }
    return text;
}

std::string TeePaketti(std::string_view text) {
    std::string bytes(kMagic);
    for (std::size_t i = 0; i < text.size(); ++i) {
        bytes += static_cast<char>(static_cast<unsigned char>(text[i]) + kKey[i % kKey.size()]);
    }
    return bytes;
}

bool OnkoPakattu(const std::string& name) {
    const std::string ending = Ending(name);
    return ending == "tsrpack" || ending == "tsrtool";
}

bool OnkoTyokalu(const std::string& name) {
    return OnkoPakattu(name) || Ending(name) == "tsrscript";
}

Tyokalu LueTyokalu(const std::string& path) {
    constexpr uint64_t kLargestTool = uint64_t{64} << 20U;
    InputFile file(path);
    const WholeFile read = ReadWhole(file, kLargestTool);
    if (!read.refusal.empty()) {
        return {false, "", read.refusal};
    }
    return {true, DecodeText(OnkoPakattu(path) ? PuraPaketti(read.bytes) : read.bytes)};
}

}  // namespace tessarin
