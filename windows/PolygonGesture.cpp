#include "windows/PolygonGesture.h"

#include <algorithm>

#include "core/BusyPointer.h"
#include "core/Muuttujat.h"
#include "core/RegionMuuttujat.h"
#include "populations/PolygonTest.h"
#include "windows/RegionOutlines.h"

namespace tessarin {
namespace {

void StoreCorner(Populaatio& polygon, const PlotArea& area, int16_t number) {
    const GridPoint place = area.ToGrid(Kulmapiste(number));
    polygon.X[static_cast<std::size_t>(number)] = static_cast<float>(place.x);
    polygon.Y[static_cast<std::size_t>(number)] = static_cast<float>(place.y);
}

}  // namespace

MonikulmioEle::MonikulmioEle(RegionHost& host) : RegionEle(host, kPolygonName) {}

bool MonikulmioEle::OnkoPiirto() const {
    return RegionAloitettu && RegionIkkuna == host_.EleenNakyma().window;
}

std::vector<PixelPoint> MonikulmioEle::Corners(const Populaatio& region) {
    return PikseliKulmat(Area(), region);
}

int16_t MonikulmioEle::FindCorner(PixelPoint mouse, int16_t& corner) {
    return EnsimmainenRegion(host_.EleenNakyma(), [&](const Populaatio& polygon) {
        const auto corners = Corners(polygon);
        const auto hit = std::find_if(corners.begin(), corners.end(), [mouse](PixelPoint place) {
            return OsuuKahvaan(place, mouse);
        });
        corner = static_cast<int16_t>(hit - corners.begin() + 1);
        return hit != corners.end();
    });
}

int16_t MonikulmioEle::FindInside(PixelPoint mouse) {
    const GridPoint place = Area().ToGrid(mouse);
    return EnsimmainenRegion(host_.EleenNakyma(), [&](const Populaatio& polygon) {
        return OnkoSisalla(static_cast<float>(place.x), static_cast<float>(place.y),
                           PopulaationKulmat(polygon));
    });
}

void MonikulmioEle::Take(const Populaatio& region) {
    KulmienMaara = 0;
    for (const PixelPoint& place : Corners(region)) {
        AsetaKulmapiste(++KulmienMaara, place);
    }
}

void MonikulmioEle::Store(Populaatio& region, int16_t corner) {
    for (int16_t number = 1; number <= KulmienMaara; ++number) {
        if (corner == 0 || corner == number) {
            StoreCorner(region, Area(), number);
        }
    }
}

void MonikulmioEle::Piirra(MouseButton button, PixelPoint mouse) {
    const bool here = RegionIkkuna == host_.EleenNakyma().window;
    const bool onFirst = host_.EleenLaji().leftCloses && button == MouseButton::kLeft &&
                         KulmienMaara > 1 && OsuuKahvaan(Kulmapiste(1), mouse);
    if (here && (button == MouseButton::kRight || onFirst)) {
        Close();
    } else if (button == MouseButton::kLeft) {
        PlaceCorner(mouse);
    }
}

void MonikulmioEle::Close() {
    const BusyPointer busy;
    if (RegionAloitettu) {
        const int16_t slot = host_.UudenRegioninPaikka();
        DefineNew(slot);
        host_.RegionMuuttui(slot);
    }
    host_.AsetaPaalle(false);
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
        AsetaKulmapiste(++KulmienMaara, mouse);
        Liiku(mouse);
    }
}

void MonikulmioEle::DrawCorners(bool closed) {
    Kuva& surface = host_.EleenPinta();
    const Rgb color = host_.EleenVari();
    for (int16_t number = 1; number <= KulmienMaara; ++number) {
        PiirraKahva(surface, Kulmapiste(number), color);
        if (number < KulmienMaara || closed) {
            const PixelPoint from = Kulmapiste(number);
            const PixelPoint to =
                Kulmapiste(number < KulmienMaara ? int16_t(number + 1) : int16_t{1});
            surface.Line(from.x, from.y, to.x, to.y, color);
        }
    }
}

void MonikulmioEle::DragNew(PixelPoint mouse) {
    DrawCorners(false);
    const PixelPoint last = Kulmapiste(KulmienMaara);
    host_.EleenPinta().Line(last.x, last.y, mouse.x, mouse.y, host_.EleenVari());
}

void MonikulmioEle::DragCorner(PixelPoint mouse) {
    AsetaKulmapiste(MuokattavaKulma, mouse);
}

void MonikulmioEle::DropCorner(PixelPoint mouse) {
    AsetaKulmapiste(MuokattavaKulma, mouse);
}

void MonikulmioEle::DragWhole(PixelPoint mouse, PixelPoint before) {
    for (int16_t number = 1; number <= KulmienMaara; ++number) {
        const PixelPoint from = Kulmapiste(number);
        AsetaKulmapiste(number, {from.x + mouse.x - before.x, from.y + mouse.y - before.y});
    }
}

void MonikulmioEle::Unohda() {
    RegionEle::Unohda();
    if (RegionIkkuna == host_.EleenNakyma().window) {
        if (RegionAloitettu) {
            PalautaPiirtoele();
        }
        RegionIkkuna = 0;
    }
}

}  // namespace tessarin
