// The pop-up menus of the dot plot: the table of its items and what each does.
#include <array>
#include <filesystem>

#include "core/Bitmap.h"
#include "core/Muuttujat.h"
#include "core/RegionMuuttujat.h"
#include "mainwindow/PaaIkkuna.h"
#include "plots/DotPlot.h"
#include "plots/EventText.h"

namespace tessarin {

/// One item: its caption at start and what choosing it does; nullptr for a separator and for
/// what is not built yet.
struct DotPlot::Item {
    std::string_view caption;
    void (DotPlot::*action)() = nullptr;
};

namespace {

// Items whose captions change.
enum : int {
    kStatistics = 1,
    kQuadrant = 2,
    kDensity = 3,
    kRegionLines = 5,
    kOnlyHere = 6,
    kColours = 7,
    kCopy = 9,
    kSaveImage = 10,
    kDotSize = 13,
    kFastDraw = 14,
    kSaveData = 16,
    kPreview = 18,
};

}  // namespace

const std::array<DotPlot::Item, 18>& DotPlot::Items() {
    static const std::array<Item, 18> items = {{
        {"Open statistics", &DotPlot::ToggleStatistics},
        {"Show Quadrant", &DotPlot::ToggleQuadrant},
        {"Density plot", &DotPlot::ToggleDensity},
        {"-"},
        {"Hide region lines", &DotPlot::ToggleRegionLines},
        {"Show only regions created here", &DotPlot::ToggleOnlyHere},
        {"Disable multicoloring", &DotPlot::ToggleColours},
        {"-"},
        {"Copy to clipboard (CTRL-C)", &DotPlot::CopyImage},
        {"Save as .BMP...", &DotPlot::SaveImage},
        {"-"},
        {"Invert background color", &DotPlot::InvertBackground},
        {"Large dots", &DotPlot::ToggleDotSize},
        {"Fast draw mode", &DotPlot::ToggleFastDraw},
        {"-"},
        {"Save data as .TXT...", &DotPlot::SaveData},
        {"-"},
        {"Show in print preview page", &DotPlot::TogglePreview},
    }};
    return items;
}

PopupTekstit DotPlot::CaptionsAtStart() {
    std::array<std::string_view, 18> captions;
    for (std::size_t i = 0; i < captions.size(); ++i) {
        captions[i] = Items()[i].caption;
    }
    return PopupTekstit(captions);
}

void DotPlot::MenuValintaReaktio(int item) {
    if (item < 1 || item > static_cast<int>(Items().size()) || !IsItemEnabled(item)) {
        return;
    }
    (this->*Items()[static_cast<std::size_t>(item) - 1].action)();
}

bool DotPlot::IsItemEnabled(int item) const {
    const bool needsFile =
        item == kCopy || item == kSaveImage || item == kFastDraw || item == kSaveData;
    const bool needsPage = item == kPreview;
    return Items()[static_cast<std::size_t>(item) - 1].action != nullptr &&
           (!needsFile || File() != nullptr) &&
           (!needsPage || main_.Kumppanit().preview != nullptr);
}

void DotPlot::ShowMenu() {
    const auto items =
        tekstit_.Items([this](int item) { return tekstit_(item) == "-" || IsItemEnabled(item); });
    NaytaNappiMenu(main_, ID, items);
}

void DotPlot::ShowChannelList(int16_t axis) {
    const Tiedosto* file = File();
    if (file == nullptr) {
        return;
    }
    ValikkoAkseli = axis;
    NaytaKanavaLista(main_, *file);
    AsetaKanava(axis == 1 ? "x" : "y", static_cast<int16_t>(ValittuKanava + 1));
}

void DotPlot::ToggleQuadrant() {
    NaytaTaiPiilotaKvadrantti("toggle");
}

bool DotPlot::NaytaTaiPiilotaKvadrantti(std::string_view what) {
    if (kvadrantti_.NaytaTaiPiilota(what)) {
        tekstit_.Aseta(kQuadrant,
                       kvadrantti_.KvadranttiKaytossa ? "Hide quadrant" : "Show quadrant");
        Piirra();
    }
    return true;
}

void DotPlot::ToggleDensity() {
    Tiheys = !Tiheys;
    tekstit_.Aseta(kDensity, Tiheys ? "Dot plot" : "Density plot");
    Piirra();
}

void DotPlot::ToggleRegionLines() {
    AlueViivat = !AlueViivat;
    tekstit_.Aseta(kRegionLines, AlueViivat ? "Hide region lines" : "Show region lines");
    Piirra();
}

void DotPlot::ToggleOnlyHere() {
    VainTaallaLuodut = !VainTaallaLuodut;
    tekstit_.Aseta(kOnlyHere,
                   VainTaallaLuodut ? "Show all regions" : "Show only regions created here");
    Piirra();
}

void DotPlot::ToggleColours() {
    MoniVari = !MoniVari;
    tekstit_.Aseta(kColours, MoniVari ? "Disable multicoloring" : "Enable multicoloring");
    Piirra();
}

void DotPlot::CopyImage() {
    main_.Services().clipboard.Clear();
    CopyToClipboard();
    ClipSource = ID;
}

void DotPlot::SaveImage() {
    const std::string path = AskSavePath({"Save the image", "BMP files (*.BMP)|*.bmp"});
    if (path.empty()) {
        return;
    }
    const std::string failure = TalletaKuva(Surface().Image(), path);
    if (!failure.empty()) {
        main_.Services().dialogs.Message(failure, "Save the image");
    }
}

void DotPlot::SaveData() {
    const std::string path =
        AskSavePath({"Save the data", "TXT files (tab delimited) (*.TXT)|*.txt"});
    if (path.empty()) {
        return;
    }
    const std::string failure = TalletaTapahtumat(UsedData(*File(), 1), path);
    if (!failure.empty()) {
        main_.Services().dialogs.Message(failure, "Save the data");
    }
}

// Asks where to save; empty when the user thinks better of it.
std::string DotPlot::AskSavePath(const FileQuestion& question) {
    Dialogs& dialogs = main_.Services().dialogs;
    const std::string path = dialogs.SaveFile(question);
    if (!path.empty() && std::filesystem::exists(path) &&
        !dialogs.Ask("File already exists. Do you want to overwrite it?", "File already exists",
                     QuestionButtons::kOkCancel)) {
        return "";
    }
    return path;
}

void DotPlot::ToggleStatistics() {
    AvaaTaiSuljeStatistics("toggle");
}

bool DotPlot::AvaaTaiSuljeStatistics(std::string_view what) {
    if (tilasto_.AvaaTaiSulje(what)) {
        tekstit_.Aseta(kStatistics, tilasto_.OnkoAuki() ? "Close statistics" : "Open statistics");
        PaivitaStatistiikka();
    }
    return true;
}

void DotPlot::InvertBackground() {
    tausta_.MustaTausta = !tausta_.MustaTausta;
    Piirra();
}

void DotPlot::ToggleDotSize() {
    PisteenKoko = PisteenKoko == 1 ? 2 : 1;
    tekstit_.Aseta(kDotSize, PisteenKoko == 1 ? "Large dots" : "Small dots");
    Piirra();
}

void DotPlot::ToggleFastDraw() {
    if (nopea_.Vaihda(File()->EventCount)) {
        SetFastDrawCaption();
        Piirra();
    }
}

void DotPlot::SetFastDrawCaption() {
    tekstit_.Aseta(kFastDraw, nopea_.FastDraw ? "Full draw mode" : "Fast draw mode");
}

void DotPlot::TogglePreview() {
    AsetaPreviewissa(!Previewissa);
}

bool DotPlot::AsetaPreviewissa(bool shown) {
    Previewissa = shown;
    tekstit_.Aseta(kPreview,
                   shown ? "Don't show in print preview page" : "Show in print preview page");
    if (shown) {
        Piirra();
    } else if (PreviewPage* page = main_.Kumppanit().preview) {
        page->Piirra();
    }
    return true;
}

}  // namespace tessarin
