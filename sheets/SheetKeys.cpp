#include "sheets/SheetKeys.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "core/Numbers.h"
#include "core/Text.h"

namespace tessarin {
namespace {

constexpr std::string_view kNumber = "N";

// A family's key with its numbers in place.
std::string WithNumbers(const std::string& key, const SheetNumbers& numbers) {
    std::string text;
    std::size_t next = 0;
    for (const std::string_view word : Split(key, '.')) {
        text += text.empty() ? "" : ".";
        if (word == kNumber && next < numbers.size()) {
            text += std::to_string(numbers[next++]);
        } else {
            text += word;
        }
    }
    return text;
}

// The key of a line as its family is named; the numbers go into `numbers`.
std::string WithoutNumbers(std::string_view key, SheetNumbers& numbers) {
    std::string text;
    std::size_t next = 0;
    for (const std::string_view word : Split(key, '.')) {
        text += text.empty() ? "" : ".";
        const auto number = next < numbers.size() ? ParseWholeNumber(word) : std::nullopt;
        if (number) {
            numbers[next++] = *number;
        }
        text += number ? kNumber : word;
    }
    return text;
}

}  // namespace

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

void SheetTable::Add(SheetKey key) {
    std::vector<SheetFamily> families(1);
    families[0].key = std::move(key.key);
    families[0].write = [write = std::move(key.write)](const SheetNumbers& /*none*/) {
        return write();
    };
    if (key.read) {
        families[0].read = [read = std::move(key.read)](const SheetNumbers& /*none*/,
                                                        std::string_view value) { read(value); };
    }
    Add([] { return std::vector<SheetNumbers>(1); }, std::move(families));
}

void SheetTable::Add(std::function<std::vector<SheetNumbers>()> which,
                     std::vector<SheetFamily> families) {
    for (std::size_t i = 0; i < families.size(); ++i) {
        byKey_[families[i].key] = {groups_.size(), i};
    }
    groups_.push_back({std::move(which), std::move(families)});
}

void SheetTable::Add(std::function<std::vector<int>()> which, std::vector<SheetFamily> families) {
    const auto pairs = [which = std::move(which)] {
        std::vector<SheetNumbers> numbers;
        for (const int number : which()) {
            numbers.push_back({number, 0});
        }
        return numbers;
    };
    Add(std::function<std::vector<SheetNumbers>()>(pairs), std::move(families));
}

std::vector<std::string> SheetTable::Lines() const {
    std::vector<std::string> lines;
    for (const Group& group : groups_) {
        for (const SheetNumbers& numbers : group.which()) {
            for (const SheetFamily& family : group.families) {
                std::string line = WithNumbers(family.key, numbers) + ":" + family.write(numbers);
                std::replace_if(
                    line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
                lines.push_back(std::move(line));
            }
        }
    }
    return lines;
}

void SheetTable::Take(std::string_view key, std::string_view value) const {
    SheetNumbers numbers{};
    const auto found = byKey_.find(WithoutNumbers(key, numbers));
    if (found == byKey_.end()) {
        return;
    }
    const SheetFamily& family = groups_[found->second.group].families[found->second.family];
    if (family.read) {
        family.read(numbers, value);
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

void LisaaVariavaimet(SheetTable& keys, const std::string& prefix, uint8_t& red, uint8_t& green,
                      uint8_t& blue) {
    keys.Add(Lukuavain(prefix + "red", red));
    keys.Add(Lukuavain(prefix + "green", green));
    keys.Add(Lukuavain(prefix + "blue", blue));
}

}  // namespace tessarin
