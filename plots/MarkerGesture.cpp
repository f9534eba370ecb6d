#include "plots/MarkerGesture.h"

#include <algorithm>

#include "core/Muuttujat.h"
#include "core/RegionMuuttujat.h"

namespace tessarin {
namespace {

constexpr Rgb kNewMarker{255, 0, 0};

bool IsBetween(double value, double low, double high) {
    return low <= value && value <= high;
}

// Inside the plot area; on a surface too small for one, at its left or upper edge.
PixelPoint Clamped(const PlotArea& area, PixelPoint place) {
    return {std::max(area.Left(), std::min(place.x, area.Right())),
            std::max(area.Top(), std::min(place.y, area.Bottom()))};
}

MarkerPlace UnderWork() {
    return {static_cast<double>(KulmaX[1]), static_cast<double>(KulmaX[2]),
            static_cast<double>(KulmaY[1])};
}

void SetUnderWork(const MarkerPlace& place) {
    KulmienMaara = 2;
    AsetaKulmapiste(1, {place.x1, place.y});
    AsetaKulmapiste(2, {place.x2, place.y});
}

}  // namespace

std::vector<PixelPoint> MarkkeriEle::Corners(const Populaatio& region) {
    const MarkerPlace place = MarkkerinPaikka(Area(), region);
    return {{place.x1, place.y}, {place.x2, place.y}};
}

int16_t MarkkeriEle::FindCorner(PixelPoint mouse, int16_t& corner) {
    return EnsimmainenRegion(host_.EleenNakyma(), [&](const Populaatio& marker) {
        const auto ends = Corners(marker);
        // Where the ends lie on each other the second is the one on top.
        corner = OsuuKahvaan(ends[1], mouse) ? int16_t{2} : int16_t{1};
        return corner == 2 || OsuuKahvaan(ends[0], mouse);
    });
}

int16_t MarkkeriEle::FindInside(PixelPoint mouse) {
    const PlotArea area = Area();
    return EnsimmainenRegion(host_.EleenNakyma(), [&](const Populaatio& marker) {
        const MarkerPlace place = MarkkerinPaikka(area, marker);
        return place.x1 < mouse.x && mouse.x < place.x2;
    });
}

void MarkkeriEle::Take(const Populaatio& region) {
    SetUnderWork(MarkkerinPaikka(Area(), region));
}

// Dragging one end changes the height too, so a marker is stored whole.
void MarkkeriEle::Store(Populaatio& region, int16_t /*corner*/) {
    const PlotArea area = Area();
    const MarkerPlace place = UnderWork();
    const GridPoint first = area.ToGrid({place.x1, place.y});
    region.X[1] = static_cast<float>(first.x);
    region.X[2] = static_cast<float>(area.ToGrid({place.x2, place.y}).x);
    region.Y[1] = static_cast<float>(first.y);
}

void MarkkeriEle::Piirra(MouseButton button, PixelPoint mouse) {
    if (button != MouseButton::kLeft || RegionAloitettu || MarkkeriVeto) {
        return;
    }
    MarkkeriVeto = true;
    host_.AsetaEle(true);
    SetUnderWork({mouse.x, mouse.x, mouse.y});
    host_.AsetaPaalle(true);
    DrawMarker(kNewMarker);
}

void MarkkeriEle::DrawMarker(Rgb color) {
    Kuva& surface = host_.EleenPinta();
    const PlotArea area = Area();
    const MarkerPlace place = UnderWork();
    surface.Line(place.x1, area.Top(), place.x1, area.Bottom(), color);
    surface.Line(place.x2, area.Top(), place.x2, area.Bottom(), color);
    surface.Line(place.x1, place.y, place.x2, place.y, color);
    PiirraKahva(surface, {place.x1, place.y}, color);
    PiirraKahva(surface, {place.x2, place.y}, color);
}

void MarkkeriEle::DragNew(PixelPoint mouse) {
    const PixelPoint end = Clamped(Area(), mouse);
    SetUnderWork({UnderWork().x1, end.x, end.y});
    DrawUnderWork();
}

void MarkkeriEle::DragCorner(PixelPoint mouse) {
    const PixelPoint end = Clamped(Area(), mouse);
    MarkerPlace place = UnderWork();
    (MuokattavaKulma == 1 ? place.x1 : place.x2) = end.x;
    place.y = end.y;
    SetUnderWork(place);
}

void MarkkeriEle::DragWhole(PixelPoint mouse, PixelPoint before) {
    const PlotArea area = Area();
    const MarkerPlace old = UnderWork();
    const double dx = mouse.x - before.x;
    const MarkerPlace moved{old.x1 + dx, old.x2 + dx, old.y + mouse.y - before.y};
    if (IsBetween(moved.x1, area.Left(), area.Right()) &&
        IsBetween(moved.x2, area.Left(), area.Right()) &&
        IsBetween(moved.y, area.Top(), area.Bottom())) {
        SetUnderWork(moved);
    }
}

void MarkkeriEle::ReleaseNew() {
    const int16_t slot = host_.UudenRegioninPaikka();
    DefineNew(slot);
    AbandonNew();
    UusiRegionPaalla = false;
    host_.RegionMuuttui(slot);
    host_.PiirraKaikkiIkkunat();
}

void MarkkeriEle::AbandonNew() {
    MarkkeriVeto = false;
    EndDrag();
}

void MarkkeriEle::Keskeyta() {
    MarkkeriVeto = false;
    RegionEle::Keskeyta();
}

void MarkkeriEle::Unohda() {
    MarkkeriVeto = false;
    RegionEle::Unohda();
}

}  // namespace tessarin
