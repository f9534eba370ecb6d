#include "plots/Histogram.h"

#include <algorithm>

#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "mainwindow/PaaIkkuna.h"
#include "plots/Axes.h"
#include "plots/HistogramFollowers.h"
#include "plots/MarkerGesture.h"
#include "plots/MarkerMembership.h"
#include "plots/MarkerOutlines.h"

namespace tessarin {
namespace {

constexpr FrameKind kFrame{.emptyTitle = "Histogram - No File",
                           .fileTitle = "Histogram - ",
                           .imageFilter = "BMP files (*.BMP)|*.BMP",
                           .sizeGroup = "Histogram",
                           .drawsWhileLoading = true,
                           .thinsWhileResized = false};

constexpr RegionKind kMarkers{.prefix = "Histo-", .word = "marker", .transparent = true};

}  // namespace

Histogram::Histogram(PaaIkkuna& main)
    : FrameWindow(main, kFrame),
      regions_(RegionPart::Make<MarkkeriEle>(*this, *this, kMarkers)),
      HistoRivit(kPopulationSlots + 1) {}

void Histogram::UnloadWindow() {
    regions_->Unohda();
    statistics_.Sulje();
    FrameWindow::UnloadWindow();
    PiirraHistogrammienSeuraajat();
}

// What is drawn.

ChannelData Histogram::UsedData(const Tiedosto& file) const {
    return {file, axes_(1), view_.Portti(), view_.Vali()};
}

void Histogram::Prepare() {
    axes_.Sovita(*File());
    view_.Sovita();
    bins_.Laske(UsedData(*File()));
}

void Histogram::DrawPicture(const PlotArea& area) {
    const Kanava& channel = File()->Channels(axes_(1));
    const Rgb line = Background().Line();
    PiirraXOtsikko(Surface(), area, channel.Name);
    bins_.PiirraPalkit(area, Reunus);
    PiirraAkselit(Surface(), area, line);
    PiirraXTikit(Surface(), area, channel, line);
    if (regions_->OnkoViivat()) {
        PiirraMarkkerit(Surface(), area, regions_->Nakyma(), line);
        PiirraMarkkereidenNimet(Surface(), area, regions_->Nakyma(), Background().BackColor());
    }
    view_.DrawFastMark(area);
    view_.DrawGate();
    bins_.PiirraHuippu(area);
}

void Histogram::FinishRedraw() {
    statistics_.PaivitaStatistiikka();
    PiirraHistogrammienSeuraajat();
}

void Histogram::RegionMuuttui(int16_t slot) {
    TarkistaMarkkeri(slot);
}

void Histogram::PressRight(PixelPoint mouse) {
    if (OnkoXAkselilla(Area(), mouse)) {
        axes_.Valitse(1);
    } else {
        ShowMenu();
    }
}

// What other windows and tools ask of the bins.

Kanava Histogram::Channel() const {
    const Tiedosto* file = File();
    const bool has = file != nullptr && axes_(1) >= 1 && axes_(1) <= file->ChannelCount;
    return has ? file->Channels(axes_(1)) : Kanava{};
}

int32_t Histogram::AnnaHistonKorkeinKohta(std::string_view mode, int16_t marker) const {
    const std::span<const double> bins = bins_.Palkit();
    if (bins.empty() || marker < 1 || marker > MaxPopulations) {
        return 0;
    }
    // A marker may reach beyond the bins, or lie there wholly.
    const Populaatio& place = Populaatiot(marker);
    const double end = std::min(bins_.BinAt(place.X[2]), static_cast<double>(bins.size()) - 1);
    double highest = 0;
    std::size_t bin = 0;
    for (double at = std::max(0.0, bins_.BinAt(place.X[1])); at <= end; ++at) {
        const auto i = static_cast<std::size_t>(at);
        if (bins[i] > highest) {
            highest = bins[i];
            bin = i;
        }
    }
    if (mode == "paikka") {
        return ToInt32(Int(kGrid * static_cast<double>(bin) / bins_.Bins()));
    }
    if (mode == "abskorkeus") {
        return ToInt32(Rounded(highest));
    }
    return mode == "suhtkorkeus"
               ? ToInt32(Rounded(kGrid * highest / static_cast<double>(bins_.Huippu())))
               : 0;
}

int32_t Histogram::AnnaHistonKorkeus(int32_t& x) const {
    const std::span<const double> bins = bins_.Palkit();
    x = ToInt32(Int(static_cast<double>(bins_.Bins()) * x / kGrid));
    if (x < 0 || static_cast<std::size_t>(x) >= bins.size()) {
        return 0;
    }
    const double height = bins[static_cast<std::size_t>(x)] / static_cast<double>(bins_.Huippu());
    return ToInt32(Rounded(height * kGrid));
}

// The pop-up menu.

std::vector<WindowMenuItem> Histogram::Items() {
    return {statistics_.Item(),
            bins_.ScaleItem(),
            bins_.SmoothingItem(),
            Erotin(),
            regions_->LinesItem(),
            regions_->OnlyHereItem(),
            Erotin(),
            CopyItem("Copy to clipboard (CTLR-C)"),
            SaveImageItem("Save as .BMP..."),
            Erotin(),
            bins_.ColorItem(),
            InvertItem(),
            FlagItem(Reunus, "Don't draw outline", "Draw outline"),
            view_.FastDrawItem(),
            Erotin(),
            {"Copy histogram to clipboard", [this] { CopyBins(); }, File() != nullptr},
            Erotin(),
            page_.Item()};
}

void Histogram::CopyBins() {
    std::string text;
    const std::span<const double> bins = bins_.Palkit();
    for (std::size_t bin = 1; bin < bins.size(); ++bin) {
        text += NumberText(bins[bin]);
        text += '\n';
    }
    Clipboard& clipboard = Main().Services().clipboard;
    clipboard.Clear();
    clipboard.SetText(text);
}

// The settings.

void Histogram::AddKeys(SheetTable& keys) {
    AddPlaceKeys(keys);
    AddSizeKeys(keys);
    AddFileKey(keys);
    axes_.AddKeys(keys);
    view_.AddShowKey(keys);
    bins_.AddColorKeys(keys);
    keys.Add(Lippuavain("border.enabled", Reunus));
    bins_.AddScaleKeys(keys);
    regions_->AddKeys(keys);
    view_.AddFastDrawKey(keys);
    AddBackgroundKey(keys);
    page_.AddWindowKey(keys);
    page_.AddStatisticsKey(keys);
    constexpr int kItems = 9;
    statistics_.AddKeys(keys, kItems);
}

}  // namespace tessarin
