// The events of a plot as dots.
#pragma once

#include <cstdint>
#include <functional>
#include <span>

#include "core/Tiedosto.h"
#include "plots/EventPlacer.h"
#include "plots/UsedEvents.h"
#include "windows/PlotArea.h"

namespace tessarin {

/// Which events stand where in a plot of two channels.
struct PlotData {
    const Tiedosto& file;
    int16_t KanavaX = 1;  ///< both 1..file.ChannelCount
    int16_t KanavaY = 2;
    int16_t gate = 0;        ///< population slot, 0 for all events
    int32_t PiirtoVali = 1;  ///< every so many events only

    EventChoice Events() const { return {file, gate, PiirtoVali}; }
};

struct DotStyle {
    int PisteenKoko = 1;   ///< 1 or 2 pixels
    bool MoniVari = true;  ///< colour by population
    Rgb color;             ///< of dots that no population colours
};

/// Gives each of the events its colour, as `Rgb::Pixel` gives it.
using DotColours = std::function<void(std::span<const int32_t> events, std::span<uint32_t> pixels)>;

/// Draws each of the chosen events at its place, later events over earlier ones, as dots of `size`
/// pixels.
void PiirraTapahtumat(Kuva& surface, const PlaneFrame& plane, const EventChoice& choice,
                      const EventPlacer& placer, const DotColours& colours, int size);

/// The same in a plot of two channels, coloured by the populations that events belong to.
void PiirraPisteet(Kuva& surface, const PlotArea& area, const PlotData& data,
                   const DotStyle& style);

}  // namespace tessarin
