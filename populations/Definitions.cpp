#include "populations/Definitions.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "core/BusyPointer.h"
#include "core/Muuttujat.h"
#include "core/Text.h"
#include "populations/DefinitionLogic.h"
#include "populations/DefinitionWords.h"

namespace tessarin {
namespace {

constexpr std::string_view kProblem = "Problem in the definition";
constexpr std::string_view kUnknownWord = "Error in the definition: ";

// The names of the populations in lower case; those of free slots are empty.
class Names {
  public:
    Names() : names_(MaxPopulations) {
        for (int slot = 1; slot <= MaxPopulations; ++slot) {
            if (Populaatiot(slot).Defined) {
                names_(slot) = Pienet(Populaatiot(slot).Name);
            }
        }
    }

    /// The first slot of that name, 0 when there is none. A keyword is nobody's name.
    int16_t Slot(std::string_view word) const {
        if (word.empty() || OnkoAvainsana(word)) {
            return 0;
        }
        const auto found = std::ranges::find(names_, word);
        return found == names_.end() ? int16_t{0}
                                     : static_cast<int16_t>(found - names_.begin() + 1);
    }

  private:
    Taulu<std::string> names_;
};

std::string Without(std::string_view text, std::string_view characters) {
    std::string kept(text);
    std::erase_if(kept, [&](char c) { return characters.find(c) != std::string_view::npos; });
    return kept;
}

// The first word that is neither a keyword nor a name. Two blanks in a row, or one at an end of
// the expression, have an empty word between them.
std::optional<std::string> FirstUnknownWord(const std::string& work, const Names& names) {
    const std::string words = Without(work, "()");
    for (const std::string_view word : Split(words, ' ')) {
        if (!OnkoAvainsana(word) && names.Slot(word) == 0) {
            return std::string(word);
        }
    }
    return std::nullopt;
}

// An expression with a letter for each name and a sign for each keyword.
struct Work {
    std::string text;
    std::vector<int16_t> slots;  // of the names, in the order of the text; one for each occurrence
};

char SignOf(std::string_view keyword) {
    if (keyword == "not") {
        return '-';
    }
    return keyword == "and" ? '*' : '+';
}

// Nothing when there are too many names, or when a parenthesis cuts one in two.
std::optional<Work> AssignLetters(std::string_view text, const Names& names) {
    Work work;
    WordScanner scanner(text);
    while (true) {
        work.text += Without(scanner.Gap(), " ");
        const std::string_view word = scanner.Word();
        if (word.empty()) {
            return work;
        }
        const int16_t slot = names.Slot(word);
        if (slot > 0) {
            work.slots.push_back(slot);
            work.text += static_cast<char>('a' - 1 + slot);
        } else if (OnkoAvainsana(word)) {
            work.text += SignOf(word);
        }
        if ((slot == 0 && !OnkoAvainsana(word)) || work.slots.size() > MaxPopulations) {
            return std::nullopt;
        }
    }
}

// `Totuustaulu` means truth table: row r holds the result when bit n of r tells whether an event
// is in the n-th name's population, counted from 0.
std::vector<uint8_t> Totuustaulu(const Totuuslauseke& logic) {
    std::vector<uint8_t> rows(std::size_t{1} << static_cast<unsigned>(logic.Tuntemattomia()));
    for (std::size_t row = 0; row < rows.size(); ++row) {
        rows[row] = logic.Arvo(static_cast<uint32_t>(row)) ? 1 : 0;
    }
    return rows;
}

constexpr std::size_t kBlock = 2048;

// Builds the row numbers of a block of events column by column, then looks them up: what an event
// costs does not depend on the number of rows.
void Apply(Tiedosto& file, int16_t definition, std::span<const int16_t> slots,
           std::span<const uint8_t> rows) {
    std::array<uint16_t, kBlock> index;
    const std::span<uint8_t> members = file.Membership.OmaSarake(definition);
    for (std::size_t from = 0; from < members.size(); from += kBlock) {
        const std::size_t count = std::min(kBlock, members.size() - from);
        index.fill(0);
        for (std::size_t name = 0; name < slots.size(); ++name) {
            const auto column = file.Membership.Sarake(slots[name]);
            const uint8_t* bits = column.subspan(from, count).data();
            for (std::size_t i = 0; i < count; ++i) {
                index[i] = static_cast<uint16_t>(index[i] | (bits[i] & 1U) << name);
            }
        }
        for (std::size_t i = 0; i < count; ++i) {
            members[from + i] = rows[index[i]];
        }
    }
}

}  // namespace

std::string TarkistaMaaritelma(int16_t slot, std::string_view expression) {
    assert(slot > MaxPopulations && slot <= kPopulationSlots);
    const BusyPointer busy;
    const Names names;
    const std::string small = Pienet(expression);
    if (const auto unknown = FirstUnknownWord(small, names)) {
        return std::string(kUnknownWord) + *unknown;
    }
    const auto work = AssignLetters(small, names);
    const auto logic = work ? Totuuslauseke::Lue(work->text) : std::optional<Totuuslauseke>();
    if (!logic) {
        return std::string(kProblem);
    }
    assert(logic->Tuntemattomia() == static_cast<int>(work->slots.size()));
    const std::vector<uint8_t> rows = Totuustaulu(*logic);
    for (Tiedosto& file : Tiedostot) {
        if (file.Valid) {
            Apply(file, slot, work->slots, rows);
        }
    }
    return "";
}

void CheckDefinition(int16_t slot) {
    Populaatio& definition = Populaatiot(slot);
    if (definition.Defined && !TarkistaMaaritelma(slot, definition.Name).empty()) {
        definition.Defined = false;
    }
}

void TarkistaMaaritelmat() {
    for (int16_t slot = MaxPopulations + 1; slot <= kPopulationSlots; ++slot) {
        CheckDefinition(slot);
    }
}

void TarkistaKayttavatMaaritelmat(int16_t population) {
    const std::string name = Pienet(Populaatiot(population).Name);
    for (int16_t slot = MaxPopulations + 1; slot <= kPopulationSlots; ++slot) {
        if (Pienet(Populaatiot(slot).Name).find(name) != std::string::npos) {
            CheckDefinition(slot);
        }
    }
}

void NimeaMaaritelmissa(std::string_view oldName, std::string_view newName) {
    for (int16_t slot = MaxPopulations + 1; slot <= kPopulationSlots; ++slot) {
        std::string& expression = Populaatiot(slot).Name;
        expression = VaihdaSanat(expression, oldName, newName);
    }
}

}  // namespace tessarin
