// Thinning: how large files are drawn from only some of their events.
#pragma once

#include <cstdint>

#include "windows/PlotArea.h"

namespace tessarin {

/// Fast draw mode of a window and the step that goes with it.
struct NopeaPiirto {
    bool FastDraw = false;
    int32_t PiirtoVali = 1;     ///< every so many events are used, from the first
    bool TarjoaTayden = false;  ///< the menu offers full draw; a tool that sets the mode leaves it

    /// A file of that many events came into the window: on above `FastDrawLimit`, else off.
    void Sovita(int32_t events);
    /// The user turns it on or off. Nothing happens, and the answer is False, when it is off and
    /// the file is not above the limit.
    bool Vaihda(int32_t events);
    /// A sheet had it on or off, whatever the limit is now; `events` is 0 without a file.
    void Palauta(int32_t events);
};

/// The step that uses about `FastDrawLimit` of that many events.
int32_t OhennusVali(int32_t events);

/// The step of a redraw while the window is being resized, for about 1000 events; `usual` for
/// files of 1000 events and fewer.
int32_t KoonMuutosVali(int32_t events, int32_t usual);

/// Tells on the plot that not all events are drawn.
void PiirraNopeanMerkki(Kuva& surface, const PlotArea& area);

}  // namespace tessarin
