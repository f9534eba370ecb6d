// The cross that divides a dot plot into four quadrants.
#pragma once

#include <cstdint>
#include <string_view>

#include "windows/PlotArea.h"

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

    /// Whether a press takes hold of the cross: its centre is shown and hit.
    bool Osuu(const PlotArea& area, PixelPoint mouse) const;
    /// Draws the cross above the picture while it is dragged; it stays inside the plot area.
    static void PiirraLiikkuva(Kuva& surface, const PlotArea& area, PixelPoint mouse, Rgb color);
    /// The drag ends here.
    void Pudota(const PlotArea& area, PixelPoint mouse);

    void Piirra(Kuva& surface, const PlotArea& area, Rgb color) const;
};

}  // namespace tessarin
