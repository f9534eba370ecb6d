#include "plots/DensityLayer.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/Numbers.h"
#include "core/WideVectors.h"

namespace tessarin {
namespace {

constexpr int kLightest = 18;  // events from which a cell is white

// The cells of one block of events.
struct CellBlock {
    std::array<int32_t, KaytetytTapahtumat::kBlock> x;
    std::array<int32_t, KaytetytTapahtumat::kBlock> y;
};

// The cell of each place, counted from the outermost of the slack, which also has those beyond.
// Cutting goes towards 0, so one is taken off where that went up.
TESSARIN_WIDE void CellsOf(std::span<const double> places, int resolution,
                           std::span<int32_t> cells) {
    const double least = -1.0 * TiheysKuva::kSlack;
    const double most = 1.0 * resolution + TiheysKuva::kSlack;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const double above = places[i] < least ? least : places[i];
        const double place = above > most ? most : above;
        const auto cut = static_cast<int32_t>(place);
        cells[i] = TiheysKuva::kSlack + cut - (static_cast<double>(cut) > place ? 1 : 0);
    }
}

// The first pixel of each cell on one axis, from the outermost of the slack on.
std::vector<double> FirstPixels(double start, double length, int resolution) {
    std::vector<double> pixels;
    for (int cell = -TiheysKuva::kSlack; cell <= resolution + TiheysKuva::kSlack; ++cell) {
        pixels.push_back(start + length * cell / resolution);
    }
    return pixels;
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
    const auto side = static_cast<std::size_t>(resolution) + std::size_t{2 * kSlack + 1};
    cells_.assign(side * side, 0);
    side_ = static_cast<int>(side);  // not before there are the cells
    const auto& shades = ShadePixels();
    const auto columns = FirstPixels(area.Left(), area.XLength(), resolution);
    const auto rows = FirstPixels(area.Top(), area.YLength(), resolution);
    std::array<double, KaytetytTapahtumat::kBlock> x;
    std::array<double, KaytetytTapahtumat::kBlock> y;
    std::array<uint32_t, KaytetytTapahtumat::kBlock> pixel;
    CellBlock cells;
    Blocks blocks = CellSize(area, resolution);
    const ChannelPlacer placer(data.file, data.KanavaX, data.KanavaY);
    const double cellsAcross = resolution;
    const PlaneFrame plane{0, cellsAcross, cellsAcross, cellsAcross};
    KaytetytTapahtumat used(data.Events());
    for (auto events = used.Next(); !events.empty(); events = used.Next()) {
        const std::size_t count = events.size();
        placer.Place(events, plane, x, y);
        CellsOf({x.data(), count}, resolution, cells.x);
        CellsOf({y.data(), count}, resolution, cells.y);
        for (std::size_t i = 0; i < count; ++i) {
            const auto column = static_cast<std::size_t>(cells.x[i]);
            const auto row = static_cast<std::size_t>(cells.y[i]);
            const int32_t inCell = ++cells_[row * columns.size() + column];
            pixel[i] = shades[static_cast<std::size_t>(std::min(inCell, kLightest))];
            x[i] = columns[column];
            y[i] = rows[row];
        }
        blocks.x = {x.data(), count};
        blocks.y = {y.data(), count};
        blocks.pixel = {pixel.data(), count};
        surface.PaintBlocks(blocks);
    }
}

}  // namespace tessarin
