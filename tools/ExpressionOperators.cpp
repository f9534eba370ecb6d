#include "tools/ExpressionOperators.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "tools/ExpressionFault.h"

namespace tessarin::expression {
namespace {

bool IsNull(const Value& value) {
    return value.type == ValueType::Null;
}

// The type that a value has in arithmetic.
ValueType NumberType(const Value& value) {
    if (value.type == ValueType::String) {
        return ValueType::Double;
    }
    return std::max(value.type, ValueType::Integer);
}

ValueType ArithmeticType(const Value& left, const Value& right) {
    if (left.type == ValueType::Byte && right.type == ValueType::Byte) {
        return ValueType::Byte;
    }
    const ValueType narrow = std::min(NumberType(left), NumberType(right));
    const ValueType wide = std::max(NumberType(left), NumberType(right));
    // A Single has no room for all digits of a Long.
    const bool mixed = narrow == ValueType::Long && wide == ValueType::Single;
    return mixed ? ValueType::Double : wide;
}

Value Power(double base, double exponent) {
    const bool undefined =
        (base == 0 && exponent < 0) || (base < 0 && std::trunc(exponent) != exponent);
    if (undefined) {
        Fail(ExpressionFault::WrongArgument);
    }
    return MakeNumber(std::pow(base, exponent), ValueType::Double);
}

Value Quotient(const Value& left, const Value& right) {
    const double dividend = ToDouble(left);
    const double divisor = ToDouble(right);
    if (divisor == 0) {
        Fail(ExpressionFault::DivisionByZero);
    }
    const bool single = ArithmeticType(left, right) == ValueType::Single;
    return MakeNumber(dividend / divisor, single ? ValueType::Single : ValueType::Double);
}

// \ and Mod.
Value WholeQuotient(Operator op, const Value& left, const Value& right) {
    const int64_t dividend = ToLong(left);
    const int64_t divisor = ToLong(right);
    if (divisor == 0) {
        Fail(ExpressionFault::DivisionByZero);
    }
    const int64_t result = op == Operator::Mod ? dividend % divisor : dividend / divisor;
    const ValueType type = std::min(ArithmeticType(left, right), ValueType::Long);
    Value value = MakeNumber(static_cast<double>(result), type);
    if (value.type > ValueType::Long) {
        Fail(ExpressionFault::Overflow);
    }
    return value;
}

Value Joined(Value left, Value right, Limits& limits) {
    if (IsNull(left) && IsNull(right)) {
        return left;
    }
    for (Value* const side : {&left, &right}) {
        if (IsNull(*side)) {
            *side = MakeText({});
        }
    }
    std::string& text = ToText(left);
    const std::string& end = ToText(right);
    limits.Claim(text.size() + end.size(), end.size());
    text += end;
    return left;
}

bool IsTextOrEmpty(const Value& value) {
    return value.type == ValueType::String || value.type == ValueType::Empty;
}

Value Sum(Value left, Value right, Limits& limits) {
    const bool text = left.type == ValueType::String || right.type == ValueType::String;
    if (text && IsTextOrEmpty(left) && IsTextOrEmpty(right)) {
        return Joined(std::move(left), std::move(right), limits);
    }
    return MakeNumber(ToDouble(left) + ToDouble(right), ArithmeticType(left, right));
}

// Below, at or above 0 as `left` stands to `right`.
int Order(const Value& left, const Value& right) {
    const bool leftText = left.type == ValueType::String;
    const bool rightText = right.type == ValueType::String;
    if (leftText || rightText) {
        // The text of Empty is empty.
        if (IsTextOrEmpty(left) && IsTextOrEmpty(right)) {
            return left.text.compare(right.text);
        }
        return leftText ? 1 : -1;
    }
    if (left.number == right.number) {
        return 0;
    }
    return left.number < right.number ? -1 : 1;
}

Value Compared(Operator op, const Value& left, const Value& right) {
    const int order = Order(left, right);
    switch (op) {
        case Operator::Equal:
            return MakeBoolean(order == 0);
        case Operator::Different:
            return MakeBoolean(order != 0);
        case Operator::Less:
            return MakeBoolean(order < 0);
        case Operator::Greater:
            return MakeBoolean(order > 0);
        case Operator::LessOrEqual:
            return MakeBoolean(order <= 0);
        default:
            return MakeBoolean(order >= 0);
    }
}

// A value as the words And, Or and so on take it: a Boolean, a whole number or Null.
Value AsBits(const Value& value) {
    switch (value.type) {
        case ValueType::Empty:
            return MakeExactly(0, ValueType::Integer);
        case ValueType::Single:
        case ValueType::Double:
            return MakeExactly(value.number, ValueType::Long);
        case ValueType::String: {
            const auto truth = TruthIn(value.text);
            return truth ? MakeBoolean(*truth) : MakeExactly(ToDouble(value), ValueType::Long);
        }
        default:
            return value;
    }
}

Value FromBits(int32_t bits, ValueType type) {
    switch (type) {
        case ValueType::Boolean:
            return MakeBoolean(bits != 0);
        case ValueType::Byte:
            return MakeExactly(static_cast<uint8_t>(bits), type);
        default:
            return MakeExactly(bits, type);
    }
}

int32_t BitsOf(const Value& value) {
    return static_cast<int32_t>(value.number);
}

// Null beside a value: And knows the result if that is all zeros, Or if it is not.
Value WithNull(Operator op, const Value& left, const Value& right) {
    const Value& known = IsNull(left) ? right : left;
    const bool decides = !IsNull(known) && ((op == Operator::And && known.number == 0) ||
                                            (op == Operator::Or && known.number != 0));
    return decides ? known : MakeNull();
}

Value Logic(Operator op, const Value& leftValue, const Value& rightValue) {
    if (op == Operator::Imp) {
        return Logic(Operator::Or, Not(leftValue), rightValue);
    }
    const Value left = AsBits(leftValue);
    const Value right = AsBits(rightValue);
    if (IsNull(left) || IsNull(right)) {
        return WithNull(op, left, right);
    }
    const ValueType type =
        left.type == right.type ? left.type : std::max({left.type, right.type, ValueType::Integer});
    const int32_t a = BitsOf(left);
    const int32_t b = BitsOf(right);
    switch (op) {
        case Operator::And:
            return FromBits(a & b, type);
        case Operator::Or:
            return FromBits(a | b, type);
        case Operator::Xor:
            return FromBits(a ^ b, type);
        default:
            return FromBits(~(a ^ b), type);
    }
}

}  // namespace

int Binding(Operator op) {
    constexpr std::array<int8_t, 20> kBindings = {
        0,  1,  2,  3, 4,  5,  // None Imp Eqv Xor Or And
        6,  6,  6,  6, 6,  6,  // comparisons
        7,  8,  8,  9, 10,     // & + - Mod \ .
        11, 11, 12,            // * / ^
    };
    return kBindings[static_cast<std::size_t>(op)];
}

Value Not(const Value& value) {
    const Value operand = AsBits(value);
    return IsNull(operand) ? operand : FromBits(~BitsOf(operand), operand.type);
}

Value Negated(const Value& value) {
    return IsNull(value) ? value : MakeNumber(-ToDouble(value), NumberType(value));
}

Value Apply(Operator op, Value left, Value right, Limits& limits) {
    if (op == Operator::Join) {
        return Joined(std::move(left), std::move(right), limits);
    }
    if (op <= Operator::And) {
        return Logic(op, left, right);
    }
    if (IsNull(left) || IsNull(right)) {
        return MakeNull();
    }
    switch (op) {
        case Operator::Add:
            return Sum(std::move(left), std::move(right), limits);
        case Operator::Subtract:
            return MakeNumber(ToDouble(left) - ToDouble(right), ArithmeticType(left, right));
        case Operator::Multiply:
            return MakeNumber(ToDouble(left) * ToDouble(right), ArithmeticType(left, right));
        case Operator::Divide:
            return Quotient(left, right);
        case Operator::WholeDivide:
        case Operator::Mod:
            return WholeQuotient(op, left, right);
        case Operator::Power:
            return Power(ToDouble(left), ToDouble(right));
        default:
            return Compared(op, left, right);
    }
}

}  // namespace tessarin::expression
