// The compensation that an FCS file brings along in its keywords.
#pragma once

#include <string_view>

#include "core/FcsOddities.h"
#include "core/Tiedosto.h"

namespace tessarin {

/// Fills `Compensate` and `Compensation` from APPLY COMPENSATION with SPILL, and from $COMP.
///
/// False when $COMP names more channels than the file has; the file then cannot be used. Entries
/// that are missing or no numbers leave their factor 0.
/// REQUIRES: channels are named and `Compensation` is sized and all 0.
bool LueKompensaatio(std::string_view text, Tiedosto& file, FcsOddities& oddities);

}  // namespace tessarin
