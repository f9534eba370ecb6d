// What the operators of the expression language do with values.
#pragma once

#include <cstdint>

#include "tools/ExpressionLimits.h"
#include "tools/ExpressionValue.h"

namespace tessarin::expression {

/// Those between two operands.
enum class Operator : uint8_t {
    None,
    Imp,
    Eqv,
    Xor,
    Or,
    And,
    Equal,
    Different,
    Less,
    Greater,
    LessOrEqual,
    GreaterOrEqual,
    Join,
    Add,
    Subtract,
    Mod,
    WholeDivide,
    Multiply,
    Divide,
    Power,
};

/// How tightly an operator holds its operands; `None` holds nothing.
int Binding(Operator op);

/// The loosest operators that may stand inside the operand of Not and of a sign.
inline constexpr int kInsideNot = 6;
inline constexpr int kInsideSign = 12;

Value Apply(Operator op, Value left, Value right, Limits& limits);

Value Not(const Value& value);
Value Negated(const Value& value);

}  // namespace tessarin::expression
