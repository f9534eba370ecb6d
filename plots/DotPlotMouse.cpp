// The mouse over a dot plot: which press means what, in the order in which they are tried.
#include "core/Muuttujat.h"
#include "core/RegionMuuttujat.h"
#include "mainwindow/PaaIkkuna.h"
#include "plots/DotPlot.h"
#include "plots/PolygonMembership.h"

namespace tessarin {

void DotPlot::Kuva_MouseDown(const MouseEvent& mouse) {
    // A menu lets events run while it is open, and with them the closing of this window.
    const auto alive = Ikkunat(ID).Window;
    ValikkoAkseli = 0;
    const PixelPoint place{mouse.x, mouse.y};
    if (UusiRegionPaalla) {
        if (File() != nullptr) {
            ele_.Piirra(mouse.button, place);
        }
    } else if (mouse.button == MouseButton::kRight) {
        PressRight(place);
    } else if (mouse.button == MouseButton::kLeft) {
        PressLeft(place);
    }
}

void DotPlot::PressRight(PixelPoint mouse) {
    if (EleKaynnissa) {
        return;  // a drag is under way with the other button
    }
    const PlotArea area(Surface());
    if (mouse.x > 0 && mouse.x < area.Left() && mouse.y > area.Top() && mouse.y < area.Bottom()) {
        ShowChannelList(2);
    } else if (mouse.x > area.Left() && mouse.x < area.W() && mouse.y > area.Bottom() &&
               mouse.y < area.H()) {
        ShowChannelList(1);
    } else {
        ShowMenu();
    }
}

void DotPlot::PressLeft(PixelPoint mouse) {
    if (EleKaynnissa || File() == nullptr) {
        return;
    }
    if (kvadrantti_.Osuu(PlotArea(Surface()), mouse)) {
        kvadrantti_.KvadranttiLiikkuu = true;
        EleKaynnissa = true;
        Piirra();  // without the cross, which is drawn above from now on
        Kvadrantti::PiirraLiikkuva(Surface(), PlotArea(Surface()), mouse, tausta_.Line());
    } else if (AlueViivat) {
        ele_.Tartu(mouse);
    }
}

void DotPlot::Kuva_MouseMove(const MouseEvent& mouse) {
    main_.HiiriMuualla();
    if (IsBeingResized()) {
        KokoaMuutetaan = 0;
        Piirra();
    }
    Surface().SetMousePointer(UusiRegionPaalla ? MousePointer::kCrosshair : MousePointer::kNormal);
    const PixelPoint place{mouse.x, mouse.y};
    if (kvadrantti_.KvadranttiLiikkuu) {
        Kvadrantti::PiirraLiikkuva(Surface(), PlotArea(Surface()), place, tausta_.Line());
    } else if (ele_.OnkoPaalla()) {
        ele_.Liiku(place);
    } else if (!UusiRegionPaalla && AlueViivat && File() != nullptr) {
        ele_.Korosta(place);
    }
}

void DotPlot::Kuva_MouseUp(const MouseEvent& mouse) {
    const PixelPoint place{mouse.x, mouse.y};
    if (kvadrantti_.KvadranttiLiikkuu) {
        Surface().SetAutoRedraw(true);
        kvadrantti_.Pudota(PlotArea(Surface()), place);
        EleKaynnissa = false;
        Piirra();
    } else {
        ele_.Paasta(place);
    }
}

void DotPlot::Kuva_MouseLost() {
    kvadrantti_.KvadranttiLiikkuu = false;
    ele_.Keskeyta();
}

void DotPlot::PiirraKaikkiIkkunat() {
    main_.PiirraKaikki();
}

int16_t DotPlot::UudenRegioninPaikka() const {
    return main_.Paneeli().ValittuPopulaatio();
}

void DotPlot::RegionMuuttui(int16_t slot) {
    TarkistaMonikulmio(slot);
}

}  // namespace tessarin
