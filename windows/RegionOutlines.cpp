#include "windows/RegionOutlines.h"

#include <algorithm>

#include "core/Numbers.h"
#include "core/RegionMuuttujat.h"

namespace tessarin {
namespace {

int CornerCount(const Populaatio& polygon) {
    return std::clamp<int>(polygon.Corners, 0, kMaxCorners);
}

// The base lies half the name's width and 4 off the middle of the corners. Those are taken as
// grid units here; `NimenPaikka` takes the same off again in pixels.
void UpdateTitleBase(Populaatio& polygon) {
    double x = 0;
    double y = 0;
    const int count = CornerCount(polygon);
    for (std::size_t i = 1; i <= static_cast<std::size_t>(count); ++i) {
        x += static_cast<double>(polygon.X[i]);
        y += static_cast<double>(polygon.Y[i]);
    }
    polygon.TitleBaseX = ToInt32(Int(x / std::max(1, count) - NimenPuolileveys(polygon)));
    polygon.TitleBaseY = ToInt32(Int(y / std::max(1, count))) - 4;
}

}  // namespace

std::vector<PixelPoint> PikseliKulmat(const PlotArea& area, const Populaatio& polygon) {
    std::vector<PixelPoint> corners;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(CornerCount(polygon)); ++i) {
        corners.push_back(
            area.ToPixel({static_cast<double>(polygon.X[i]), static_cast<double>(polygon.Y[i])}));
    }
    return corners;
}

void PiirraMonikulmio(Kuva& surface, std::span<const PixelPoint> corners, Rgb color) {
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const PixelPoint& from = corners[i];
        const PixelPoint& to = corners[(i + 1) % corners.size()];
        surface.Line(from.x, from.y, to.x, to.y, color);
    }
}

void PiirraAluerajat(Kuva& surface, const PlotArea& area, const RegionView& view, Rgb color) {
    KayRegionit(view, [&](const Populaatio& polygon, int16_t /*slot*/) {
        PiirraMonikulmio(surface, PikseliKulmat(area, polygon), color);
    });
}

void PiirraAlueidenNimet(Kuva& surface, const PlotArea& area, const RegionView& view, Rgb ground) {
    KayRegionit(view, [&](Populaatio& polygon, int16_t slot) {
        if (slot != SiirrettavaOtsikko) {
            UpdateTitleBase(polygon);
            PiirraNimi(surface, area, polygon, kPolygonName, ground);
        }
    });
}

}  // namespace tessarin
