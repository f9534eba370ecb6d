#include "tools/ExpressionValue.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

#include "core/Numbers.h"
#include "core/Text.h"
#include "tools/ExpressionCharacters.h"
#include "tools/ExpressionFault.h"

namespace tessarin::expression {
namespace {

struct Range {
    double low;
    double high;
};

Range RangeOf(ValueType type) {
    switch (type) {
        case ValueType::Byte:
            return {0, std::numeric_limits<uint8_t>::max()};
        case ValueType::Integer:
            return {std::numeric_limits<int16_t>::min(), std::numeric_limits<int16_t>::max()};
        case ValueType::Long:
            return {std::numeric_limits<int32_t>::min(), std::numeric_limits<int32_t>::max()};
        case ValueType::Single:
            return {std::numeric_limits<float>::lowest(), std::numeric_limits<float>::max()};
        default:
            return {std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max()};
    }
}

// False for what is not a number, too.
bool Fits(double number, ValueType type) {
    const Range range = RangeOf(type);
    return number >= range.low && number <= range.high;
}

Value Plain(double number, ValueType type) {
    Value value;
    value.type = type;
    value.number = type == ValueType::Single ? double{static_cast<float>(number)} : number;
    return value;
}

std::string NumberAsText(double number, int digits) {
    std::array<char, 32> buffer;
    char* const start = buffer.data();
    char* const full = start + buffer.size();
    constexpr double kSevenDigits = 9999999;
    if (std::fabs(number) <= kSevenDigits && number == std::trunc(number)) {
        return {start, std::to_chars(start, full, static_cast<int32_t>(number)).ptr};
    }
    char* const end = std::to_chars(start, full, number, std::chars_format::general, digits).ptr;
    std::replace(start, end, 'e', 'E');
    return {start, end};
}

}  // namespace

Value MakeNull() {
    Value value;
    value.type = ValueType::Null;
    return value;
}

Value MakeBoolean(bool truth) {
    return Plain(truth ? -1 : 0, ValueType::Boolean);
}

Value MakeText(std::string text) {
    Value value;
    value.type = ValueType::String;
    value.text = std::move(text);
    return value;
}

Value MakeNumber(double number, ValueType type) {
    while (!Fits(number, type)) {
        switch (type) {
            case ValueType::Byte:
                type = ValueType::Integer;
                break;
            case ValueType::Integer:
                type = ValueType::Long;
                break;
            case ValueType::Long:
            case ValueType::Single:
                type = ValueType::Double;
                break;
            default:
                Fail(ExpressionFault::Overflow);
        }
    }
    return Plain(number, type);
}

Value MakeExactly(double number, ValueType type) {
    const double wanted = type <= ValueType::Long ? Rounded(number) : number;
    if (!Fits(wanted, type)) {
        Fail(ExpressionFault::Overflow);
    }
    return Plain(wanted, type);
}

bool StartsBits(std::string_view text) {
    return text.size() > 1 && text[0] == '&' && (Lower(text[1]) == 'h' || Lower(text[1]) == 'o');
}

std::optional<Value> TakeBits(std::string_view& text) {
    const int base = Lower(text[1]) == 'h' ? 16 : 8;
    const char* const digits = text.data() + 2;
    uint32_t bits = 0;
    const auto [end, error] = std::from_chars(digits, text.data() + text.size(), bits, base);
    if (error != std::errc()) {
        return std::nullopt;
    }
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    const bool wide = text.starts_with('&');
    if (wide) {
        text.remove_prefix(1);
    }
    if (bits > 0xffff || wide) {
        return Plain(static_cast<int32_t>(bits), ValueType::Long);
    }
    return Plain(static_cast<int16_t>(bits), ValueType::Integer);
}

std::optional<double> NumberIn(std::string_view text) {
    text = TrimBlanks(text);
    if (!StartsBits(text)) {
        return ParseNumber(text);
    }
    const auto bits = TakeBits(text);
    if (!bits || !text.empty()) {
        return std::nullopt;
    }
    return bits->number;
}

std::optional<bool> TruthIn(std::string_view text) {
    text = TrimBlanks(text);
    if (SameWord(text, "true")) {
        return true;
    }
    if (SameWord(text, "false")) {
        return false;
    }
    return std::nullopt;
}

double ToDouble(const Value& value) {
    if (value.type == ValueType::Null) {
        Fail(ExpressionFault::NullValue);
    }
    if (value.type != ValueType::String) {
        return value.number;
    }
    const auto number = NumberIn(value.text);
    if (!number) {
        Fail(ExpressionFault::WrongType);
    }
    return *number;
}

int32_t ToLong(const Value& value) {
    return static_cast<int32_t>(MakeExactly(ToDouble(value), ValueType::Long).number);
}

std::string& ToText(Value& value) {
    switch (value.type) {
        case ValueType::Null:
            Fail(ExpressionFault::NullValue);
        case ValueType::Empty:
        case ValueType::String:
            break;
        case ValueType::Boolean:
            value.text = value.number != 0 ? "True" : "False";
            break;
        default:
            value.text = NumberAsText(value.number, value.type == ValueType::Single ? 7 : 15);
    }
    value.type = ValueType::String;
    return value.text;
}

}  // namespace tessarin::expression
