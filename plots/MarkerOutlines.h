// Markers on a histogram: bars with two ends, and their names.
#pragma once

#include "core/Populaatio.h"
#include "windows/PlotArea.h"
#include "windows/RegionNames.h"
#include "windows/RegionView.h"

namespace tessarin {

inline constexpr NameBox kMarkerName{14, 6};

/// A marker in pixels of a window.
struct MarkerPlace {
    double x1 = 0;
    double x2 = 0;
    double y = 0;
};

MarkerPlace MarkkerinPaikka(const PlotArea& area, const Populaatio& marker);

/// Bars with their ends, of all markers of the view but those that a gesture has in hand.
void PiirraMarkkerit(Kuva& surface, const PlotArea& area, const RegionView& view, Rgb color);

/// Their names over the middle of each bar; the computed base of each goes into its record.
void PiirraMarkkereidenNimet(Kuva& surface, const PlotArea& area, const RegionView& view,
                             Rgb ground);

}  // namespace tessarin
