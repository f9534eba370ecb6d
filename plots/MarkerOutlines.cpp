#include "plots/MarkerOutlines.h"

#include "core/Numbers.h"
#include "core/RegionMuuttujat.h"

namespace tessarin {
namespace {

constexpr double kEndHeight = 0.05;  // of the plot's height, above the bar and below it

void UpdateTitleBase(Populaatio& marker) {
    marker.TitleBaseX =
        ToInt32(Rounded((static_cast<double>(marker.X[1]) + static_cast<double>(marker.X[2])) / 2));
    marker.TitleBaseY = ToInt32(Rounded(static_cast<double>(marker.Y[1])));
}

}  // namespace

MarkerPlace MarkkerinPaikka(const PlotArea& area, const Populaatio& marker) {
    const auto height = static_cast<double>(marker.Y[1]);
    const PixelPoint first = area.ToPixel({static_cast<double>(marker.X[1]), height});
    const PixelPoint second = area.ToPixel({static_cast<double>(marker.X[2]), height});
    return {first.x, second.x, first.y};
}

void PiirraMarkkerit(Kuva& surface, const PlotArea& area, const RegionView& view, Rgb color) {
    const double d = kEndHeight * area.YLength();
    KayRegionit(view, [&](const Populaatio& marker, int16_t /*slot*/) {
        const MarkerPlace place = MarkkerinPaikka(area, marker);
        surface.Line(place.x1, place.y - d, place.x1, place.y + d, color);
        surface.Line(place.x2, place.y - d, place.x2, place.y + d, color);
        surface.Line(place.x1, place.y, place.x2, place.y, color);
    });
}

void PiirraMarkkereidenNimet(Kuva& surface, const PlotArea& area, const RegionView& view,
                             Rgb ground) {
    KayRegionit(view, [&](Populaatio& marker, int16_t slot) {
        if (slot != SiirrettavaOtsikko) {
            UpdateTitleBase(marker);
            PiirraNimi(surface, area, marker, kMarkerName, ground);
        }
    });
}

}  // namespace tessarin
