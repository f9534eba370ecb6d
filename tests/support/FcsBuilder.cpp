#include "tests/support/FcsBuilder.h"

#include <algorithm>
#include <bit>

namespace tessarin {
namespace {

constexpr std::size_t kHeaderBytes = 58;

std::string EightCharacters(std::string text) {
    text.insert(0, text.size() < 8 ? 8 - text.size() : 0, ' ');
    return text.substr(0, 8);
}

}  // namespace

FcsBuilder::FcsBuilder(const std::string& type, int bits, const std::string& order, int channels,
                       int events)
    : bytes_(bits / 8), littleEndian_(order.starts_with("1,2")) {
    keywords = {{"$MODE", "L"},        {"$DATATYPE", type},
                {"$BYTEORD", order},   {"$PAR", std::to_string(channels)},
                {"$NEXTDATA", "0"},    {"$TOT", std::to_string(events)},
                {"$CYT", "Cytometer"}, {"SAMPLE ID", "tube"}};
    for (int n = 1; n <= channels; ++n) {
        const std::string p = "$P" + std::to_string(n);
        Set(p + "N", "C" + std::to_string(n)).Set(p + "R", "1024");
        Set(p + "B", std::to_string(bits)).Set(p + "E", "0,0");
    }
}

FcsBuilder& FcsBuilder::Set(const std::string& keyword, const std::string& value) {
    const auto found = std::find_if(keywords.begin(), keywords.end(),
                                    [&](const auto& pair) { return pair.first == keyword; });
    if (found != keywords.end()) {
        found->second = value;
    } else {
        keywords.emplace_back(keyword, value);
    }
    return *this;
}

FcsBuilder& FcsBuilder::Remove(const std::string& keyword) {
    std::erase_if(keywords, [&](const auto& pair) { return pair.first == keyword; });
    return *this;
}

FcsBuilder& FcsBuilder::AddFloat(float value) {
    return AddInteger(std::bit_cast<uint32_t>(value));
}

FcsBuilder& FcsBuilder::AddInteger(uint32_t value) {
    for (int i = 0; i < bytes_; ++i) {
        const int shift = 8 * (littleEndian_ ? i : bytes_ - 1 - i);
        data += static_cast<char>(value >> static_cast<unsigned>(shift) & 0xffU);
    }
    return *this;
}

std::string FcsBuilder::Bytes() const {
    std::string text(1, delimiter);
    for (const auto& [keyword, value] : keywords) {
        text += keyword + delimiter + value + delimiter;
    }
    const std::size_t begin = kHeaderBytes + text.size();
    std::string out = version + "    ";
    out += EightCharacters(textBegin.value_or(std::to_string(kHeaderBytes)));
    out += EightCharacters(textEnd.value_or(std::to_string(begin - 1)));
    out += EightCharacters(dataBegin.value_or(std::to_string(begin)));
    out += EightCharacters(dataEnd.value_or(std::to_string(begin + data.size() - 1)));
    out.resize(kHeaderBytes, ' ');
    return out + text + data;
}

}  // namespace tessarin
