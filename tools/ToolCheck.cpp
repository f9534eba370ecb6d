#include "tools/ToolCheck.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "core/Text.h"
#include "tools/ToolCommands.h"
#include "tools/ToolConditions.h"
#include "tools/ToolLine.h"
#include "tools/ToolQueries.h"

namespace tessarin {
namespace {

// A value that is the same in every run.
bool IsFixed(const std::string& value) {
    return !value.starts_with('@') && value.find('$') == std::string::npos;
}

// A condition that holds in no run.
bool NeverHolds(const ToolLine& line) {
    constexpr std::array<std::string_view, 5> kTests = {"bigger", "smaller", "equals", "same",
                                                        "different"};
    const auto word = [&line](std::size_t n) {
        return n < line.words.size() ? std::string_view(line.words[n]) : std::string_view();
    };
    if (word(0).find('$') != std::string_view::npos) {
        return word(1) == "if" && std::ranges::find(kTests, word(2)) == kTests.end();
    }
    const std::string& value = line.value.Text();
    const bool wrongWord = word(1) != "true" && word(1) != "false";
    return word(0) == "if" && (wrongWord || (IsFixed(value) && value != word(1)));
}

std::string Quoted(std::string_view words) {
    constexpr int kShown = 40;
    return "`" + Shortened(words, kShown) + "`";
}

// What is wrong with a line that may run; empty when nothing is.
std::string Unknown(std::string_view text) {
    const std::string_view path = text.substr(0, text.find(':'));
    if (path.empty()) {
        return text.empty() ? "a row of blanks is no command" : Quoted(text) + " is no command";
    }
    const ToolLine line(text);
    if (!TunteeKomennon(line.words)) {
        return Quoted(path) + " is no command";
    }
    const std::string& value = line.value.Text();
    return value.starts_with("@.") && !TunteeKysymyksen(value) ? Quoted(value) + " is no query"
                                                               : "";
}

}  // namespace

std::vector<std::string> TuntemattomatRivit(const std::string& text, std::size_t most) {
    std::vector<std::string> found;
    Ehdot conditions;
    int row = 0;
    for (const std::string& whole : LinesOf(text)) {
        ++row;
        const std::string_view line = Trimmed(whole);
        const bool closes = line.find("endif") != std::string_view::npos;
        if (conditions.OhitaRivi(whole) || closes || line.starts_with('#')) {
            continue;
        }
        const std::string what = Unknown(line);
        if (!what.empty()) {
            found.push_back("Row " + std::to_string(row) + ": " + what);
        }
        if (found.size() == most) {
            return found;
        }
        conditions.Aseta(line.empty() || line.starts_with(':') || !NeverHolds(ToolLine(line)));
    }
    return found;
}

}  // namespace tessarin
