// Which regions a plot shows and lets the mouse take hold of.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/Muuttujat.h"
#include "core/Populaatio.h"

namespace tessarin {

/// The regions of one kind that stand in a window.
struct RegionView {
    std::string_view type;  ///< such as "Polygon"
    int16_t window = 0;     ///< id of the window
    int16_t KanavaX = 0;    ///< channels that they were drawn on; 0 for any
    int16_t KanavaY = 0;
    bool VainTaallaLuodut = false;  ///< only those that this window made
};

/// Whether the region in a population slot stands in such a window.
bool OnkoNakyva(const RegionView& view, int16_t slot);

/// Whether a gesture drags that region or one of its corners.
bool OnkoKadessa(int16_t slot);

/// The first visible region, in rising order, for which `wanted(region)` holds; 0 for none.
template <class Wanted>
int16_t EnsimmainenRegion(const RegionView& view, Wanted wanted) {
    for (int16_t slot = 1; slot <= MaxPopulations; ++slot) {
        if (OnkoNakyva(view, slot) && wanted(Populaatiot(slot))) {
            return slot;
        }
    }
    return 0;
}

/// Calls `visit(region, slot)` for each visible region that no gesture has in hand.
template <class Visit>
void KayRegionit(const RegionView& view, Visit visit) {
    for (int16_t slot = 1; slot <= MaxPopulations; ++slot) {
        if (OnkoNakyva(view, slot) && !OnkoKadessa(slot)) {
            visit(Populaatiot(slot), slot);
        }
    }
}

}  // namespace tessarin
