// The events of a plot as dots, coloured by the populations that they belong to.
#pragma once

#include <cstdint>

#include "core/Tiedosto.h"
#include "plots/PlotArea.h"
#include "plots/UsedEvents.h"

namespace tessarin {

/// Which events stand where, and how they look.
struct PlotData {
    const Tiedosto& file;
    int16_t KanavaX = 1;  ///< both 1..file.ChannelCount
    int16_t KanavaY = 2;
    int16_t gate = 0;        ///< population slot, 0 for all events
    int32_t PiirtoVali = 1;  ///< every so many events only
};

struct DotLook {
    int PisteenKoko = 1;   ///< 1 or 2 pixels
    bool MoniVari = true;  ///< colour by population
    Rgb color;             ///< of dots that no population colours
};

/// Draws each used event at its place, later events over earlier ones. With `MoniVari` an event
/// takes the colour of the highest slot that holds it, is defined and is not transparent.
void PiirraPisteet(Kuva& surface, const PlotArea& area, const PlotData& data, const DotLook& look);

}  // namespace tessarin
