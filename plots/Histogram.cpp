#include "plots/Histogram.h"

#include <algorithm>

#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"
#include "plots/Axes.h"
#include "plots/HistogramBars.h"
#include "plots/MarkerMembership.h"
#include "plots/MarkerOutlines.h"

namespace tessarin {
namespace {

void RedrawWindows(std::initializer_list<std::string_view> types) {
    for (int16_t id = 1; id <= MaxWindows; ++id) {
        const auto window = IkkunaPaikassa(id);
        if (window != nullptr &&
            std::find(types.begin(), types.end(), Ikkunat(id).Type) != types.end()) {
            window->Piirra();
        }
    }
}

}  // namespace

Histogram::Histogram(PaaIkkuna& main)
    : PlotWindow(main,
                 {"Histogram", "marker", "BMP files (*.BMP)|*.BMP", Items(), OletusKokoHistogram}),
      HistoRivit(kPopulationSlots + 1) {}

void Histogram::ReplaceMissingChannels(const Tiedosto& file) {
    if (KanavaX < 1 || KanavaX > file.ChannelCount) {
        KanavaX = 1;
    }
}

void Histogram::DrawPlot(const Tiedosto& file, const PlotArea& area) {
    PiirraXOtsikko(Surface(), area, file.Channels(KanavaX).Name);
    PiirraPylvaat(Surface(), area, Histo, {Korkein, Tayttovari, Reunus});
    DrawAxes(file, area);
    DrawMarkers(area);
    DrawFastMark(area);
    DrawTopOfScale(area);
}

ChannelData Histogram::UsedData(const Tiedosto& file) const {
    return {file, KanavaX, NaytettavaPopulaatio, nopea_.PiirtoVali};
}

void Histogram::CountEvents(const Tiedosto& file) {
    Histo = LaskeHistogrammi(UsedData(file), Resoluutio);
    Tasoita(Histo, Tasoitus);
    Korkein = YSkaala == 0 ? KorkeinPylvas(Histo) : static_cast<float>(YSkaala);
}

void Histogram::DrawAxes(const Tiedosto& file, const PlotArea& area) {
    PiirraAkselit(Surface(), area, tausta_.Line());
    PiirraXTikit(Surface(), area, file.Channels(KanavaX), tausta_.Line());
}

void Histogram::DrawMarkers(const PlotArea& area) {
    if (AlueViivat) {
        PiirraMarkkerit(Surface(), area, EleenNakyma(), tausta_.Line());
        PiirraMarkkereidenNimet(Surface(), area, EleenNakyma());
    }
}

void Histogram::DrawTopOfScale(const PlotArea& area) {
    PiirraYSkaala(Surface(), area, " " + NumberText(Int(static_cast<double>(Korkein))));
}

// Windows that take their data from histograms follow what was drawn here.
void Histogram::RedrawFollowers() {
    RedrawWindows({"Overlay Histogram", "Mirror Histogram"});
}

void Histogram::UnloadWindow() {
    PlotWindow::UnloadWindow();
    RedrawWindows({"Overlay Histogram"});
}

std::optional<std::string> Histogram::AnnaKanava(std::string_view axis) const {
    return axis == "x" ? std::to_string(KanavaX) : "";
}

bool Histogram::AsetaKanava(std::string_view axis, int16_t channel) {
    if (axis == "x") {
        KanavaX = channel;
    }
    Piirra();
    return true;
}

int16_t Histogram::AxisAt(const PlotArea& area, PixelPoint mouse) const {
    return IsUnderXAxis(area, mouse) ? 1 : 0;
}

void Histogram::RegionMuuttui(int16_t slot) {
    TarkistaMarkkeri(slot);
}

// What other windows and tools ask of the bins.

Kanava Histogram::Channel() const {
    const Tiedosto* file = File();
    const bool has = file != nullptr && KanavaX >= 1 && KanavaX <= file->ChannelCount;
    return has ? file->Channels(KanavaX) : Kanava{};
}

std::optional<int32_t> Histogram::LahetaMax() const {
    return Channel().Range;
}

std::optional<bool> Histogram::LahetaLog() const {
    return Channel().IsLog;
}

std::optional<std::string> Histogram::LahetaNimi() const {
    return Channel().Name;
}

std::size_t Histogram::BinAt(float grid) const {
    const double last = static_cast<double>(Histo.size()) - 1;
    const double bin = Int(static_cast<double>(grid) / kGrid * Resoluutio);
    return static_cast<std::size_t>(std::clamp(bin, 0.0, last));
}

std::optional<int32_t> Histogram::AnnaHistonKorkeinKohta(std::string_view mode,
                                                         int16_t marker) const {
    if (Histo.empty() || marker < 1 || marker > MaxPopulations) {
        return 0;
    }
    const Populaatio& place = Populaatiot(marker);
    const std::size_t last = BinAt(place.X[2]);
    double highest = 0;
    std::size_t bin = 0;
    for (std::size_t i = BinAt(place.X[1]); i <= last; ++i) {
        if (Histo[i] > highest) {
            highest = Histo[i];
            bin = i;
        }
    }
    if (mode == "paikka") {
        return ToInt32(Int(kGrid * static_cast<double>(bin) / Resoluutio));
    }
    if (mode == "abskorkeus") {
        return ToInt32(Rounded(highest));
    }
    return mode == "suhtkorkeus" ? ToInt32(Rounded(kGrid * highest / static_cast<double>(Korkein)))
                                 : 0;
}

std::optional<int32_t> Histogram::AnnaHistonKorkeus(int32_t& x) const {
    x = ToInt32(Int(static_cast<double>(Resoluutio) * x / kGrid));
    if (x < 0 || static_cast<std::size_t>(x) >= Histo.size()) {
        return 0;
    }
    const double height = Histo[static_cast<std::size_t>(x)] / static_cast<double>(Korkein);
    return ToInt32(Rounded(height * kGrid));
}

}  // namespace tessarin
