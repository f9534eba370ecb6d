// Why an expression has no value.
#pragma once

#include <cstdint>

namespace tessarin {

enum class ExpressionFault : uint8_t {
    None,
    Syntax,          // it does not read as an expression
    UnknownWord,     // a word that is neither a literal nor a function
    WrongType,       // a text where a number is needed
    Overflow,        // a number beyond the range of its type
    DivisionByZero,  // also by \ and Mod
    WrongArgument,   // a function or ^ is not defined there; too few arguments or too many
    NullValue,       // Null where a value is needed
    TooLarge,        // too long, too deep, or too much text on the way
};

namespace expression {

/// Thrown inside the evaluation of one expression, and caught there.
struct Failure {
    ExpressionFault fault;
};

[[noreturn]] inline void Fail(ExpressionFault fault) {
    throw Failure{fault};
}

}  // namespace expression
}  // namespace tessarin
