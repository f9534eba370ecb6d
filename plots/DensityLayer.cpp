#include "plots/DensityLayer.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/Numbers.h"
#include "core/Projektio.h"

namespace tessarin {
namespace {

constexpr int kLightest = 18;  // events from which a cell is white

int Cell(double place, int resolution) {
    return ToInt32(
        std::clamp(Int(place), -1.0 * TiheysKuva::kSlack, 1.0 * resolution + TiheysKuva::kSlack));
}

// How large a cell is painted, in pixels; both corners of its rectangle are included.
Blocks CellSize(const PlotArea& area, double resolution) {
    Blocks blocks;
    if (resolution <= area.XLength() || resolution <= area.YLength()) {
        blocks.width = 1 + ToInt32(Int(std::max(0.0, area.XLength()) / resolution));
        blocks.height = 1 + ToInt32(Int(std::max(0.0, area.YLength()) / resolution));
    }
    return blocks;
}

const std::array<uint32_t, kLightest + 1>& ShadePixels() {
    static const auto pixels = [] {
        std::array<uint32_t, kLightest + 1> made{};
        for (int32_t count = 0; count <= kLightest; ++count) {
            made[static_cast<std::size_t>(count)] = Grey(TiheysKuva::Shade(count)).Pixel();
        }
        return made;
    }();
    return pixels;
}

}  // namespace

uint8_t TiheysKuva::Shade(int32_t count) {
    return static_cast<uint8_t>(std::min(255.0, Rounded(200 * std::log10(count + 1.0))));
}

std::size_t TiheysKuva::Place(int ix, int iy) const {
    return static_cast<std::size_t>(iy + kSlack) * static_cast<std::size_t>(side_) +
           static_cast<std::size_t>(ix + kSlack);
}

void TiheysKuva::Piirra(Kuva& surface, const PlotArea& area, const PlotData& data,
                        int16_t resolution) {
    side_ = resolution + 2 * kSlack + 1;
    cells_.assign(static_cast<std::size_t>(side_) * static_cast<std::size_t>(side_), 0);
    const auto& shades = ShadePixels();
    std::array<double, KaytetytTapahtumat::kBlock> x;
    std::array<double, KaytetytTapahtumat::kBlock> y;
    std::array<uint32_t, KaytetytTapahtumat::kBlock> pixel;
    Blocks blocks = CellSize(area, resolution);
    KaytetytTapahtumat used(data.file, data.gate, data.PiirtoVali);
    for (auto events = used.Next(); !events.empty(); events = used.Next()) {
        AnnaPaikat(data.file, events, data.KanavaX, resolution, x);
        AnnaPaikat(data.file, events, data.KanavaY, resolution, y);
        for (std::size_t i = 0; i < events.size(); ++i) {
            const int ix = Cell(x[i], resolution);
            const int iy = Cell(resolution - y[i], resolution);
            const int32_t count = ++cells_[Place(ix, iy)];
            pixel[i] = shades[static_cast<std::size_t>(std::min(count, kLightest))];
            x[i] = area.Left() + area.XLength() * ix / resolution;
            y[i] = area.Top() + area.YLength() * iy / resolution;
        }
        blocks.x = {x.data(), events.size()};
        blocks.y = {y.data(), events.size()};
        blocks.pixel = {pixel.data(), events.size()};
        surface.PaintBlocks(blocks);
    }
}

}  // namespace tessarin
