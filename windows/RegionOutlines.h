// Outlines and names of polygon populations on a plot of two channels.
#pragma once

#include <span>
#include <vector>

#include "core/Populaatio.h"
#include "windows/PlotArea.h"
#include "windows/RegionNames.h"
#include "windows/RegionView.h"

namespace tessarin {

inline constexpr NameBox kPolygonName{4, 4};

/// The corners of a polygon in pixels.
std::vector<PixelPoint> PikseliKulmat(const PlotArea& area, const Populaatio& polygon);

/// Joins the corners by lines, and the last to the first.
void PiirraMonikulmio(Kuva& surface, std::span<const PixelPoint> corners, Rgb color);

/// Outlines of all polygons of the view but those that a gesture has in hand.
void PiirraAluerajat(Kuva& surface, const PlotArea& area, const RegionView& view, Rgb color);

/// Their names, likewise; the computed base of each name goes into its record.
void PiirraAlueidenNimet(Kuva& surface, const PlotArea& area, const RegionView& view, Rgb ground);

}  // namespace tessarin
