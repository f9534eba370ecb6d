// The values of the expression language and the ways from one type to another.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tessarin::expression {

/// The types of numbers stand in the order in which they widen.
enum class ValueType : uint8_t {
    Empty,
    Null,
    Boolean,
    Byte,
    Integer,
    Long,
    Single,
    Double,
    String,
};

/// `number` is meant for the types Boolean (True is -1) to Double and always finite, `text` for
/// String. Every number of the narrower types is exact as a double.
struct Value {
    ValueType type = ValueType::Empty;
    double number = 0;
    std::string text;
};

Value MakeNull();
Value MakeBoolean(bool truth);
Value MakeText(std::string text);

/// `number` as `type`, one of Byte to Double, or as the next wider type that can hold it. A fault
/// if none can.
Value MakeNumber(double number, ValueType type);

/// `number` as exactly `type`, one of Byte to Double, rounded to a whole one where the type wants
/// that. A fault if it does not fit.
Value MakeExactly(double number, ValueType type);

/// The number in front of `text` that is written in bits, such as &HFF, and takes it away. The text
/// starts with & and a letter; nothing if what follows makes no number.
std::optional<Value> TakeBits(std::string_view& text);

/// True if `text` starts with what opens a number in bits.
bool StartsBits(std::string_view text);

/// A text as a number, if it reads as one: a decimal number or bits, with blanks around it.
std::optional<double> NumberIn(std::string_view text);

/// True or False in any letter case.
std::optional<bool> TruthIn(std::string_view text);

/// The value as a number; a fault for Null and for a text that is none.
double ToDouble(const Value& value);

/// The value as a number rounded to the nearest whole one, ties to even; a fault beyond 32 bits.
int32_t ToLong(const Value& value);

/// Turns the value into its text; a fault for Null.
std::string& ToText(Value& value);

}  // namespace tessarin::expression
