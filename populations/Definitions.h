// Definitions: boolean combinations of populations, such as "Poly-1 and not (Histo-2)".
//
// A definition has a slot behind those of the populations. Its `Name` is the expression as typed,
// its members stand in `Membership` like those of a population.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessarin {

/// `TarkistaMaaritelma` means check a definition: works out what `expression` means and who its
/// members are.
///
/// Empty on success, when the column `slot` of `Membership` is rewritten for all `Valid` files.
/// Otherwise the message for the user, and nothing is changed. The fields of the slot itself stay
/// as they are in either case.
///
/// "and" goes before "or"; "not" belongs to the name or the group behind it and gives what that
/// leaves out.
/// REQUIRES: slot is MaxPopulations + 1 to kPopulationSlots.
std::string TarkistaMaaritelma(int16_t slot, std::string_view expression);

/// Brings a `Defined` definition up to date; one that is no longer right loses `Defined`.
/// REQUIRES: slot is MaxPopulations + 1 to kPopulationSlots.
void CheckDefinition(int16_t slot);

/// `TarkistaMaaritelmat` means check the definitions: all of them, for when a population is gone.
void TarkistaMaaritelmat();

/// `TarkistaKayttavatMaaritelmat` means check the definitions that use it: those whose text
/// contains the name of `population` anywhere, for when its members have changed. A name that is
/// the beginning of another finds definitions with either.
/// REQUIRES: population is 1 to MaxPopulations.
void TarkistaKayttavatMaaritelmat(int16_t population);

/// `NimeaMaaritelmissa` means name in the definitions: every word that is the old name of a
/// population, in any case, becomes the new one.
void NimeaMaaritelmissa(std::string_view oldName, std::string_view newName);

}  // namespace tessarin
