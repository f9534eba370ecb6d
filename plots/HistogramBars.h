// Draws the counts of a histogram as vertical bars with an outline.
#pragma once

#include <span>

#include "windows/PlotArea.h"

namespace tessarin {

struct BarLook {
    float Korkein = 1;  ///< the count at the top of the plot; higher bars are cut there
    Rgb Tayttovari;     ///< colour of the bars
    bool Reunus = true;
};

/// Draws bins 1 to the last of `histo`. Where several fall on one pixel column the highest shows.
/// The outline, a darker line over the tops, needs a plot area of fewer columns than there are
/// bins. Draws nothing on a surface too narrow for a plot area.
void PiirraPylvaat(Kuva& surface, const PlotArea& area, std::span<const double> histo,
                   const BarLook& look);

}  // namespace tessarin
