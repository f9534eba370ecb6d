#include "windows/FrameWindow.h"

#include <utility>

#include "core/BusyPointer.h"
#include "core/RegionMuuttujat.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"

namespace tessarin {

FrameWindow::FrameWindow(PaaIkkuna& main, const FrameKind& kind)
    : main_(main), kind_(kind), form_(main.Services().mainForm.MakeChild(*this)), place_(*form_) {}

FrameWindow::~FrameWindow() {
    main_.UnohdaKopioitava(this);
}

const Tiedosto* FrameWindow::File() const {
    const int16_t slot = ID == 0 ? int16_t{0} : Ikkunat(ID).FileIndex;
    return Tiedostot.Holds(slot) && Tiedostot(slot).Valid ? &Tiedostot(slot) : nullptr;
}

std::string FrameWindow::AnnaOtsikko() const {
    const Tiedosto* file = kind_.fileTitle.empty() ? nullptr : File();
    return "(" + std::to_string(ID) + "): " +
           (file == nullptr ? std::string(kind_.emptyTitle)
                            : std::string(kind_.fileTitle) + file->FileName);
}

void FrameWindow::Alusta(int16_t id) {
    ID = id;
    Ikkunat(ID).Selectable = kind_.selectable;
    Ikkunat(ID).Selected = kind_.selectable;
    if (kind_.selectable && CurrentFile != 0 && Tiedostot(CurrentFile).Valid) {
        Ikkunat(ID).FileIndex = CurrentFile;
    }
    PaivitaKehysOtsikko(ID);
    AsetaAlkukoko();
    place_.FindRoom();
    if (File() != nullptr) {
        LatauksenJalkeen();
    }
    Piirra();
}

void FrameWindow::AsetaAlkukoko() {
    const RememberedSize size =
        kind_.sizeGroup.empty() ? RememberedSize() : OletusKoko(kind_.sizeGroup);
    const bool remembered = size.Leveys != 0 || size.Korkeus != 0;
    form_->SetOuterSize(remembered ? Twips{size.Leveys} : kind_.width,
                        remembered ? Twips{size.Korkeus} : kind_.height);
    LayOut(form_->ScaleWidth(), form_->ScaleHeight());
    tausta_.Paivita();
    Surface().SetBackColor(tausta_.BackColor());
    Surface().Cls();
    ready_ = true;
}

void FrameWindow::AsetaPaikka(std::string_view axis, Twips place) {
    if (axis == "x") {
        place_.SetLeft(place);
    } else if (axis == "y") {
        place_.SetTop(place);
    }
}

void FrameWindow::AsetaKoko(std::string_view axis, Twips size) {
    if (axis == "x") {
        place_.SetOuterSize(size, form_->OuterHeight());
    } else if (axis == "y") {
        place_.SetOuterSize(form_->OuterWidth(), size);
    }
}

void FrameWindow::LayOut(int width, int height) {
    Surface().SetPlace(0, 0);
    Surface().SetSize(width > 0 ? width : Surface().Width(),
                      height > 0 ? height : Surface().Height());
}

bool FrameWindow::OnkoKokoMuuttumassa() const {
    return KokoaMuutetaan == ID;
}

void FrameWindow::AsetaEle(bool running) {
    EleKaynnissa = running;
}

void FrameWindow::AsetaPaalle(bool paalla) {
    paalla_ = paalla;
    Surface().SetAutoRedraw(!paalla);
}

// Whoever asks for a redraw gets the full one; only a resize draws thinned.
void FrameWindow::Piirra() {
    if (OnkoKokoMuuttumassa()) {
        KokoaMuutetaan = 0;
    }
    Redraw();
}

void FrameWindow::Redraw() {
    if (!ready_ || !HasPicture() || (Loading && !kind_.drawsWhileLoading)) {
        return;
    }
    const BusyPointer busy;
    PaivitaKehysOtsikko(ID);
    Prepare();
    lykatty_ = LykkaaPiirto;
    if (!lykatty_) {
        Paint();
    }
    if (!EleKaynnissa && !Loading && !OnkoKokoMuuttumassa()) {
        FinishRedraw();
        if (kind_.autosaves) {
            main_.TalletaNakyma("Autosave");
        }
    }
    if (IsOnPage()) {
        main_.Kumppanit().preview->Piirra();
    }
}

void FrameWindow::PiirraLykatty() {
    if (OnkoKokoMuuttumassa()) {
        Piirra();
    }
    if (std::exchange(lykatty_, false) && HasPicture()) {
        Paint();
    }
}

// A redraw is of the picture below whatever a gesture draws above it: a drag, or the corners of a
// region that is being drawn.
void FrameWindow::Paint() {
    Surface().SetAutoRedraw(true);
    ClearSurface();
    DrawPicture(Area());
    const bool corners = RegionAloitettu && RegionIkkuna == ID;
    Surface().SetAutoRedraw(!paalla_ && !corners);
}

void FrameWindow::ClearSurface() {
    tausta_.Paivita();
    Surface().SetBackColor(tausta_.BackColor());
    Surface().SetForeColor(tausta_.ForeColor());
    Surface().Cls();
    if (const Tiedosto* file = File(); file != nullptr && IsOnPage()) {
        Surface().SetCurrent(TekstiMarginaali, 1);
        Surface().Print(file->FileName);
    }
}

bool FrameWindow::IsOnPage() {
    return main_.OnkoEsikatselu() && Page() != nullptr && Page()->OnkoPreviewissa();
}

void FrameWindow::UnloadWindow() {
    VapautaIkkuna(ID);
    main_.PaivitaKomennot();
}

void FrameWindow::Form_Activate() {
    AktivoiIkkuna(main_, ID);
}

void FrameWindow::Form_Resize(bool byUser) {
    if (!ready_) {
        return;
    }
    const PlotArea before = Area();
    LayOut(form_->ScaleWidth(), form_->ScaleHeight());
    SizeChanged(before);
    if (form_->HasOwnSize() && !kind_.sizeGroup.empty()) {
        OletusKoko(kind_.sizeGroup) = {form_->OuterWidth().count, form_->OuterHeight().count};
    }
    if (byUser && kind_.thinsWhileResized && !Loading) {
        AwaitRest();
        Redraw();
    } else {
        Piirra();
    }
}

// Another window may still wait for its full redraw, as when the main window is resized with one
// that fills it; there is room for one only.
void FrameWindow::AwaitRest() {
    constexpr int kRest = 300;  // milliseconds
    if (KokoaMuutetaan != ID) {
        if (const auto other = IkkunaPaikassa(KokoaMuutetaan)) {
            other->Piirra();
        }
    }
    KokoaMuutetaan = ID;
    if (rest_ == nullptr) {
        rest_ = main_.Services().timers.Make([this] {
            rest_->SetEnabled(false);
            PiirraLykatty();
        });
        rest_->SetInterval(kRest);
    }
    rest_->SetEnabled(false);  // counts from the start again
    rest_->SetEnabled(true);
}

void FrameWindow::Form_MouseMove() {
    main_.HiiriMuualla();
}

void FrameWindow::Form_KeyDown(const KeyEvent& key) {
    if (key.code == kKeyShift) {
        ShiftPainettu = true;
    } else if (key.code == kKeyEscape && UusiRegionPaalla) {
        main_.PeruPiirto();
    } else if (key.code == kKeyEscape && EleKaynnissa) {
        MouseLost();
    } else if (key.code == kKeyBackspace && RegionAloitettu && RegionIkkuna == ID) {
        DropLastCorner();
    } else {
        KeyPressed(key);
    }
}

// The first corner can go too; the region stays armed then.
void FrameWindow::DropLastCorner() {
    --KulmienMaara;
    RegionAloitettu = KulmienMaara > 0;
    Surface().SetAutoRedraw(false);
    Surface().Cls();
    Surface().SetAutoRedraw(!RegionAloitettu);
    Moved(mouse_);
}

void FrameWindow::Form_KeyUp(const KeyEvent& /*key*/) {
    ShiftPainettu = false;
}

void FrameWindow::Form_QueryUnload() {
    const auto alive = Ikkunat(ID).Window;  // until this call returns
    UnloadWindow();
}

// The mouse: which press means what, in the order in which they are tried.

void FrameWindow::Kuva_MouseDown(const MouseEvent& mouse) {
    // A menu lets events run while it is open, and with them the closing of this window.
    const auto alive = Ikkunat(ID).Window;
    ValikkoAkseli = 0;
    if (UusiRegionPaalla) {
        PressArmed(mouse);
    } else if (EleKaynnissa) {
        return;  // a drag is under way with the other button
    } else if (mouse.button == MouseButton::kRight) {
        PressRight({mouse.x, mouse.y});
    } else if (mouse.button == MouseButton::kLeft) {
        PressLeft(mouse);
    }
}

void FrameWindow::Kuva_MouseMove(const MouseEvent& mouse) {
    main_.HiiriMuualla();
    if (OnkoKokoMuuttumassa()) {
        Piirra();
    }
    mouse_ = mouse;
    Moved(mouse);
}

void FrameWindow::Kuva_MouseUp(const MouseEvent& mouse) {
    Released({mouse.x, mouse.y});
}

void FrameWindow::Kuva_MouseLost() {
    MouseLost();
}

}  // namespace tessarin
