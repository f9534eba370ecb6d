#include "plots/RegionOutlines.h"

#include <algorithm>
#include <vector>

#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "core/RegionMuuttujat.h"
#include "core/Text.h"

namespace tessarin {
namespace {

int CornerCount(const Populaatio& polygon) {
    return std::clamp<int>(polygon.Corners, 0, kMaxCorners);
}

bool IsInHand(int16_t slot) {
    return slot == MuokattavaRegion || slot == SiirrettavaRegion;
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

bool OnkoNakyva(const PolygonView& view, int16_t slot) {
    const Populaatio& polygon = Populaatiot(slot);
    return polygon.Defined && polygon.Type == "Polygon" && polygon.AxisX == view.KanavaX &&
           polygon.AxisY == view.KanavaY &&
           (!view.VainTaallaLuodut || polygon.Created == view.window);
}

std::vector<PixelPoint> PikseliKulmat(const PlotArea& area, const Populaatio& polygon) {
    std::vector<PixelPoint> corners;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(CornerCount(polygon)); ++i) {
        corners.push_back(
            area.ToPixel({static_cast<double>(polygon.X[i]), static_cast<double>(polygon.Y[i])}));
    }
    return corners;
}

double NimenPuolileveys(const Populaatio& polygon) {
    return static_cast<double>(Length(polygon.Name)) * kMerkinLeveys / 2;
}

void PiirraMonikulmio(Kuva& surface, std::span<const PixelPoint> corners, Rgb color) {
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const PixelPoint& from = corners[i];
        const PixelPoint& to = corners[(i + 1) % corners.size()];
        surface.Line(from.x, from.y, to.x, to.y, color);
    }
}

void PiirraAluerajat(Kuva& surface, const PlotArea& area, const PolygonView& view, Rgb color) {
    for (int16_t slot = 1; slot <= MaxPopulations; ++slot) {
        if (OnkoNakyva(view, slot) && !IsInHand(slot)) {
            PiirraMonikulmio(surface, PikseliKulmat(area, Populaatiot(slot)), color);
        }
    }
}

void PiirraAlueidenNimet(Kuva& surface, const PlotArea& area, const PolygonView& view) {
    for (int16_t slot = 1; slot <= MaxPopulations; ++slot) {
        if (!OnkoNakyva(view, slot) || IsInHand(slot) || slot == SiirrettavaOtsikko) {
            continue;
        }
        Populaatio& polygon = Populaatiot(slot);
        UpdateTitleBase(polygon);
        const PixelPoint place = NimenPaikka(area, polygon);
        surface.SetCurrent(place.x, place.y);
        surface.Print(polygon.Name);
    }
}

PixelPoint NimenPaikka(const PlotArea& area, const Populaatio& polygon) {
    constexpr double kAbove = 4;
    const PixelPoint middle =
        area.ToPixel({static_cast<double>(polygon.TitleBaseX) + polygon.TitleX,
                      static_cast<double>(polygon.TitleBaseY) + polygon.TitleY});
    return {middle.x - NimenPuolileveys(polygon), middle.y - kAbove};
}

}  // namespace tessarin
