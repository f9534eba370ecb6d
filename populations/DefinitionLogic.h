// What a definition has become: names joined by "and", "or" and "not".
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace tessarin {

/// `Totuuslauseke` means truth expression. A small letter is an unknown whose value is given
/// later: the first letter of the text is unknown 0, whichever letter it is, the second unknown 1
/// and so on. "-" (not) belongs to the unknown or the group behind it, "*" (and) goes before "+"
/// (or).
class Totuuslauseke {
  public:
    /// Most unknowns.
    static constexpr std::size_t kMaxUnknowns = 32;
    /// Most parentheses and negations that are open at one place.
    static constexpr std::size_t kMaxDepth = 1000;

    /// Reads `text`. Nothing for anything but such an expression, or when it is beyond a limit:
    /// blanks, digits and unknowns side by side are no such expression.
    static std::optional<Totuuslauseke> Lue(std::string_view text);

    /// `Tuntemattomia` means unknowns: how many there are.
    int Tuntemattomia() const { return unknowns_; }

    /// `Arvo` means value: the value with bit n of `bits` for unknown n.
    bool Arvo(uint32_t bits) const;

  private:
    // A step of working it out, in the order in which a stack of values needs them.
    struct Step {
        char kind;    // '+', '-', '*', or 'u' for an unknown
        int unknown;  // which
    };
    class Reader;

    std::vector<Step> steps_;
    int unknowns_ = 0;
};

}  // namespace tessarin
