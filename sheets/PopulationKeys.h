// The key lines of populations and definitions.
#pragma once

#include <cstdint>

#include "sheets/SheetKeys.h"

namespace tessarin {

/// The keys of the population or definition in a slot, in the order in which a sheet holds them.
/// Lines are made of as many corners as there are; any corner that there is room for is read, since
/// its line may come before the number of corners does.
/// REQUIRES: slot is 1..kPopulationSlots.
const SheetTable& Populaatioavaimet(int16_t slot);

}  // namespace tessarin
