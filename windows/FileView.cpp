#include "windows/FileView.h"

#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "mainwindow/PaaIkkuna.h"

namespace tessarin {

void FileView::NaytaPopulaatio(int16_t population) {
    NaytettavaPopulaatio = population;
    window_.Piirra();
}

int32_t FileView::KuvanVali() const {
    const Tiedosto* file = window_.File();
    const bool thinned = veto_ || window_.OnkoKokoMuuttumassa();
    return thinned && file != nullptr ? KoonMuutosVali(file->EventCount, nopea_.PiirtoVali)
                                      : nopea_.PiirtoVali;
}

void FileView::LatauksenJalkeen() {
    const Tiedosto* file = window_.File();
    if (Loading || file == nullptr) {
        return;
    }
    nopea_.Sovita(file->EventCount);
    window_.Main().KerroIkkunasta(window_.AnnaID());
}

void FileView::Sovita() {
    if (!Populaatiot.Holds(NaytettavaPopulaatio) || !Populaatiot(NaytettavaPopulaatio).Defined) {
        NaytettavaPopulaatio = 0;
    }
}

void FileView::AsetaPiirtoMoodi(std::string_view mode) {
    const bool fast = mode == "fast";
    if ((fast || mode == "full") && fast != nopea_.FastDraw) {
        nopea_.FastDraw = fast;
        window_.Piirra();
    }
}

void FileView::AsetaVeto(bool dragging) {
    veto_ = dragging;
}

void FileView::DrawFastMark(const PlotArea& area) const {
    if (nopea_.FastDraw) {
        PiirraNopeanMerkki(window_.Surface(), area);
    }
}

void FileView::DrawGate() const {
    if (NaytettavaPopulaatio == 0) {
        return;
    }
    constexpr std::string_view kWord = "Gate: ";
    constexpr double kTop = 2;  // of the upper margin
    Kuva& surface = window_.Surface();
    const double right = surface.Width() - TekstiMarginaali;
    const double room = Int((right - TekstiMarginaali) / kMerkinLeveys);
    const std::string text =
        Shortened(std::string(kWord) + Populaatiot(NaytettavaPopulaatio).Name, ToInt32(room));
    surface.SetCurrent(right - static_cast<double>(Length(text)) * kMerkinLeveys, kTop);
    surface.Print(text);
}

WindowMenuItem FileView::FastDrawItem() {
    return {nopea_.TarjoaTayden ? "Full draw mode" : "Fast draw mode",
            [this] {
                if (nopea_.Vaihda(window_.File()->EventCount)) {
                    window_.Piirra();
                }
            },
            window_.File() != nullptr};
}

void FileView::AddShowKey(SheetTable& keys) {
    keys.Add(Lukuavain("show", NaytettavaPopulaatio));
}

// There is no test against the limit: what was on when the sheet was saved is on again.
void FileView::AddFastDrawKey(SheetTable& keys) {
    keys.Add(Lippuavain("fastdraw.enabled", nopea_.FastDraw, [this] {
        const Tiedosto* file = window_.File();
        nopea_.Palauta(file == nullptr ? 0 : file->EventCount);
    }));
}

}  // namespace tessarin
