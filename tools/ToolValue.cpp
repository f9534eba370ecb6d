#include "tools/ToolValue.h"

#include <algorithm>
#include <iterator>

#include "core/Numbers.h"
#include "core/Text.h"

namespace tessarin {
namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// How many characters from `at` on are digits.
std::size_t Digits(std::string_view text, std::size_t at) {
    const std::string_view rest = text.substr(at);
    return static_cast<std::size_t>(
        std::distance(rest.begin(), std::find_if_not(rest.begin(), rest.end(), IsDigit)));
}

// The length of the number that the text begins with, without blanks.
std::size_t NumberLength(std::string_view text) {
    std::size_t at = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
    const std::size_t whole = Digits(text, at);
    at += whole;
    std::size_t fraction = 0;
    if (at < text.size() && text[at] == '.') {
        fraction = Digits(text, at + 1);
        at += 1 + fraction;
    }
    if (whole + fraction == 0) {
        return 0;
    }
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        const bool sign = at + 1 < text.size() && (text[at + 1] == '-' || text[at + 1] == '+');
        const std::size_t digits = Digits(text, std::min(text.size(), at + (sign ? 2 : 1)));
        at += digits == 0 ? 0 : digits + (sign ? 2 : 1);
    }
    return at;
}

std::string NoNumber(std::string_view text) {
    constexpr int kShown = 40;
    return "'" + Shortened(text, kShown) + "' is no number";
}

}  // namespace

ToolValue ToolValue::Of(double number) {
    ToolValue value(NumberText(number));
    value.number_ = number;
    return value;
}

ToolValue ToolValue::Of(float number) {
    ToolValue value(NumberText(number));
    value.number_ = static_cast<double>(number);
    return value;
}

std::optional<double> ToolValue::Number() const {
    return number_ ? number_ : ParseNumber(text_);
}

double NumberOf(std::string_view text) {
    const auto number = ParseNumber(text);
    return number ? *number : throw ToolFault{NoNumber(text)};
}

double NumberOf(const ToolValue& value) {
    const auto number = value.Number();
    return number ? *number : throw ToolFault{NoNumber(value.Text())};
}

double NumberInFront(std::string_view text) {
    text.remove_prefix(std::min(text.size(), text.find_first_not_of(" \t")));
    return ParseNumber(text.substr(0, NumberLength(text))).value_or(0);
}

int16_t SlotOf(std::string_view word, int most) {
    return static_cast<int16_t>(EventOf(word, most));
}

int32_t EventOf(std::string_view word, int32_t most) {
    const double number = Rounded(NumberOf(word));
    if (number >= 1 && number <= most) {
        return ToInt32(number);
    }
    throw ToolFault{std::string(word) + " is not from 1 to " + std::to_string(most)};
}

}  // namespace tessarin
