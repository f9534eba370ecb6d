#include "plots/FastDraw.h"

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
    PiirtoVali = FastDraw ? OhennusVali(events) : 1;
}

bool NopeaPiirto::Vaihda(int32_t events) {
    if (FastDraw) {
        FastDraw = false;
        PiirtoVali = 1;
        return true;
    }
    if (events <= FastDrawLimit) {
        return false;
    }
    Sovita(events);
    return true;
}

void PiirraNopeanMerkki(Kuva& surface, const PlotArea& area) {
    constexpr int kTextWidth = 98;  // 14 characters
    surface.SetCurrent(area.Right() - kTextWidth, area.Top());
    surface.Print("FAST DRAW MODE");
}

}  // namespace tessarin
