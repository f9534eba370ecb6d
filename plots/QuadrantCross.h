// The cross that divides a dot plot into four quadrants.
#pragma once

#include <cstdint>
#include <string_view>

#include "plots/PlotArea.h"

namespace tessarin {

/// `Kvadrantti` means quadrant. The centre is kept in grid units, y from the top.
struct Kvadrantti {
    bool KvadranttiKaytossa = false;  ///< shown
    int32_t KvadranttiX = 0;
    int32_t KvadranttiY = 0;
    bool KvadranttiLiikkuu = false;  ///< being dragged

    /// "open", "close", or any other word to toggle. A cross newly shown stands where the last
    /// drag of any cross ended, else in the middle. True when something changed.
    bool NaytaTaiPiilota(std::string_view what);

    void Piirra(Kuva& surface, const PlotArea& area, Rgb color) const;
};

}  // namespace tessarin
