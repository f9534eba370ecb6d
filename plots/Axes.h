// Axis lines, ticks and titles, shared by all plots of one or two channels.
#pragma once

#include <string_view>
#include <vector>

#include "core/Tiedosto.h"
#include "windows/PlotArea.h"

namespace tessarin {

/// The places of a channel's ticks along an axis of that length in pixels, from its foot. A
/// linear channel has one at every step of a power of ten, a log channel at every k * 10^d up to
/// the end of the axis. A channel whose range gives no scale has none.
std::vector<double> TikkienPaikat(const Kanava& channel, double length);

/// The left and the bottom edge of the plot area.
void PiirraAkselit(Kuva& surface, const PlotArea& area, Rgb color);
void PiirraXTikit(Kuva& surface, const PlotArea& area, const Kanava& channel, Rgb color);
void PiirraYTikit(Kuva& surface, const PlotArea& area, const Kanava& channel, Rgb color);

/// The lines and the ticks of a plot of two channels.
void PiirraAkselisto(Kuva& surface, const PlotArea& area, const Kanava& x, const Kanava& y,
                     Rgb color);

/// Channel name centred under the x axis.
void PiirraXOtsikko(Kuva& surface, const PlotArea& area, std::string_view name);
/// Channel name centred along the y axis, running upwards.
void PiirraYOtsikko(Kuva& surface, const PlotArea& area, std::string_view name);
/// The top of a count axis at its upper end, running upwards. `text` starts with a blank.
void PiirraYSkaala(Kuva& surface, const PlotArea& area, std::string_view text);

}  // namespace tessarin
