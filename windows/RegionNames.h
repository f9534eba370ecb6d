// Names of regions on a plot: where they are printed, picked up and put down.
#pragma once

#include "core/Populaatio.h"
#include "windows/PlotArea.h"

namespace tessarin {

/// How far the box of a name reaches above and below the name's place, in pixels; its width is
/// that of the text, with the place in its middle.
struct NameBox {
    double above = 0;
    double below = 0;
};

/// Half the width of a region's name, in pixels.
double NimenPuolileveys(const Populaatio& region);

/// Where a region's name is printed: the upper left corner of its text, which is also its
/// handle. Reads the base that drawing the names left in the record.
PixelPoint NimenPaikka(const PlotArea& area, const Populaatio& region, NameBox box);

/// Prints the name, on a ground of that colour so that it can be read on a cloud of any colour.
void PiirraNimi(Kuva& surface, const PlotArea& area, const Populaatio& region, NameBox box,
                Rgb ground);

/// Whether the mouse is over the name or next to it: more than the handle to take hold of.
bool OnkoNimenLahella(const PlotArea& area, const Populaatio& region, NameBox box,
                      PixelPoint mouse);

/// The name's upper left corner is put down at the mouse.
void PudotaNimi(Populaatio& region, const PlotArea& area, NameBox box, PixelPoint mouse);

}  // namespace tessarin
