// The variables of one tool run, and putting their values into lines.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin {

/// `SkriptiMuuttuja` means script variable.
struct SkriptiMuuttuja {
    std::string Nimi;        ///< as written, "$" included
    std::string Arvo;        ///< the value, always as text
    int32_t Desimaalit = 0;  ///< kept for whoever reads the table
    bool Numeerinen = false;
};

class ToolVariables {
  public:
    /// The first of that name; nullptr when there is none.
    SkriptiMuuttuja* Etsi(std::string_view name);
    /// Adds one at the end, even when there is one of that name already.
    SkriptiMuuttuja& Lisaa(std::string_view name);
    /// Finds it, or adds an empty one.
    SkriptiMuuttuja& EtsiTaiLisaa(std::string_view name);

    /// Replaces names in a value by their values, the longest name first, until none is left. A
    /// value that would never come to an end is a fault.
    void Sijoita(std::string& value) const;
    /// Replaces each word from word 1 on that is a name by the number that its value begins with.
    void SijoitaSanat(std::vector<std::string>& words) const;

    /// Every variable on a line: its name, ": " and its value.
    std::string Luettelo() const;

  private:
    const SkriptiMuuttuja* LongestIn(std::string_view value) const;

    std::deque<SkriptiMuuttuja> variables_;  // those handed out stay where they are
};

}  // namespace tessarin
