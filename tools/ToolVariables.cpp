#include "tools/ToolVariables.h"

#include <algorithm>

#include "core/Numbers.h"
#include "core/Text.h"
#include "tools/ToolValue.h"

namespace tessarin {
namespace {

// No value that ends comes near these; one that holds its own name passes them at once. A round
// counts as so many bytes besides those that it writes.
constexpr std::size_t kMostBytes = 1 << 22;
constexpr std::size_t kRoundBytes = 200;

std::size_t Count(std::string_view text, std::string_view part) {
    std::size_t count = 0;
    for (auto at = text.find(part); at != std::string_view::npos;
         at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

}  // namespace

SkriptiMuuttuja* ToolVariables::Etsi(std::string_view name) {
    const auto found = std::find_if(variables_.begin(), variables_.end(),
                                    [name](const SkriptiMuuttuja& v) { return v.Nimi == name; });
    return found == variables_.end() ? nullptr : &*found;
}

SkriptiMuuttuja& ToolVariables::Lisaa(std::string_view name) {
    return variables_.emplace_back(SkriptiMuuttuja{std::string(name), "", 0, false});
}

SkriptiMuuttuja& ToolVariables::EtsiTaiLisaa(std::string_view name) {
    SkriptiMuuttuja* found = Etsi(name);
    return found != nullptr ? *found : Lisaa(name);
}

const SkriptiMuuttuja* ToolVariables::LongestIn(std::string_view value) const {
    const SkriptiMuuttuja* longest = nullptr;
    for (const SkriptiMuuttuja& variable : variables_) {
        const bool longer = longest == nullptr || variable.Nimi.size() > longest->Nimi.size();
        if (longer && !variable.Nimi.empty() && value.find(variable.Nimi) != std::string::npos) {
            longest = &variable;
        }
    }
    return longest;
}

void ToolVariables::Sijoita(std::string& value) const {
    std::size_t written = 0;
    while (const SkriptiMuuttuja* variable = LongestIn(value)) {
        const std::string text =
            variable->Numeerinen ? NumberText(NumberOf(variable->Arvo)) : variable->Arvo;
        written += value.size() + Count(value, variable->Nimi) * text.size() + kRoundBytes;
        if (written > kMostBytes) {
            throw ToolFault{"A value that holds its own name has no end"};
        }
        value = KorvaaTeksti(value, variable->Nimi, text);
    }
}

void ToolVariables::SijoitaSanat(std::vector<std::string>& words) const {
    for (std::size_t i = 1; i < words.size(); ++i) {
        for (const SkriptiMuuttuja& variable : variables_) {
            if (words[i] == variable.Nimi) {
                words[i] = NumberText(NumberInFront(variable.Arvo));
            }
        }
    }
}

std::string ToolVariables::Luettelo() const {
    std::string list;
    for (const SkriptiMuuttuja& variable : variables_) {
        list += variable.Nimi + ": " + variable.Arvo + "\n";
    }
    return list;
}

}  // namespace tessarin
