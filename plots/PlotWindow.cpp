#include "plots/PlotWindow.h"

#include <utility>

#include "core/BusyPointer.h"
#include "core/RegionMuuttujat.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"

namespace tessarin {
namespace {

constexpr int32_t kFirstSize = 4000;  // twips of a new window when no size is remembered

}  // namespace

PlotWindow::PlotWindow(PaaIkkuna& main, const PlotKind& kind)
    : main_(main),
      tilasto_(main, *this),
      kind_(kind),
      form_(main.Services().mainForm.MakeChild(*this)) {
    for (const PopupItem& item : kind_.items) {
        tekstit_.Lisaa(item.caption);
    }
}

PlotWindow::~PlotWindow() {
    main_.UnohdaKopioitava(this);
}

const Tiedosto* PlotWindow::File() const {
    const int16_t slot = ID == 0 ? int16_t{0} : Ikkunat(ID).FileIndex;
    return Tiedostot.Holds(slot) && Tiedostot(slot).Valid ? &Tiedostot(slot) : nullptr;
}

std::string PlotWindow::Title(std::string_view file) const {
    return "(" + std::to_string(ID) + "): " + std::string(kind_.title) + " - " + std::string(file);
}

void PlotWindow::Alusta(int16_t id) {
    ID = id;
    Otsikko = Title("No File");
    Ikkunat(ID).Selectable = true;
    Ikkunat(ID).Selected = true;
    PaivitaKehysOtsikko(ID);
    AsetaKoko();
    if (CurrentFile != 0 && Tiedostot(CurrentFile).Valid) {
        Ikkunat(ID).FileIndex = CurrentFile;
        LatauksenJalkeen();
        Piirra();
    }
}

void PlotWindow::AsetaKoko() {
    const RememberedSize& size = kind_.size;
    const bool remembered = size.Leveys != 0 || size.Korkeus != 0;
    form_->SetOuterSize({remembered ? size.Leveys : kFirstSize},
                        {remembered ? size.Korkeus : kFirstSize});
    Surface().SetPlace(0, 0);
    Surface().SetSize(form_->ScaleWidth(), form_->ScaleHeight());
    tausta_.Paivita();
    Surface().SetBackColor(tausta_.BackColor());
    Surface().Cls();
    ready_ = true;
}

void PlotWindow::LatauksenJalkeen() {
    const Tiedosto* file = File();
    if (Loading || file == nullptr) {
        return;
    }
    nopea_.Sovita(file->EventCount);
    SetFastDrawCaption();
    if (FileInfoView* info = main_.Kumppanit().fileInfo) {
        info->AsetaLista(ID);
    }
}

bool PlotWindow::IsBeingResized() const {
    return KokoaMuutetaan == ID;
}

void PlotWindow::Piirra() {
    const Tiedosto* file = File();
    if (file == nullptr || (Loading && !DrawsWhileLoading())) {
        return;
    }
    const BusyPointer busy;
    ReplaceMissingChannels(*file);
    Otsikko = Title(file->FileName);
    PaivitaKehysOtsikko(ID);
    DropUndefinedGate();
    CountEvents(*file);
    lykatty_ = LykkaaPiirto;
    if (!lykatty_) {
        DrawPicture(*file);
    }
    FinishDrawing();
}

void PlotWindow::PiirraLykatty() {
    const Tiedosto* file = File();
    if (std::exchange(lykatty_, false) && file != nullptr) {
        DrawPicture(*file);
    }
}

void PlotWindow::DrawPicture(const Tiedosto& file) {
    // A redraw is of the picture below whatever a gesture draws above it.
    Surface().SetAutoRedraw(true);
    const PlotArea area(Surface());
    ClearSurface(file, area);
    DrawPlot(file, area);
}

void PlotWindow::ClearSurface(const Tiedosto& file, const PlotArea& area) {
    tausta_.Paivita();
    Surface().SetBackColor(tausta_.BackColor());
    Surface().SetForeColor(tausta_.ForeColor());
    Surface().Cls();
    if (Previewissa && main_.OnkoEsikatselu()) {
        Surface().SetCurrent(area.Left(), 1);
        Surface().Print(file.FileName);
    }
}

void PlotWindow::DropUndefinedGate() {
    if (!Populaatiot.Holds(NaytettavaPopulaatio) || !Populaatiot(NaytettavaPopulaatio).Defined) {
        NaytettavaPopulaatio = 0;
    }
}

void PlotWindow::DrawFastMark(const PlotArea& area) {
    if (nopea_.FastDraw) {
        PiirraNopeanMerkki(Surface(), area);
    }
}

void PlotWindow::FinishDrawing() {
    Surface().SetAutoRedraw(!Ele().OnkoPaalla());
    if (!EleKaynnissa && !Loading && !IsBeingResized()) {
        PaivitaStatistiikka();
        RedrawFollowers();
        main_.TalletaNakyma("Autosave");
    }
    if (Previewissa && main_.OnkoEsikatselu()) {
        main_.Kumppanit().preview->Piirra();
    }
}

void PlotWindow::UnloadWindow() {
    Ele().Unohda();
    tilasto_.AvaaTaiSulje("close");
    VapautaIkkuna(ID);
}

bool PlotWindow::NaytaPopulaatio(int16_t population) {
    NaytettavaPopulaatio = population;
    Piirra();
    return true;
}

bool PlotWindow::AsetaPiirtoMoodi(std::string_view mode) {
    const bool fast = mode == "fast";
    if ((fast || mode == "full") && fast != nopea_.FastDraw) {
        nopea_.FastDraw = fast;
        Piirra();
    }
    return true;
}

bool PlotWindow::AsetaStatPreviewissa(bool shown) {
    StatPreviewissa = shown;
    return true;
}

void PlotWindow::Form_Activate() {
    AktivoiIkkuna(main_, ID);
}

void PlotWindow::Form_Resize() {
    if (!ready_) {
        return;
    }
    const int width = form_->ScaleWidth();
    const int height = form_->ScaleHeight();
    const PlotArea before(Surface());
    Surface().SetSize(width > 0 ? width : Surface().Width(),
                      height > 0 ? height : Surface().Height());
    Ele().KokoMuuttui(before);
    if (form_->HasOwnSize()) {
        kind_.size = {form_->OuterWidth().count, form_->OuterHeight().count};
    }
    if (ThinsWhileResized() && !Loading) {
        KokoaMuutetaan = ID;
    }
    Piirra();
}

void PlotWindow::Form_KeyDown(int keyCode) {
    if (keyCode == kKeyShift) {
        ShiftPainettu = true;
    }
}

void PlotWindow::Form_KeyUp(int /*keyCode*/) {
    ShiftPainettu = false;
}

void PlotWindow::Form_QueryUnload() {
    const auto alive = Ikkunat(ID).Window;  // until this call returns
    UnloadWindow();
}

// The mouse: which press means what, in the order in which they are tried.

void PlotWindow::Kuva_MouseDown(const MouseEvent& mouse) {
    // A menu lets events run while it is open, and with them the closing of this window.
    const auto alive = Ikkunat(ID).Window;
    ValikkoAkseli = 0;
    const PixelPoint place{mouse.x, mouse.y};
    if (UusiRegionPaalla) {
        if (File() != nullptr) {
            Ele().Piirra(mouse.button, place);
        }
    } else if (EleKaynnissa) {
        return;  // a drag is under way with the other button
    } else if (mouse.button == MouseButton::kRight) {
        PressRight(place);
    } else if (mouse.button == MouseButton::kLeft && File() != nullptr) {
        PressLeft(place);
    }
}

void PlotWindow::PressRight(PixelPoint mouse) {
    const int16_t axis = AxisAt(PlotArea(Surface()), mouse);
    if (axis == 0) {
        ShowMenu();
    } else if (const Tiedosto* file = File()) {
        ShowChannelList(*file, axis);
    }
}

bool PlotWindow::IsUnderXAxis(const PlotArea& area, PixelPoint mouse) {
    return mouse.x > area.Left() && mouse.x < area.W() && mouse.y > area.Bottom() &&
           mouse.y < area.H();
}

void PlotWindow::PressLeft(PixelPoint mouse) {
    if (AlueViivat) {
        Ele().Tartu(mouse);
    }
}

void PlotWindow::Kuva_MouseMove(const MouseEvent& mouse) {
    main_.HiiriMuualla();
    if (IsBeingResized()) {
        KokoaMuutetaan = 0;
        Piirra();
    }
    Surface().SetMousePointer(UusiRegionPaalla ? MousePointer::kCrosshair : MousePointer::kNormal);
    const PixelPoint place{mouse.x, mouse.y};
    if (Ele().OnkoPaalla()) {
        Ele().Liiku(place);
    } else if (!UusiRegionPaalla && AlueViivat && File() != nullptr) {
        Ele().Korosta(place);
    }
}

void PlotWindow::Kuva_MouseUp(const MouseEvent& mouse) {
    Ele().Paasta({mouse.x, mouse.y});
}

void PlotWindow::Kuva_MouseLost() {
    Ele().Keskeyta();
}

void PlotWindow::PiirraKaikkiIkkunat() {
    main_.PiirraKaikki();
}

int16_t PlotWindow::UudenRegioninPaikka() const {
    return main_.Paneeli().ValittuPopulaatio();
}

}  // namespace tessarin
