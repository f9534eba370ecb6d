// Key lines of an analysis sheet: one table that writing and reading share, so that no key can be
// written and not read.
#pragma once

#include <concepts>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Color.h"

namespace tessarin {

/// One key with its two directions. What `read` is given is the text behind the colon; a value
/// that makes no sense there changes nothing.
struct SheetKey {
    std::string key;  ///< without window, number and colon, such as "axis.x"
    std::function<std::string()> write;
    std::function<void(std::string_view value)> read;
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

/// The lines of a table of keys, each as key, colon and value. Line breaks in values, which would
/// break the sheet, become blanks.
std::vector<std::string> KirjoitaAvaimet(const std::vector<SheetKey>& keys);

/// Finds the key in the table and gives it the value; others are passed over.
void LueAvain(const std::vector<SheetKey>& keys, std::string_view key, std::string_view value);

/// A flag, "1" or "0"; `changed` is called when a line has set it.
SheetKey Lippuavain(std::string key, bool& flag, std::function<void()> changed = {});

/// A colour as one key for each part.
void LisaaVariavaimet(std::vector<SheetKey>& keys, const std::string& prefix, uint8_t& red,
                      uint8_t& green, uint8_t& blue);

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
