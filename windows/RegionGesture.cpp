#include "windows/RegionGesture.h"

#include <algorithm>
#include <vector>

#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "core/RegionMuuttujat.h"

namespace tessarin {

PixelPoint Kulmapiste(int16_t number) {
    const auto i = static_cast<std::size_t>(number);
    return {static_cast<double>(KulmaX[i]), static_cast<double>(KulmaY[i])};
}

void AsetaKulmapiste(int16_t number, PixelPoint place) {
    const auto i = static_cast<std::size_t>(number);
    KulmaX[i] = static_cast<float>(place.x);
    KulmaY[i] = static_cast<float>(place.y);
}

bool RegionEle::Tartu(PixelPoint mouse) {
    int16_t corner = 0;
    if (const int16_t slot = FindCorner(mouse, corner)) {
        MuokattavaRegion = slot;
        MuokattavaKulma = corner;
        Take(Populaatiot(slot));
    } else if (const int16_t named =
                   EnsimmainenRegion(host_.EleenNakyma(), [&](const Populaatio& region) {
                       return OsuuKahvaan(NimenPaikka(Area(), region, nameBox_), mouse);
                   })) {
        SiirrettavaOtsikko = named;
    } else if (const int16_t whole = FindInside(mouse)) {
        SiirrettavaRegion = whole;
        Take(Populaatiot(whole));
        edellinen_ = mouse;
    } else {
        return false;
    }
    StartDrag(mouse);
    return true;
}

// Redraws the window without the thing in hand, and from then on draws that above the picture.
void RegionEle::StartDrag(PixelPoint mouse) {
    host_.AsetaEle(true);
    host_.PiirraIkkuna();
    host_.AsetaPaalle(true);
    Liiku(mouse);
}

void RegionEle::EndDrag() {
    MuokattavaRegion = 0;
    MuokattavaKulma = 0;
    SiirrettavaRegion = 0;
    SiirrettavaOtsikko = 0;
    KulmienMaara = 0;
    host_.AsetaPaalle(false);
    host_.AsetaEle(false);
}

void RegionEle::DefineNew(int16_t slot) {
    const RegionKind& kind = host_.EleenLaji();
    const RegionView view = host_.EleenNakyma();
    Populaatio& region = Populaatiot(slot);
    Store(region, 0);
    region.Defined = true;
    region.AxisX = view.KanavaX != 0 ? view.KanavaX : region.AxisX;
    region.AxisY = view.KanavaY != 0 ? view.KanavaY : region.AxisY;
    region.Corners = KulmienMaara;
    region.Name = std::string(kind.prefix) + std::to_string(slot);
    region.Type = view.type;
    region.Created = view.window;
    region.TitleX = 0;
    region.TitleY = 0;
    region.Transparent = kind.transparent;
}

void RegionEle::Liiku(PixelPoint mouse) {
    Kuva& surface = host_.EleenPinta();
    if (OnkoPiirto()) {
        surface.Cls();
        DragNew(mouse);
        return;
    }
    if (!host_.OnkoEle()) {
        return;
    }
    if (MuokattavaRegion != 0) {
        DragCorner(mouse);
        surface.Cls();
        DrawUnderWork();
    } else if (SiirrettavaRegion != 0) {
        DragWhole(mouse, edellinen_);
        surface.Cls();
        DrawUnderWork();
        edellinen_ = {Rounded(mouse.x), Rounded(mouse.y)};
    } else if (SiirrettavaOtsikko != 0) {
        surface.Cls();
        surface.SetCurrent(mouse.x, mouse.y);
        surface.Print(Populaatiot(SiirrettavaOtsikko).Name);
    }
}

void RegionEle::Paasta(PixelPoint mouse) {
    if (OnkoPiirto()) {
        ReleaseNew();
        return;
    }
    if (!host_.OnkoEle()) {
        return;
    }
    if (MuokattavaRegion != 0) {
        DropCorner(mouse);
        Redefine(MuokattavaRegion, MuokattavaKulma);
    } else if (SiirrettavaRegion != 0) {
        Redefine(SiirrettavaRegion, 0);
    } else if (SiirrettavaOtsikko != 0) {
        PudotaNimi(Populaatiot(SiirrettavaOtsikko), Area(), nameBox_, mouse);
        EndDrag();
        host_.PiirraKaikkiIkkunat();
    }
}

// What was dragged goes into the record, and the members follow.
void RegionEle::Redefine(int16_t slot, int16_t corner) {
    Store(Populaatiot(slot), corner);
    EndDrag();
    host_.RegionMuuttui(slot);
    host_.PiirraKaikkiIkkunat();
}

void RegionEle::Korosta(PixelPoint mouse) {
    Kuva& surface = host_.EleenPinta();
    surface.SetAutoRedraw(false);
    surface.Cls();
    const PlotArea area = Area();
    EnsimmainenRegion(host_.EleenNakyma(), [&](const Populaatio& region) {
        const std::vector<PixelPoint> corners = Corners(region);
        const bool onCorner =
            std::any_of(corners.begin(), corners.end(),
                        [mouse](PixelPoint place) { return OsuuKahvaan(place, mouse); });
        const bool onName = !onCorner && OnkoNimenLahella(area, region, nameBox_, mouse);
        if (onCorner) {
            for (const PixelPoint& place : corners) {
                PiirraKahva(surface, place, host_.EleenVari());
            }
        } else if (onName) {
            PiirraKahva(surface, NimenPaikka(area, region, nameBox_), Grey(120));
        }
        return onCorner || onName;
    });
    surface.SetAutoRedraw(true);
}

void RegionEle::Keskeyta() {
    if (host_.OnkoEle()) {
        EndDrag();
        host_.PiirraIkkuna();
    }
}

void RegionEle::Unohda() {
    if (host_.OnkoEle()) {
        EndDrag();
    }
}

void RegionEle::KokoMuuttui(const PlotArea& before) {
    if (!OnkoPaalla()) {
        return;
    }
    const PlotArea now = Area();
    for (int16_t number = 1; number <= KulmienMaara; ++number) {
        AsetaKulmapiste(number, now.ToPixel(before.ToGrid(Kulmapiste(number))));
    }
}

}  // namespace tessarin
