#include "plots/DotPlot.h"

#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/SaveQuestion.h"
#include "plots/Axes.h"
#include "plots/EventText.h"
#include "plots/PolygonMembership.h"
#include "windows/PolygonGesture.h"
#include "windows/RegionOutlines.h"

namespace tessarin {
namespace {

constexpr FrameKind kFrame{
    .emptyTitle = "Dot Plot - No File", .fileTitle = "Dot Plot - ", .sizeGroup = "DotPlot"};

constexpr RegionKind kPolygons{"Poly-", "region"};

}  // namespace

DotPlot::DotPlot(PaaIkkuna& main)
    : FrameWindow(main, kFrame),
      regions_(RegionPart::Make<MonikulmioEle>(*this, *this, kPolygons)) {}

void DotPlot::UnloadWindow() {
    regions_->Unohda();
    statistics_.Sulje();
    FrameWindow::UnloadWindow();
}

// What is drawn.

void DotPlot::Prepare() {
    axes_.Sovita(*File());
    view_.Sovita();
}

PlotData DotPlot::UsedData(const Tiedosto& file, int32_t step) const {
    return {file, axes_(1), axes_(2), view_.Portti(), step};
}

void DotPlot::DrawPicture(const PlotArea& area) {
    const Tiedosto& file = *File();
    const Rgb line = Background().Line();
    PiirraAkselisto(Surface(), area, file.Channels(axes_(1)), file.Channels(axes_(2)), line);
    density_.Piirra(area, UsedData(file, view_.KuvanVali()));
    if (regions_->OnkoViivat()) {
        PiirraAluerajat(Surface(), area, regions_->Nakyma(), line);
        PiirraAlueidenNimet(Surface(), area, regions_->Nakyma(), Background().BackColor());
    }
    view_.DrawFastMark(area);
    view_.DrawGate();
    PiirraXOtsikko(Surface(), area, file.Channels(axes_(1)).Name);
    PiirraYOtsikko(Surface(), area, file.Channels(axes_(2)).Name);
    quadrant_.Piirra(area);
}

void DotPlot::RegionMuuttui(int16_t slot) {
    TarkistaMonikulmio(slot);
}

// The mouse: the quadrant cross comes before the regions.

void DotPlot::PressRight(PixelPoint mouse) {
    if (OnkoYAkselilla(Area(), mouse)) {
        axes_.Valitse(2);
    } else if (OnkoXAkselilla(Area(), mouse)) {
        axes_.Valitse(1);
    } else {
        ShowMenu();
    }
}

void DotPlot::PressLeft(const MouseEvent& mouse) {
    const PixelPoint place{mouse.x, mouse.y};
    if (File() != nullptr && !quadrant_.Tartu(Area(), place)) {
        regions_->Tartu(place);
    }
}

void DotPlot::Moved(const MouseEvent& mouse) {
    const PixelPoint place{mouse.x, mouse.y};
    if (!quadrant_.Liiku(Area(), place)) {
        regions_->Liiku(place);
    }
}

void DotPlot::Released(PixelPoint mouse) {
    if (!quadrant_.Paasta(Area(), mouse)) {
        regions_->Paasta(mouse);
    }
}

void DotPlot::MouseLost() {
    if (quadrant_.Risti().KvadranttiLiikkuu) {
        quadrant_.Keskeyta();
    } else {
        regions_->Keskeyta();
    }
}

// The pop-up menu.

std::vector<WindowMenuItem> DotPlot::Items() {
    return {statistics_.Item(),
            quadrant_.Item(),
            density_.Item(),
            Erotin(),
            regions_->LinesItem(),
            regions_->OnlyHereItem(),
            dots_.ColoursItem(),
            Erotin(),
            CopyItem("Copy to clipboard (CTRL-C)"),
            SaveImageItem("Save as .BMP..."),
            Erotin(),
            InvertItem(),
            dots_.SizeItem(),
            view_.FastDrawItem(),
            Erotin(),
            {"Save data as .TXT...", [this] { SaveData(); }, File() != nullptr},
            Erotin(),
            page_.Item()};
}

void DotPlot::SaveData() {
    const std::string path = KysyTallennuspaikka(
        Main().Services().dialogs, {.title = "Save the data",
                                    .filter = "TXT files (tab delimited) (*.TXT)|*.txt",
                                    .folder = File()->Folder});
    if (path.empty()) {
        return;
    }
    const std::string failure = TalletaTapahtumat(UsedData(*File(), 1), path);
    if (!failure.empty()) {
        Main().Services().dialogs.Message(failure, "Save the data");
    }
}

// The settings.

void DotPlot::AddKeys(SheetTable& keys) {
    AddPlaceKeys(keys);
    AddSizeKeys(keys);
    AddFileKey(keys);
    axes_.AddKeys(keys);
    view_.AddShowKey(keys);
    quadrant_.AddKeys(keys);
    density_.AddKeys(keys);
    regions_->AddKeys(keys);
    view_.AddFastDrawKey(keys);
    AddBackgroundKey(keys);
    dots_.AddColoursKey(keys);
    dots_.AddSizeKey(keys);
    page_.AddWindowKey(keys);
    page_.AddStatisticsKey(keys);
    constexpr int kItems = 10;
    statistics_.AddKeys(keys, kItems);
}

void DotPlot::TakeBackground(uint8_t shade) {
    Background().Harmaa = shade;
    Background().MustaTausta = shade != 0;
}

}  // namespace tessarin
