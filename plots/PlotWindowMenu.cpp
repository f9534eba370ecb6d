// The pop-up menus of a plot and the items that every plot has.
#include "core/Bitmap.h"
#include "core/RegionMuuttujat.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/SaveQuestion.h"
#include "plots/PlotWindow.h"

namespace tessarin {

void PlotWindow::MenuValintaReaktio(int item) {
    if (item < 1 || item > static_cast<int>(kind_.items.size()) || !IsItemEnabled(item)) {
        return;
    }
    (this->*kind_.items[static_cast<std::size_t>(item) - 1].action)();
}

bool PlotWindow::IsItemEnabled(int item) const {
    const PopupItem& entry = kind_.items[static_cast<std::size_t>(item) - 1];
    return entry.action != nullptr && (entry.needs != Needs::kFile || File() != nullptr) &&
           (entry.needs != Needs::kPreviewPage || main_.Kumppanit().preview != nullptr);
}

void PlotWindow::ShowMenu() {
    const auto items =
        tekstit_.Items([this](int item) { return tekstit_(item) == "-" || IsItemEnabled(item); });
    NaytaNappiMenu(main_, ID, items);
}

void PlotWindow::ShowChannelList(const Tiedosto& file, int16_t axis) {
    ValikkoAkseli = axis;
    NaytaKanavaLista(main_, file);
    AsetaKanava(axis == 1 ? "x" : "y", static_cast<int16_t>(ValittuKanava + 1));
}

void PlotWindow::ToggleStatistics() {
    AvaaTaiSuljeStatistics("toggle");
}

bool PlotWindow::AvaaTaiSuljeStatistics(std::string_view what) {
    if (tilasto_.AvaaTaiSulje(what)) {
        tekstit_.Aseta(kStatisticsItem,
                       tilasto_.OnkoAuki() ? "Close statistics" : "Open statistics");
        if (!Loading) {
            PaivitaStatistiikka();
        }
    }
    return true;
}

void PlotWindow::ToggleRegionLines() {
    AlueViivat = !AlueViivat;
    SetRegionCaptions();
    Piirra();
}

void PlotWindow::ToggleOnlyHere() {
    VainTaallaLuodut = !VainTaallaLuodut;
    SetRegionCaptions();
    Piirra();
}

void PlotWindow::SetRegionCaptions() {
    const std::string region(kind_.region);
    tekstit_.Aseta(kRegionLinesItem, (AlueViivat ? "Hide " : "Show ") + region + " lines");
    tekstit_.Aseta(kOnlyHereItem, VainTaallaLuodut ? "Show all " + region + "s"
                                                   : "Show only " + region + "s created here");
}

void PlotWindow::CopyToClipboard() {
    main_.Services().clipboard.SetImage(Surface().Image());
}

void PlotWindow::CopyImage() {
    main_.Services().clipboard.Clear();
    CopyToClipboard();
    ClipSource = ID;
}

void PlotWindow::SaveImage() {
    const std::string path = KysyTallennuspaikka(
        main_.Services().dialogs, {"Save the image", std::string(kind_.imageFilter)});
    if (path.empty()) {
        return;
    }
    const std::string failure = TalletaKuva(Surface().Image(), path);
    if (!failure.empty()) {
        main_.Services().dialogs.Message(failure, "Save the image");
    }
}

void PlotWindow::InvertBackground() {
    tausta_.MustaTausta = !tausta_.MustaTausta;
    Piirra();
}

void PlotWindow::ToggleFastDraw() {
    if (nopea_.Vaihda(File()->EventCount)) {
        SetFastDrawCaption();
        Piirra();
    }
}

void PlotWindow::SetFastDrawCaption() {
    tekstit_.Aseta(kFastDrawItem, nopea_.FastDraw ? "Full draw mode" : "Fast draw mode");
}

void PlotWindow::TogglePreview() {
    AsetaPreviewissa(!Previewissa);
}

bool PlotWindow::AsetaPreviewissa(bool shown) {
    Previewissa = shown;
    tekstit_.Aseta(kPreviewItem,
                   shown ? "Don't show in print preview page" : "Show in print preview page");
    if (shown) {
        Piirra();
    } else if (PreviewPage* page = main_.Kumppanit().preview) {
        page->Piirra();
    }
    return true;
}

// Statistics: what is the same whatever is counted.

void PlotWindow::PaivitaStatistiikka() {
    const Tiedosto* file = File();
    Statistics* window = tilasto_.Ikkuna();
    if (file == nullptr || window == nullptr) {
        return;
    }
    ComputeStatistics(*file);
    window->Nayta("(" + std::to_string(ID) + ") Statistics: " + file->FileName,
                  TableOf(*file, false));
}

GridTable PlotWindow::TilastoKopio() {
    PaivitaStatistiikka();
    const Tiedosto* file = File();
    return file == nullptr ? GridTable{} : TableOf(*file, true);
}

std::optional<std::string> PlotWindow::AnnaKokoStatistiikka(std::string_view format) const {
    const Statistics* window = tilasto_.Ikkuna();
    return window == nullptr ? "" : window->AnnaKokoStatistiikka(format);
}

bool PlotWindow::LiikutaStatistiikkaLaatikkoa(std::string_view axis, int32_t place) {
    if (Statistics* window = tilasto_.Ikkuna()) {
        GridForm& form = window->Lomake();
        if (axis == "x") {
            form.SetPlace({place}, form.Top());
        } else if (axis == "y") {
            form.SetPlace(form.Left(), {place});
        }
    }
    return true;
}

}  // namespace tessarin
