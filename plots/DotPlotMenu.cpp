// The pop-up menu of the dot plot: the table of its items and what its own ones do.
#include <array>

#include "core/Muuttujat.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/SaveQuestion.h"
#include "plots/DotPlot.h"
#include "plots/EventText.h"

namespace tessarin {
namespace {

// Items of its own whose captions change.
enum : int {
    kQuadrant = 2,
    kDensity = 3,
    kColours = 7,
    kDotSize = 13,
};

}  // namespace

std::span<const PlotWindow::PopupItem> DotPlot::Items() {
    static const std::array<PopupItem, 18> kItems = {{
        {"Open statistics", Action(&DotPlot::ToggleStatistics)},
        {"Show Quadrant", Action(&DotPlot::ToggleQuadrant)},
        {"Density plot", Action(&DotPlot::ToggleDensity)},
        {"-"},
        {"Hide region lines", Action(&DotPlot::ToggleRegionLines)},
        {"Show only regions created here", Action(&DotPlot::ToggleOnlyHere)},
        {"Disable multicoloring", Action(&DotPlot::ToggleColours)},
        {"-"},
        {"Copy to clipboard (CTRL-C)", Action(&DotPlot::CopyImage), Needs::kFile},
        {"Save as .BMP...", Action(&DotPlot::SaveImage), Needs::kFile},
        {"-"},
        {"Invert background color", Action(&DotPlot::InvertBackground)},
        {"Large dots", Action(&DotPlot::ToggleDotSize)},
        {"Fast draw mode", Action(&DotPlot::ToggleFastDraw), Needs::kFile},
        {"-"},
        {"Save data as .TXT...", Action(&DotPlot::SaveData), Needs::kFile},
        {"-"},
        {"Show in print preview page", Action(&DotPlot::TogglePreview), Needs::kPreviewPage},
    }};
    return kItems;
}

void DotPlot::ToggleQuadrant() {
    NaytaTaiPiilotaKvadrantti("toggle");
}

bool DotPlot::NaytaTaiPiilotaKvadrantti(std::string_view what) {
    if (kvadrantti_.NaytaTaiPiilota(what)) {
        SetQuadrantCaption();
        Piirra();
    }
    return true;
}

void DotPlot::SetQuadrantCaption() {
    tekstit_.Aseta(kQuadrant, kvadrantti_.KvadranttiKaytossa ? "Hide quadrant" : "Show quadrant");
}

void DotPlot::ToggleDensity() {
    Tiheys = !Tiheys;
    SetDensityCaption();
    Piirra();
}

void DotPlot::SetDensityCaption() {
    tekstit_.Aseta(kDensity, Tiheys ? "Dot plot" : "Density plot");
}

void DotPlot::ToggleColours() {
    MoniVari = !MoniVari;
    SetColoursCaption();
    Piirra();
}

void DotPlot::SetColoursCaption() {
    tekstit_.Aseta(kColours, MoniVari ? "Disable multicoloring" : "Enable multicoloring");
}

void DotPlot::ToggleDotSize() {
    PisteenKoko = PisteenKoko == 1 ? 2 : 1;
    SetDotSizeCaption();
    Piirra();
}

void DotPlot::SetDotSizeCaption() {
    tekstit_.Aseta(kDotSize, PisteenKoko == 1 ? "Large dots" : "Small dots");
}

void DotPlot::SaveData() {
    const std::string path = KysyTallennuspaikka(
        main_.Services().dialogs, {"Save the data", "TXT files (tab delimited) (*.TXT)|*.txt"});
    if (path.empty()) {
        return;
    }
    const std::string failure = TalletaTapahtumat(UsedData(*File(), 1), path);
    if (!failure.empty()) {
        main_.Services().dialogs.Message(failure, "Save the data");
    }
}

}  // namespace tessarin
