// Counts, shares, means and geometric means of the events of a dot plot.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "plots/DotLayer.h"
#include "plots/QuadrantCross.h"

namespace tessarin {

/// `TilastoRivi` means line of statistics. Means are of the values in `Data`, never of positions.
struct TilastoRivi {
    int32_t Lukumaara = 0;  ///< events counted
    double Osuus = 0;       ///< share of the shown events, 0 to 1
    double XKeski = 0;      ///< arithmetic means
    double YKeski = 0;
    double XGeo = 0;  ///< geometric means; a value of 0 or less counts as 1 in them
    double YGeo = 0;
};

/// What a dot plot's statistics table shows; kept from one computation to the next.
struct Tilastot {
    /// Row 0 is the shown events, row k population or definition k.
    std::vector<TilastoRivi> Rivit;
    TilastoRivi KvadranttiYV;  ///< upper left
    TilastoRivi KvadranttiYO;  ///< upper right
    TilastoRivi KvadranttiAV;  ///< lower left
    TilastoRivi KvadranttiAO;  ///< lower right

    Tilastot();
};

/// Whether population or definition `slot` has a row in a window on those channels: a defined
/// polygon drawn on them, or any defined definition.
bool OnkoTilastoRivi(int16_t slot, int16_t kanavaX, int16_t kanavaY);

/// `LaskeTilastot` means compute statistics: of the used events as a whole, and of the members of
/// each slot that has a row. Other rows keep what they held.
void LaskeTilastot(const PlotData& data, Tilastot& tilastot);

/// `LaskeKvadrantit` means compute quadrants: the used events on either side of the cross, on the
/// grid. An event on a line goes right and down. Shares of four empty quadrants stay as they were.
void LaskeKvadrantit(const PlotData& data, const Kvadrantti& cross, Tilastot& tilastot);

}  // namespace tessarin
