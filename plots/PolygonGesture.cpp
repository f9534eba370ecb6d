#include "plots/PolygonGesture.h"

#include <algorithm>
#include <cmath>

#include "core/BusyPointer.h"
#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "core/RegionMuuttujat.h"
#include "populations/PolygonTest.h"

namespace tessarin {
namespace {

PixelPoint Corner(int16_t number) {
    const auto i = static_cast<std::size_t>(number);
    return {static_cast<double>(KulmaX[i]), static_cast<double>(KulmaY[i])};
}

void SetCorner(int16_t number, PixelPoint place) {
    const auto i = static_cast<std::size_t>(number);
    KulmaX[i] = static_cast<float>(place.x);
    KulmaY[i] = static_cast<float>(place.y);
}

void StoreCorner(Populaatio& polygon, const PlotArea& area, int16_t number) {
    const GridPoint place = area.ToGrid(Corner(number));
    polygon.X[static_cast<std::size_t>(number)] = static_cast<float>(place.x);
    polygon.Y[static_cast<std::size_t>(number)] = static_cast<float>(place.y);
}

void StoreCorners(Populaatio& polygon, const PlotArea& area) {
    for (int16_t number = 1; number <= KulmienMaara; ++number) {
        StoreCorner(polygon, area, number);
    }
}

// A polygon's corners as they stand in the window, into the gesture variables.
void TakeCorners(const Populaatio& polygon, const PlotArea& area) {
    KulmienMaara = 0;
    for (const PixelPoint& place : PikseliKulmat(area, polygon)) {
        SetCorner(++KulmienMaara, place);
    }
}

// Whether the mouse is near the name: the place to hover is larger than the one to take hold of.
bool IsNearName(const PlotArea& area, const Populaatio& polygon, PixelPoint mouse) {
    constexpr double kHalfHeight = 4;
    const PixelPoint corner = NimenPaikka(area, polygon);
    const double width = 2 * NimenPuolileveys(polygon);
    return mouse.x > corner.x - KahvanKoko && mouse.x < corner.x + width + KahvanKoko &&
           mouse.y > corner.y - KahvanKoko && mouse.y < corner.y + 2 * kHalfHeight + KahvanKoko;
}

// The first visible polygon, in rising order, for which `wanted` holds; 0 for none.
template <class Wanted>
int16_t FirstPolygon(const PolygonView& view, Wanted wanted) {
    for (int16_t slot = 1; slot <= MaxPopulations; ++slot) {
        if (OnkoNakyva(view, slot) && wanted(Populaatiot(slot))) {
            return slot;
        }
    }
    return 0;
}

}  // namespace

bool MonikulmioEle::OnkoPiirto() const {
    return RegionAloitettu && RegionIkkuna == host_.EleenNakyma().window;
}

int16_t MonikulmioEle::FindCorner(PixelPoint mouse, int16_t& corner) {
    const PlotArea area = Area();
    return FirstPolygon(host_.EleenNakyma(), [&](const Populaatio& polygon) {
        const auto corners = PikseliKulmat(area, polygon);
        const auto hit = std::find_if(corners.begin(), corners.end(), [mouse](PixelPoint place) {
            return OsuuKahvaan(place, mouse);
        });
        corner = static_cast<int16_t>(hit - corners.begin() + 1);
        return hit != corners.end();
    });
}

int16_t MonikulmioEle::FindName(PixelPoint mouse) {
    const PlotArea area = Area();
    return FirstPolygon(host_.EleenNakyma(), [&](const Populaatio& polygon) {
        return OsuuKahvaan(NimenPaikka(area, polygon), mouse);
    });
}

int16_t MonikulmioEle::FindInside(PixelPoint mouse) {
    const GridPoint place = Area().ToGrid(mouse);
    return FirstPolygon(host_.EleenNakyma(), [&](const Populaatio& polygon) {
        return OnkoSisalla(static_cast<float>(place.x), static_cast<float>(place.y),
                           PopulaationKulmat(polygon));
    });
}

bool MonikulmioEle::Tartu(PixelPoint mouse) {
    int16_t corner = 0;
    if (const int16_t slot = FindCorner(mouse, corner)) {
        MuokattavaRegion = slot;
        MuokattavaKulma = corner;
        TakeCorners(Populaatiot(slot), Area());
    } else if (const int16_t named = FindName(mouse)) {
        SiirrettavaOtsikko = named;
    } else if (const int16_t whole = FindInside(mouse)) {
        SiirrettavaRegion = whole;
        TakeCorners(Populaatiot(whole), Area());
        edellinen_ = mouse;
    } else {
        return false;
    }
    StartDrag(mouse);
    return true;
}

// Redraws the window without the thing in hand, and from then on draws that above the picture.
void MonikulmioEle::StartDrag(PixelPoint mouse) {
    host_.AsetaEle(true);
    host_.PiirraIkkuna();
    host_.EleenPinta().SetAutoRedraw(false);
    Liiku(mouse);
}

void MonikulmioEle::Piirra(MouseButton button, PixelPoint mouse) {
    const bool here = RegionIkkuna == host_.EleenNakyma().window;
    const bool onFirst =
        button == MouseButton::kLeft && KulmienMaara > 1 && OsuuKahvaan(Corner(1), mouse);
    if (here && (button == MouseButton::kRight || onFirst)) {
        Close();
    } else if (button == MouseButton::kLeft) {
        PlaceCorner(mouse);
    }
}

void MonikulmioEle::Close() {
    const BusyPointer busy;
    if (RegionAloitettu) {
        const PolygonView view = host_.EleenNakyma();
        const int16_t slot = host_.UudenRegioninPaikka();
        Populaatio& polygon = Populaatiot(slot);
        StoreCorners(polygon, Area());
        polygon.Defined = true;
        polygon.AxisX = view.KanavaX;
        polygon.AxisY = view.KanavaY;
        polygon.Corners = KulmienMaara;
        polygon.Name = "Poly-" + std::to_string(slot);
        polygon.Type = "Polygon";
        polygon.Created = view.window;
        polygon.TitleX = 0;
        polygon.TitleY = 0;
        polygon.Transparent = false;
        host_.RegionMuuttui(slot);
    }
    host_.EleenPinta().SetAutoRedraw(true);
    PalautaPiirtoele();
    host_.AsetaEle(false);
    host_.PiirraKaikkiIkkunat();
}

void MonikulmioEle::PlaceCorner(PixelPoint mouse) {
    if (!RegionAloitettu) {
        RegionAloitettu = true;
        RegionIkkuna = host_.EleenNakyma().window;
        KulmienMaara = 0;
        host_.EleenPinta().SetAutoRedraw(false);
    }
    // Nothing is stored beyond the last corner that there is room for.
    if (OnkoPiirto() && KulmienMaara < kMaxCorners) {
        SetCorner(++KulmienMaara, mouse);
        Liiku(mouse);
    }
}

void MonikulmioEle::DrawUnderWork(bool closed) {
    Kuva& surface = host_.EleenPinta();
    const Rgb color = host_.EleenVari();
    for (int16_t number = 1; number <= KulmienMaara; ++number) {
        PiirraKahva(surface, Corner(number), color);
        if (number < KulmienMaara || closed) {
            const PixelPoint from = Corner(number);
            const PixelPoint to = Corner(number < KulmienMaara ? int16_t(number + 1) : int16_t{1});
            surface.Line(from.x, from.y, to.x, to.y, color);
        }
    }
}

void MonikulmioEle::Liiku(PixelPoint mouse) {
    Kuva& surface = host_.EleenPinta();
    if (OnkoPiirto()) {
        surface.Cls();
        DrawUnderWork(false);
        const PixelPoint last = Corner(KulmienMaara);
        surface.Line(last.x, last.y, mouse.x, mouse.y, host_.EleenVari());
        return;
    }
    if (!host_.OnkoEle()) {
        return;
    }
    if (MuokattavaRegion != 0) {
        SetCorner(MuokattavaKulma, mouse);
        surface.Cls();
        DrawUnderWork(true);
    } else if (SiirrettavaRegion != 0) {
        for (int16_t number = 1; number <= KulmienMaara; ++number) {
            const PixelPoint from = Corner(number);
            SetCorner(number, {from.x + mouse.x - edellinen_.x, from.y + mouse.y - edellinen_.y});
        }
        surface.Cls();
        DrawUnderWork(true);
        edellinen_ = {Rounded(mouse.x), Rounded(mouse.y)};
    } else if (SiirrettavaOtsikko != 0) {
        surface.Cls();
        surface.SetCurrent(mouse.x, mouse.y);
        surface.Print(Populaatiot(SiirrettavaOtsikko).Name);
    }
}

void MonikulmioEle::Paasta(PixelPoint mouse) {
    if (!host_.OnkoEle()) {
        return;
    }
    if (MuokattavaRegion != 0) {
        const int16_t slot = MuokattavaRegion;
        SetCorner(MuokattavaKulma, mouse);
        StoreCorner(Populaatiot(slot), Area(), MuokattavaKulma);
        EndDrag();
        host_.RegionMuuttui(slot);
        host_.PiirraKaikkiIkkunat();
    } else if (SiirrettavaRegion != 0) {
        const int16_t slot = SiirrettavaRegion;
        StoreCorners(Populaatiot(slot), Area());
        EndDrag();
        host_.RegionMuuttui(slot);
        host_.PiirraKaikkiIkkunat();
    } else if (SiirrettavaOtsikko != 0) {
        Populaatio& polygon = Populaatiot(SiirrettavaOtsikko);
        const GridPoint place = Area().ToGrid({mouse.x + NimenPuolileveys(polygon), mouse.y + 4});
        polygon.TitleX = ToInt32(Rounded(place.x) - polygon.TitleBaseX);
        polygon.TitleY = ToInt32(Rounded(place.y) - polygon.TitleBaseY);
        EndDrag();
        host_.PiirraKaikkiIkkunat();
    }
}

void MonikulmioEle::EndDrag() {
    MuokattavaRegion = 0;
    MuokattavaKulma = 0;
    SiirrettavaRegion = 0;
    SiirrettavaOtsikko = 0;
    KulmienMaara = 0;
    host_.EleenPinta().SetAutoRedraw(true);
    host_.AsetaEle(false);
}

void MonikulmioEle::Korosta(PixelPoint mouse) {
    Kuva& surface = host_.EleenPinta();
    surface.SetAutoRedraw(false);
    surface.Cls();
    const PlotArea area = Area();
    FirstPolygon(host_.EleenNakyma(), [&](const Populaatio& polygon) {
        const auto corners = PikseliKulmat(area, polygon);
        const bool onCorner =
            std::any_of(corners.begin(), corners.end(),
                        [mouse](PixelPoint place) { return OsuuKahvaan(place, mouse); });
        const bool onName = !onCorner && IsNearName(area, polygon, mouse);
        if (onCorner) {
            for (const PixelPoint& place : corners) {
                PiirraKahva(surface, place, host_.EleenVari());
            }
        } else if (onName) {
            PiirraKahva(surface, NimenPaikka(area, polygon), Grey(120));
        }
        return onCorner || onName;
    });
    surface.SetAutoRedraw(true);
}

void MonikulmioEle::Keskeyta() {
    if (host_.OnkoEle()) {
        EndDrag();
        host_.PiirraIkkuna();
    }
}

void MonikulmioEle::Unohda() {
    if (host_.OnkoEle()) {
        EndDrag();
    }
    if (RegionIkkuna == host_.EleenNakyma().window) {
        if (RegionAloitettu) {
            PalautaPiirtoele();
        }
        RegionIkkuna = 0;
    }
}

void MonikulmioEle::KokoMuuttui(const PlotArea& before) {
    if (!OnkoPiirto()) {
        return;
    }
    const PlotArea now = Area();
    for (int16_t number = 1; number <= KulmienMaara; ++number) {
        SetCorner(number, now.ToPixel(before.ToGrid(Corner(number))));
    }
}

}  // namespace tessarin
