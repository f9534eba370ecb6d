#include "plots/DotPlot.h"

#include <algorithm>

#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "mainwindow/PaaIkkuna.h"
#include "plots/Axes.h"
#include "plots/PolygonMembership.h"
#include "plots/RegionOutlines.h"

namespace tessarin {

DotPlot::DotPlot(PaaIkkuna& main)
    : PlotWindow(main, {"Dot Plot", "region", "BMP files (*.BMP)|*.bmp", Items(), OletusKoko}) {}

void DotPlot::ReplaceMissingChannels(const Tiedosto& file) {
    const int16_t channels = file.ChannelCount;
    if (KanavaX < 1 || KanavaX > channels) {
        KanavaX = 1;
    }
    if (KanavaY < 1 || KanavaY > channels) {
        KanavaY = std::min<int16_t>(2, channels);
    }
}

void DotPlot::DrawPlot(const Tiedosto& file, const PlotArea& area) {
    DrawAxes(file, area);
    DrawEvents(file, area);
    DrawRegions(area);
    DrawFastMark(area);
    PiirraXOtsikko(Surface(), area, file.Channels(KanavaX).Name);
    PiirraYOtsikko(Surface(), area, file.Channels(KanavaY).Name);
    if (kvadrantti_.KvadranttiKaytossa && !kvadrantti_.KvadranttiLiikkuu) {
        kvadrantti_.Piirra(Surface(), area, tausta_.Line());
    }
}

void DotPlot::DrawAxes(const Tiedosto& file, const PlotArea& area) {
    PiirraAkselit(Surface(), area, tausta_.Line());
    PiirraXTikit(Surface(), area, file.Channels(KanavaX), tausta_.Line());
    PiirraYTikit(Surface(), area, file.Channels(KanavaY), tausta_.Line());
}

void DotPlot::DrawEvents(const Tiedosto& file, const PlotArea& area) {
    const int32_t step =
        IsBeingResized() ? KoonMuutosVali(file.EventCount, nopea_.PiirtoVali) : nopea_.PiirtoVali;
    const PlotData data = UsedData(file, step);
    if (Tiheys) {
        density_.Piirra(Surface(), area, data, TiheysResoluutio);
    } else {
        PiirraPisteet(Surface(), area, data, {PisteenKoko, MoniVari, tausta_.Line()});
    }
}

void DotPlot::DrawRegions(const PlotArea& area) {
    if (AlueViivat) {
        PiirraAluerajat(Surface(), area, EleenNakyma(), tausta_.Line());
        PiirraAlueidenNimet(Surface(), area, EleenNakyma());
    }
}

std::optional<std::string> DotPlot::AnnaKanava(std::string_view axis) const {
    if (axis == "x" || axis == "y") {
        return std::to_string(axis == "x" ? KanavaX : KanavaY);
    }
    return "";
}

bool DotPlot::AsetaKanava(std::string_view axis, int16_t channel) {
    if (axis == "x" || axis == "y") {
        (axis == "x" ? KanavaX : KanavaY) = channel;
        Piirra();
    }
    return true;
}

bool DotPlot::AsetaRegion(std::string_view axis, double value) {
    if (axis == "x" || axis == "y") {
        (axis == "x" ? kvadrantti_.KvadranttiX : kvadrantti_.KvadranttiY) = ToInt32(Rounded(value));
        Piirra();
    }
    return true;
}

std::optional<std::string> DotPlot::AnnaKvadrantinKoordinaatit(std::string_view axis) const {
    if (axis != "x" && axis != "y") {
        return "";
    }
    const auto grid = static_cast<int64_t>(kGrid);
    const int64_t value = axis == "x" ? kvadrantti_.KvadranttiX : grid - kvadrantti_.KvadranttiY;
    return (value < 0 ? "" : " ") + std::to_string(value);
}

// The mouse: the quadrant cross comes before the regions.

int16_t DotPlot::AxisAt(const PlotArea& area, PixelPoint mouse) const {
    if (mouse.x > 0 && mouse.x < area.Left() && mouse.y > area.Top() && mouse.y < area.Bottom()) {
        return 2;
    }
    return IsUnderXAxis(area, mouse) ? 1 : 0;
}

void DotPlot::PressLeft(PixelPoint mouse) {
    if (!kvadrantti_.Osuu(PlotArea(Surface()), mouse)) {
        PlotWindow::PressLeft(mouse);
        return;
    }
    kvadrantti_.KvadranttiLiikkuu = true;
    EleKaynnissa = true;
    Piirra();  // without the cross, which is drawn above from now on
    Kvadrantti::PiirraLiikkuva(Surface(), PlotArea(Surface()), mouse, tausta_.Line());
}

void DotPlot::Kuva_MouseMove(const MouseEvent& mouse) {
    PlotWindow::Kuva_MouseMove(mouse);
    if (kvadrantti_.KvadranttiLiikkuu) {
        Kvadrantti::PiirraLiikkuva(Surface(), PlotArea(Surface()), {mouse.x, mouse.y},
                                   tausta_.Line());
    }
}

void DotPlot::Kuva_MouseUp(const MouseEvent& mouse) {
    if (!kvadrantti_.KvadranttiLiikkuu) {
        PlotWindow::Kuva_MouseUp(mouse);
        return;
    }
    Surface().SetAutoRedraw(true);
    kvadrantti_.Pudota(PlotArea(Surface()), {mouse.x, mouse.y});
    EleKaynnissa = false;
    Piirra();
}

void DotPlot::Kuva_MouseLost() {
    kvadrantti_.KvadranttiLiikkuu = false;
    PlotWindow::Kuva_MouseLost();
}

void DotPlot::RegionMuuttui(int16_t slot) {
    TarkistaMonikulmio(slot);
}

}  // namespace tessarin
