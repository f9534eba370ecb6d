#include "plots/DotPlot.h"

#include <algorithm>

#include "core/BusyPointer.h"
#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "core/RegionMuuttujat.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"
#include "plots/Axes.h"

namespace tessarin {
namespace {

constexpr int32_t kFirstSize = 4000;  // twips of a new window when no size is remembered

std::string Title(int16_t id, const std::string& file) {
    return "(" + std::to_string(id) + "): Dot Plot - " + file;
}

}  // namespace

DotPlot::DotPlot(PaaIkkuna& main)
    : main_(main),
      form_(main.Services().mainForm.MakeChild(*this)),
      tekstit_(CaptionsAtStart()),
      tilasto_(main, *this) {}

DotPlot::~DotPlot() {
    main_.UnohdaKopioitava(this);
}

const Tiedosto* DotPlot::File() const {
    const int16_t slot = ID == 0 ? int16_t{0} : Ikkunat(ID).FileIndex;
    return Tiedostot.Holds(slot) && Tiedostot(slot).Valid ? &Tiedostot(slot) : nullptr;
}

void DotPlot::Alusta(int16_t id) {
    ID = id;
    Otsikko = Title(ID, "No File");
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

void DotPlot::AsetaKoko() {
    const bool remembered = OletusKoko.Leveys != 0 || OletusKoko.Korkeus != 0;
    form_->SetOuterSize({remembered ? OletusKoko.Leveys : kFirstSize},
                        {remembered ? OletusKoko.Korkeus : kFirstSize});
    Surface().SetPlace(0, 0);
    Surface().SetSize(form_->ScaleWidth(), form_->ScaleHeight());
    tausta_.Paivita();
    Surface().SetBackColor(tausta_.BackColor());
    Surface().Cls();
    ready_ = true;
}

void DotPlot::LatauksenJalkeen() {
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

bool DotPlot::IsBeingResized() const {
    return KokoaMuutetaan == ID;
}

void DotPlot::Piirra() {
    const Tiedosto* file = File();
    if (file == nullptr || Loading) {
        return;
    }
    const BusyPointer busy;
    // A redraw is of the picture below whatever a gesture draws above it.
    Surface().SetAutoRedraw(true);
    const PlotArea area(Surface());
    ReplaceMissingChannels(*file);
    UpdateTitle(*file);
    ClearSurface(*file, area);
    DrawAxes(*file, area);
    DropUndefinedGate();
    DrawEvents(*file, area);
    DrawRegions(area);
    DrawTitles(*file, area);
    if (kvadrantti_.KvadranttiKaytossa && !kvadrantti_.KvadranttiLiikkuu) {
        kvadrantti_.Piirra(Surface(), area, tausta_.Line());
    }
    FinishDrawing();
}

// A channel left over from a file with more of them falls back to one that is there.
void DotPlot::ReplaceMissingChannels(const Tiedosto& file) {
    const int16_t channels = file.ChannelCount;
    if (KanavaX < 1 || KanavaX > channels) {
        KanavaX = 1;
    }
    if (KanavaY < 1 || KanavaY > channels) {
        KanavaY = std::min<int16_t>(2, channels);
    }
}

void DotPlot::UpdateTitle(const Tiedosto& file) {
    Otsikko = Title(ID, file.FileName);
    PaivitaKehysOtsikko(ID);
}

void DotPlot::ClearSurface(const Tiedosto& file, const PlotArea& area) {
    tausta_.Paivita();
    Surface().SetBackColor(tausta_.BackColor());
    Surface().SetForeColor(tausta_.ForeColor());
    Surface().Cls();
    if (Previewissa && main_.OnkoEsikatselu()) {
        Surface().SetCurrent(area.Left(), 1);
        Surface().Print(file.FileName);
    }
}

void DotPlot::DrawAxes(const Tiedosto& file, const PlotArea& area) {
    PiirraAkselit(Surface(), area, tausta_.Line());
    PiirraXTikit(Surface(), area, file.Channels(KanavaX), tausta_.Line());
    PiirraYTikit(Surface(), area, file.Channels(KanavaY), tausta_.Line());
}

void DotPlot::DropUndefinedGate() {
    if (!Populaatiot.Holds(NaytettavaPopulaatio) || !Populaatiot(NaytettavaPopulaatio).Defined) {
        NaytettavaPopulaatio = 0;
    }
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

void DotPlot::DrawTitles(const Tiedosto& file, const PlotArea& area) {
    if (nopea_.FastDraw) {
        PiirraNopeanMerkki(Surface(), area);
    }
    PiirraXOtsikko(Surface(), area, file.Channels(KanavaX).Name);
    PiirraYOtsikko(Surface(), area, file.Channels(KanavaY).Name);
}

void DotPlot::FinishDrawing() {
    Surface().SetAutoRedraw(!ele_.OnkoPaalla());
    if (!EleKaynnissa && !IsBeingResized()) {
        PaivitaStatistiikka();
        main_.TalletaNakyma("Autosave");
    }
    if (Previewissa && main_.OnkoEsikatselu()) {
        main_.Kumppanit().preview->Piirra();
    }
}

void DotPlot::CopyToClipboard() {
    main_.Services().clipboard.SetImage(Surface().Image());
}

void DotPlot::UnloadWindow() {
    ele_.Unohda();
    tilasto_.AvaaTaiSulje("close");
    VapautaIkkuna(ID);
}

bool DotPlot::NaytaPopulaatio(int16_t population) {
    NaytettavaPopulaatio = population;
    Piirra();
    return true;
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

bool DotPlot::AsetaPiirtoMoodi(std::string_view mode) {
    const bool fast = mode == "fast";
    if ((fast || mode == "full") && fast != nopea_.FastDraw) {
        nopea_.FastDraw = fast;
        Piirra();
    }
    return true;
}

bool DotPlot::AsetaStatPreviewissa(bool shown) {
    StatPreviewissa = shown;
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

void DotPlot::Form_Activate() {
    AktivoiIkkuna(main_, ID);
}

void DotPlot::Form_Resize() {
    if (!ready_) {
        return;
    }
    const int width = form_->ScaleWidth();
    const int height = form_->ScaleHeight();
    const PlotArea before(Surface());
    Surface().SetSize(width > 0 ? width : Surface().Width(),
                      height > 0 ? height : Surface().Height());
    ele_.KokoMuuttui(before);
    if (form_->HasOwnSize()) {
        OletusKoko = {form_->OuterWidth().count, form_->OuterHeight().count};
    }
    KokoaMuutetaan = ID;
    Piirra();
}

void DotPlot::Form_KeyDown(int keyCode) {
    if (keyCode == kKeyShift) {
        ShiftPainettu = true;
    }
}

void DotPlot::Form_KeyUp(int /*keyCode*/) {
    ShiftPainettu = false;
}

void DotPlot::Form_QueryUnload() {
    const auto alive = Ikkunat(ID).Window;  // until this call returns
    UnloadWindow();
}

}  // namespace tessarin
