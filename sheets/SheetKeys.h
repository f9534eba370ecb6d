// Key lines of an analysis sheet: one table that writing and reading share, so that no key can be
// written and not read.
#pragma once

#include <array>
#include <concepts>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tessarin {

/// One key with its two directions. What `read` is given is the text behind the colon; a value
/// that makes no sense there changes nothing.
struct SheetKey {
    std::string key;  ///< without window, number and colon, such as "axis.x"
    std::function<std::string()> write;
    std::function<void(std::string_view value)> read;
};

/// The numbers in the key of a line that is one of a family, in their order; 0 behind the last.
using SheetNumbers = std::array<int, 2>;

/// A family of keys that differ in their numbers only: "curve.N.height" stands for "curve.1.height"
/// and the rest. `read` checks the numbers, which come from a file.
struct SheetFamily {
    std::string key;  ///< with N for each number, two at most
    std::function<std::string(const SheetNumbers& numbers)> write;
    std::function<void(const SheetNumbers& numbers, std::string_view value)> read;
};

/// The keys of a window or another thing that a sheet keeps, in the order of its lines. It is made
/// once; a line is found by its words, however many numbers a family has.
class SheetTable {
  public:
    void Add(SheetKey key);
    /// Adds families whose lines stand in turn: all of them for the first of the numbers that
    /// `which` gives, then all for the second, and so on. It is asked whenever lines are made.
    void Add(std::function<std::vector<SheetNumbers>()> which, std::vector<SheetFamily> families);
    /// The same for families of one number.
    void Add(std::function<std::vector<int>()> which, std::vector<SheetFamily> families);

    /// The lines, each as key, colon and value. Line breaks in values, which would break the
    /// sheet, become blanks.
    std::vector<std::string> Lines() const;
    /// Gives the key its value; unknown ones are passed over.
    void Take(std::string_view key, std::string_view value) const;

  private:
    struct Group {
        std::function<std::vector<SheetNumbers>()> which;
        std::vector<SheetFamily> families;
    };
    struct Place {
        std::size_t group = 0;
        std::size_t family = 0;
    };

    std::vector<Group> groups_;
    std::unordered_map<std::string, Place> byKey_;
};

/// A line of a sheet in its parts: "window.3.axis.x:5" has the fields window, 3, axis and x.
struct SheetLine {
    explicit SheetLine(std::string_view line);

    /// Field n of the key, from 1; empty when there are fewer.
    std::string_view Field(std::size_t n) const;
    /// The fields from n on, joined by points again.
    std::string_view KeyFrom(std::size_t n) const;
    /// Field n as a whole number; 0 when it is none.
    int Number(std::size_t n) const;

    std::string_view key;
    std::string_view value;  ///< between the first colon and the second
    std::string_view rest;   ///< all behind the first colon
    std::vector<std::string_view> fields;
};

/// A number of a sheet, with a decimal point or a decimal comma. Nothing for other text.
std::optional<double> SheetNumber(std::string_view value);

/// A single so that it reads back to the last bit: as few digits as that takes, no exponent.
std::string SheetText(float value);

/// A flag, "1" or "0"; `changed` is called when a line has set it.
SheetKey Lippuavain(std::string key, bool& flag, std::function<void()> changed = {});

/// A colour as one key for each part.
void LisaaVariavaimet(SheetTable& keys, const std::string& prefix, uint8_t& red, uint8_t& green,
                      uint8_t& blue);

/// A whole number within the field's range or the range given.
template <std::integral Field>
SheetKey Lukuavain(std::string key, Field& field, double least = std::numeric_limits<Field>::min(),
                   double most = std::numeric_limits<Field>::max()) {
    return {std::move(key), [&field] { return std::to_string(field); },
            [&field, least, most](std::string_view value) {
                const auto number = SheetNumber(value);
                if (number && *number >= least && *number <= most) {
                    field = static_cast<Field>(*number);
                }
            }};
}

}  // namespace tessarin
