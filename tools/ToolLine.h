// One line of a tool in its parts, and matching it against the forms of commands and queries.
#pragma once

#include <algorithm>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tools/ToolValue.h"

namespace tessarin {

/// Why a line or query is a fault that ends too early.
inline constexpr const char* kWordMissing = "A word is missing";

/// The lines of a tool, which end in CR LF or LF; what stands behind the last line end is none.
std::vector<std::string> LinesOf(const std::string& text);

/// Without the blanks at both ends.
std::string_view Trimmed(std::string_view line);

/// A path of words with full stops between them, and perhaps a colon and a value behind it.
struct ToolLine {
    /// Cuts a trimmed line. The value may hold one colon; what stands behind a third is lost.
    explicit ToolLine(std::string_view line);
    ToolLine() = default;

    /// Word n, from 0; a fault when there are fewer.
    const std::string& Word(std::size_t n) const;

    std::vector<std::string> words;
    ToolValue value;
};

/// The form of a command or query, such as "w.N.axis.x": small words stand as they are, a capital
/// letter stands for any word, and "w|window" for either word.
class ToolPattern {
  public:
    /// REQUIRES: the text outlives the form; it is written out in the program.
    explicit ToolPattern(std::string_view form);

    enum class Fit { kNo, kTooShort, kYes };
    /// `kTooShort` when the words agree as far as they go. Words behind the form do not matter.
    Fit Fits(std::span<const std::string> words) const;
    /// Whether words fit that still hold variables, which may come to stand for any.
    bool MayFit(std::span<const std::string> words) const;

  private:
    static bool Agrees(std::span<const std::string_view> choices, std::string_view word);

    std::vector<std::vector<std::string_view>> words_;  // the choices for each; none for any
};

/// `Tuntee` means knows: whether the form of one of `rows` fits.
template <class Row>
bool Tuntee(std::span<const Row> rows, std::span<const std::string> words) {
    return std::ranges::any_of(
        rows, [words](const Row& row) { return row.form.Fits(words) == ToolPattern::Fit::kYes; });
}

/// Finds the first of `rows` whose form fits; each has a member `form`. Null when none does; a
/// fault when the words end too early for one.
template <class Row>
const Row* EtsiMuoto(std::span<const Row> rows, std::span<const std::string> words) {
    bool tooShort = false;
    for (const Row& row : rows) {
        const ToolPattern::Fit fit = row.form.Fits(words);
        if (fit == ToolPattern::Fit::kYes) {
            return &row;
        }
        tooShort = tooShort || fit == ToolPattern::Fit::kTooShort;
    }
    return tooShort ? throw ToolFault{kWordMissing} : nullptr;
}

}  // namespace tessarin
