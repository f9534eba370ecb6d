#include "sheets/SheetKeys.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "core/Numbers.h"
#include "core/Text.h"

namespace tessarin {

SheetLine::SheetLine(std::string_view line) {
    const auto pieces = Split(line, ':');
    key = pieces[0];
    value = pieces.size() > 1 ? pieces[1] : "";
    rest = pieces.size() > 1 ? line.substr(key.size() + 1) : "";
    fields = Split(key, '.');
}

std::string_view SheetLine::Field(std::size_t n) const {
    return n >= 1 && n <= fields.size() ? fields[n - 1] : "";
}

std::string_view SheetLine::KeyFrom(std::size_t n) const {
    if (n < 1 || n > fields.size()) {
        return "";
    }
    return key.substr(static_cast<std::size_t>(fields[n - 1].data() - key.data()));
}

int SheetLine::Number(std::size_t n) const {
    return ParseWholeNumber(Field(n)).value_or(0);
}

std::optional<double> SheetNumber(std::string_view value) {
    return ParseNumber(KorvaaTeksti(value, ",", "."));
}

std::string SheetText(float value) {
    std::array<char, 64> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                   std::chars_format::fixed);
    return {digits.data(), end.ptr};
}

std::vector<std::string> KirjoitaAvaimet(const std::vector<SheetKey>& keys) {
    std::vector<std::string> lines;
    for (const SheetKey& key : keys) {
        std::string line = key.key + ":" + key.write();
        std::replace_if(
            line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
        lines.push_back(std::move(line));
    }
    return lines;
}

void LueAvain(const std::vector<SheetKey>& keys, std::string_view key, std::string_view value) {
    const auto found =
        std::find_if(keys.begin(), keys.end(), [key](const SheetKey& k) { return k.key == key; });
    if (found != keys.end() && found->read) {
        found->read(value);
    }
}

SheetKey Lippuavain(std::string key, bool& flag, std::function<void()> changed) {
    return {std::move(key), [&flag] { return std::string(flag ? "1" : "0"); },
            [&flag, changed = std::move(changed)](std::string_view value) {
                if (value == "1" || value == "0") {
                    flag = value == "1";
                    if (changed) {
                        changed();
                    }
                }
            }};
}

void LisaaVariavaimet(std::vector<SheetKey>& keys, const std::string& prefix, uint8_t& red,
                      uint8_t& green, uint8_t& blue) {
    keys.push_back(Lukuavain(prefix + "red", red));
    keys.push_back(Lukuavain(prefix + "green", green));
    keys.push_back(Lukuavain(prefix + "blue", blue));
}

}  // namespace tessarin
