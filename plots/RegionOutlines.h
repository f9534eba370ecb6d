// Outlines and names of polygon populations on a plot of two channels.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "core/Populaatio.h"
#include "plots/PlotArea.h"

namespace tessarin {

/// Which polygons a window shows.
struct PolygonView {
    int16_t window = 0;  ///< id of the window
    int16_t KanavaX = 1;
    int16_t KanavaY = 2;
    bool VainTaallaLuodut = false;  ///< only those that this window made
};

/// Whether the polygon in a population slot stands in such a window.
bool OnkoNakyva(const PolygonView& view, int16_t slot);

/// Its corners in pixels.
std::vector<PixelPoint> PikseliKulmat(const PlotArea& area, const Populaatio& polygon);

/// Half the width of its name, in pixels.
double NimenPuolileveys(const Populaatio& polygon);

/// Joins the corners by lines, and the last to the first.
void PiirraMonikulmio(Kuva& surface, std::span<const PixelPoint> corners, Rgb color);

/// Outlines of all polygons of the view but those that a gesture has in hand.
void PiirraAluerajat(Kuva& surface, const PlotArea& area, const PolygonView& view, Rgb color);

/// Their names, likewise; the computed base of each name goes into its record.
void PiirraAlueidenNimet(Kuva& surface, const PlotArea& area, const PolygonView& view);

/// Where a polygon's name is printed: the upper left corner of its text. Reads the base that
/// `PiirraAlueidenNimet` left.
PixelPoint NimenPaikka(const PlotArea& area, const Populaatio& polygon);

}  // namespace tessarin
