#include "windows/FastDraw.h"

#include "core/Muuttujat.h"

namespace tessarin {

int32_t OhennusVali(int32_t events) {
    return events / FastDrawLimit + 1;
}

int32_t KoonMuutosVali(int32_t events, int32_t usual) {
    constexpr int32_t kEventsWhileResizing = 1000;
    return events > kEventsWhileResizing ? events / kEventsWhileResizing : usual;
}

void NopeaPiirto::Sovita(int32_t events) {
    FastDraw = events > FastDrawLimit;
    Palauta(events);
}

void NopeaPiirto::Palauta(int32_t events) {
    PiirtoVali = FastDraw ? OhennusVali(events) : 1;
    TarjoaTayden = FastDraw;
}

bool NopeaPiirto::Vaihda(int32_t events) {
    if (!FastDraw && events <= FastDrawLimit) {
        return false;
    }
    FastDraw = !FastDraw;
    Palauta(events);
    return true;
}

void PiirraNopeanMerkki(Kuva& surface, const PlotArea& area) {
    constexpr int kTextWidth = 98;  // 14 characters
    surface.SetCurrent(area.W() - TekstiMarginaali - kTextWidth, TekstiMarginaali);
    surface.Print("FAST DRAW MODE");
}

}  // namespace tessarin
