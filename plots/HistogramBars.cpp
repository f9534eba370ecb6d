#include "plots/HistogramBars.h"

#include <algorithm>
#include <vector>

#include "core/Numbers.h"

namespace tessarin {
namespace {

Rgb Darker(Rgb color) {
    constexpr int kLess = 80;
    const auto less = [](uint8_t part) { return static_cast<uint8_t>(std::max(0, part - kLess)); };
    return {less(color.red), less(color.green), less(color.blue)};
}

// `Reunaviiva` means outline: y of the highest bar on each pixel column, 0 where there is none.
void DrawOutline(Kuva& surface, const PlotArea& area, std::span<const double> Reunaviiva,
                 Rgb color) {
    for (std::size_t c = 1; c + 1 < Reunaviiva.size(); ++c) {
        const double x = area.Left() + static_cast<double>(c);
        surface.Line(x, Reunaviiva[c], x + 1, Reunaviiva[c + 1], color);
    }
}

}  // namespace

void PiirraPylvaat(Kuva& surface, const PlotArea& area, std::span<const double> histo,
                   const BarLook& look) {
    const double length = area.XLength();
    if (length <= 0 || histo.size() < 2) {
        return;
    }
    const auto resolution = static_cast<double>(histo.size() - 1);
    const double k = area.YLength() / static_cast<double>(look.Korkein);
    std::vector<double> Reunaviiva(static_cast<std::size_t>(length) + 1);
    for (std::size_t i = 1; i < histo.size(); ++i) {
        const double x = Int(area.Left() + length * static_cast<double>(i) / resolution);
        const double y = std::max(area.Top(), Int(area.Bottom() - k * histo[i]));
        surface.Line(x, area.Bottom(), x, y, look.Tayttovari);
        double& top = Reunaviiva[static_cast<std::size_t>(x - area.Left())];
        top = top == 0 ? y : std::min(top, y);
    }
    if (look.Reunus && length < resolution) {
        DrawOutline(surface, area, Reunaviiva, Darker(look.Tayttovari));
    }
}

}  // namespace tessarin
