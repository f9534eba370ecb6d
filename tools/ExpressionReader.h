// Cuts an expression into its literals, words and operators.
#pragma once

#include <string_view>

#include "tools/ExpressionOperators.h"
#include "tools/ExpressionValue.h"

namespace tessarin::expression {

/// Reads what the caller asks for at its place, so the caller's knowledge of what may stand there
/// tells the & of &HFF from the one that joins texts. Blanks and tabs may stand before all of it.
class Reader {
  public:
    explicit Reader(std::string_view text) : rest_(text) {}

    bool AtEnd();

    /// True if `c` came next; it is then behind.
    bool Take(char c);

    /// The operator that comes next, or `None`, which leaves the place as it is.
    Operator TakeOperator();

    /// True if a word comes next; else a literal is to come.
    bool AtWord();

    std::string_view TakeWord();

    /// A number or a text; a fault if neither comes next.
    Value TakeLiteral();

  private:
    void SkipBlanks();
    Value TakeText();
    Value TakeNumber();

    std::string_view rest_;
};

}  // namespace tessarin::expression
