#include "plots/Axes.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "core/Numbers.h"
#include "core/Projektio.h"
#include "core/Text.h"

namespace tessarin {
namespace {

std::vector<double> LinearTicks(int32_t range, double length) {
    const auto digits = static_cast<double>(std::to_string(range).size());
    const double step = std::pow(10.0, digits - 2);
    const auto count = static_cast<int>(Int(range / step));
    std::vector<double> places;
    for (int i = 0; i <= count; ++i) {
        places.push_back(i * step / range * length);
    }
    return places;
}

std::vector<double> LogTicks(int32_t range, double length) {
    std::vector<double> places;
    for (int64_t decade = 1; decade * 10 <= std::numeric_limits<int32_t>::max(); decade *= 10) {
        for (int64_t k = 1; k <= 10; ++k) {
            const double place = AnnaLogPaikka(static_cast<int32_t>(k * decade), range, length);
            if (place > length) {
                return places;
            }
            places.push_back(place);
        }
    }
    return places;
}

double TextWidth(std::string_view text) {
    return static_cast<double>(Length(text)) * kMerkinLeveys;
}

// Beside the y axis, from `y` upwards.
void PrintUpwards(Kuva& surface, const PlotArea& area, double y, std::string_view text) {
    constexpr int kRotatedHeight = 12;
    constexpr int kUpwards = 900;  // tenths of a degree
    surface.SetCurrent(area.Left() - kRotatedHeight - TikinPituus, y);
    surface.AsetaKierrettyFontti(kUpwards);
    surface.Print(text);
    surface.PalautaFontti();
}

}  // namespace

std::vector<double> TikkienPaikat(const Kanava& channel, double length) {
    if (channel.Range < (channel.IsLog ? 2 : 1)) {
        return {};
    }
    return channel.IsLog ? LogTicks(channel.Range, length) : LinearTicks(channel.Range, length);
}

void PiirraAkselit(Kuva& surface, const PlotArea& area, Rgb color) {
    surface.Line(area.Left(), area.Top(), area.Left(), area.Bottom(), color);
    surface.Line(area.Left(), area.Bottom(), area.Right(), area.Bottom(), color);
}

void PiirraXTikit(Kuva& surface, const PlotArea& area, const Kanava& channel, Rgb color) {
    for (const double place : TikkienPaikat(channel, area.XLength())) {
        const double x = area.Left() + place;
        surface.Line(x, area.Bottom(), x, area.Bottom() + TikinPituus, color);
    }
}

void PiirraYTikit(Kuva& surface, const PlotArea& area, const Kanava& channel, Rgb color) {
    for (const double place : TikkienPaikat(channel, area.YLength())) {
        const double y = area.Bottom() - place;
        surface.Line(area.Left(), y, area.Left() - TikinPituus, y, color);
    }
}

void PiirraAkselisto(Kuva& surface, const PlotArea& area, const Kanava& x, const Kanava& y,
                     Rgb color) {
    PiirraAkselit(surface, area, color);
    PiirraXTikit(surface, area, x, color);
    PiirraYTikit(surface, area, y, color);
}

void PiirraXOtsikko(Kuva& surface, const PlotArea& area, std::string_view name) {
    surface.SetCurrent(area.W() / 2 - TextWidth(name) / 2, area.Bottom() + TikinPituus);
    surface.Print(name);
}

void PiirraYOtsikko(Kuva& surface, const PlotArea& area, std::string_view name) {
    PrintUpwards(surface, area, area.H() / 2 + TextWidth(name) / 2, name);
}

void PiirraYSkaala(Kuva& surface, const PlotArea& area, std::string_view text) {
    PrintUpwards(surface, area, area.Top() + TextWidth(text), text);
}

}  // namespace tessarin
