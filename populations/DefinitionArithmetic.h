// The arithmetic that a definition has become: operands, "+", "-", "*" and parentheses.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace tessarin {

/// `Laskulauseke` means arithmetic expression. A small letter is an unknown whose value is given
/// later: the first letter of the text is unknown 0, whichever letter it is, the second unknown 1
/// and so on. A digit is a number. "*" goes before "+" and "-", which go from the left.
class Laskulauseke {
  public:
    /// Most operands, letters and digits together.
    static constexpr std::size_t kMaxOperands = 64;
    /// Most parentheses that are open at one place.
    static constexpr std::size_t kMaxDepth = 1000;

    /// Reads `text`. Nothing for anything but such an expression, or when it is beyond a limit:
    /// signs, numbers of two digits, blanks and operands side by side are no such expression.
    static std::optional<Laskulauseke> Lue(std::string_view text);

    /// `Tuntemattomia` means unknowns: how many there are.
    int Tuntemattomia() const { return unknowns_; }

    /// `Arvo` means value: the value with bit n of `bits` for unknown n.
    /// REQUIRES: no more than 32 unknowns.
    double Arvo(uint32_t bits) const;

  private:
    // A step of the calculation, in the order in which a stack of values needs them.
    struct Step {
        char kind;     // '+', '-', '*', 'u' for an unknown or 'n' for a number
        int argument;  // the number, or which unknown
    };
    class Reader;

    std::vector<Step> steps_;
    int unknowns_ = 0;
};

}  // namespace tessarin
