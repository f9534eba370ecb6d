// The key lines of populations and definitions.
#pragma once

#include <cstdint>
#include <vector>

#include "sheets/SheetKeys.h"

namespace tessarin {

/// The keys of a population, in the order in which a sheet holds them; corners as far as the
/// population has any. REQUIRES: slot is 1..MaxPopulations.
std::vector<SheetKey> Populaatioavaimet(int16_t slot);

/// The keys that a line of a sheet with that key may mean: any corner that there is room for, since
/// the line may come before the number of corners does.
std::vector<SheetKey> PopulaationLukuavaimet(int16_t slot, std::string_view key);

/// The keys of the definition in a slot. REQUIRES: slot is behind the populations' slots.
std::vector<SheetKey> Maaritelmaavaimet(int16_t slot);

}  // namespace tessarin
