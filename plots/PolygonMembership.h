// Evaluates polygon populations: which events of all files lie inside their corners.
#pragma once

#include <cstdint>

#include "core/Tiedosto.h"
#include "plots/EventPlacer.h"

namespace tessarin {

/// Rewrites the `Membership` column of a polygon population for all files, then re-evaluates the
/// definitions that use it. No event is left out, whatever a window draws. A file that lacks one
/// of the polygon's channels has no members. REQUIRES: slot is 1..MaxPopulations.
void TarkistaMonikulmio(int16_t slot);

/// `TestaaMonikulmio` means test the polygon: rewrites its column for one file by where `placer`
/// puts each event; definitions are left alone. REQUIRES: the same, and a placer of that file.
void TestaaMonikulmio(Tiedosto& file, int16_t slot, const EventPlacer& placer);

}  // namespace tessarin
