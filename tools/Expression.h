// The expression language: what the command `calc` of a tool works out.
//
// One expression gives one value, and its text is the result. There are no names of the user's
// own, no clock, files, objects or assignments: a word that is not told of here is a fault.
//
// Literals: 12, .5, 1.5E-3, &HFF, &O17, "text with a "" in it", True, False, Empty, Null. Letter
// case does not matter in words. A whole number is an Integer (16 bits), else a Long (32 bits),
// else a Double; one with a point or an exponent is a Double. &H and &O stand for bits: up to
// &HFFFF they make an Integer, so that &HFFFF is -1, above that or with an & behind them a Long.
// No expression at all is Empty.
//
// Operators, the tightest first:
//
//   ^            from the left: 2^3^2 is 64
//   - +          signs: -2^2 is -4, and the exponent in 2^-1^2 is -1
//   * /
//   \            whole division
//   Mod          its sign is that of the left side
//   + -
//   &            joins texts
//   = <> < > <= >= (also =< =>), all alike: 1 < 2 = True compares 1 < 2 with True
//   Not  And  Or  Xor  Eqv  Imp
//
// + - * give the wider type of their sides and widen it when the result does not fit: Byte,
// Integer, Long, Double. / and ^ give a Double. A Single stays one beside an Integer and becomes
// a Double beside a Long. \ Mod and the words round their sides to Longs, ties to even, and fail
// beyond the range of a Long. True counts as -1, Empty as 0 or "". The words work on Booleans as
// truth and on anything else bit by bit. + joins two texts; beside a number a text must itself
// read as one. Null spreads through all but &, to which it is "", and where And, Or and Imp know
// the result from the other side alone; as the result of the whole it is a fault.
//
// A number or Boolean compared with a text is always the smaller one, whatever the text says. That
// is the published rule for values whose type is known only at run time, and all are here. Texts
// compare character by character, upper case before lower.
//
// Functions (arguments in brackets may be left out):
//
//   Abs Sgn Int Fix Sqr Exp Log Sin Cos Tan Atn (x)    Round(x [, decimals]), ties to even
//   Rnd [(x)]: the next random number; above 0 likewise, 0 the last one again, below 0 a new start
//   CBool CByte CInt CLng CSng CDbl CStr Hex Oct IsNumeric IsEmpty IsNull TypeName (x)
//   Len LCase UCase Trim LTrim RTrim StrReverse Asc AscW (text)    Chr ChrW Space (number)
//   Left Right (text, length)    Mid(text, start [, length])    String(length, character)
//   InStr([start,] text, find [, compare])    InStrRev(text, find [, start [, compare]])
//   Replace(text, find, with [, start [, count [, compare]]])    StrComp(a, b [, compare])
//
// Places in a text count characters from 1. `compare` is 0, or 1 for letters alike in both cases.
// Replace gives the text from `start` on. Chr and Asc speak Windows-1252, ChrW and AscW Unicode.
//
// A number reads with up to 15 significant digits (a Single with 7), and as 1E+15 or 1.5E-05 when
// it does not fit into those or is below 0.0001.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "tools/ExpressionFault.h"
#include "tools/RandomSequence.h"

namespace tessarin {

/// `text` is empty when there is a fault.
struct ExpressionResult {
    std::string text;
    ExpressionFault fault = ExpressionFault::None;
};

/// Works out expressions. What one leaves behind for the next is the place in the sequence of
/// random numbers alone, and that starts the same in every engine: a tool run twice writes the
/// same report twice.
class ExpressionEngine {
  public:
    /// The longest expression, in bytes.
    static constexpr std::size_t kMaxLength = 32768;

    /// How deep brackets, calls, signs and the right sides of operators may stand in each other.
    static constexpr int kMaxDepth = 200;

    /// `LaskeLauseke` means calculate expression. The text is UTF-8, and so is the result.
    ExpressionResult LaskeLauseke(std::string_view expression);

  private:
    RandomSequence random_;
};

}  // namespace tessarin
