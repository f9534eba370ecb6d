#include "plots/DotLayer.h"

#include <array>
#include <vector>

#include "core/Muuttujat.h"
#include "core/Projektio.h"

namespace tessarin {
namespace {

// A population that colours dots.
struct Colouring {
    std::span<const uint8_t> members;
    uint32_t pixel;
};

// In rising slot order, so that the highest wins.
std::vector<Colouring> Colourings(const Tiedosto& file) {
    std::vector<Colouring> colourings;
    for (int slot = 1; slot <= kPopulationSlots; ++slot) {
        const Populaatio& population = Populaatiot(slot);
        if (population.Defined && !population.Transparent) {
            colourings.push_back({file.Membership.Sarake(slot), population.Color().Pixel()});
        }
    }
    return colourings;
}

// The dots of one block of events.
struct DotBlock {
    std::array<double, KaytetytTapahtumat::kBlock> x;
    std::array<double, KaytetytTapahtumat::kBlock> y;
    std::array<uint32_t, KaytetytTapahtumat::kBlock> pixel;
};

void Place(DotBlock& block, const PlotArea& area, const PlotData& data,
           std::span<const int32_t> events) {
    AnnaPaikat(data.file, events, data.KanavaX, area.XLength(), block.x);
    AnnaPaikat(data.file, events, data.KanavaY, area.YLength(), block.y);
    for (std::size_t i = 0; i < events.size(); ++i) {
        block.x[i] = area.Left() + block.x[i];
        block.y[i] = area.Bottom() - block.y[i];
    }
}

void Colour(DotBlock& block, const std::vector<Colouring>& colourings,
            std::span<const int32_t> events, uint32_t plain) {
    std::fill_n(block.pixel.begin(), events.size(), plain);
    for (const Colouring& colouring : colourings) {
        for (std::size_t i = 0; i < events.size(); ++i) {
            const auto row = static_cast<std::size_t>(events[i]) - 1;
            block.pixel[i] = colouring.members[row] == 1 ? colouring.pixel : block.pixel[i];
        }
    }
}

}  // namespace

void PiirraPisteet(Kuva& surface, const PlotArea& area, const PlotData& data, const DotLook& look) {
    const auto colourings = look.MoniVari ? Colourings(data.file) : std::vector<Colouring>{};
    DotBlock block;
    KaytetytTapahtumat used(data.file, data.gate, data.PiirtoVali);
    for (auto events = used.Next(); !events.empty(); events = used.Next()) {
        Place(block, area, data, events);
        Colour(block, colourings, events, look.color.Pixel());
        surface.PaintBlocks({{block.x.data(), events.size()},
                             {block.y.data(), events.size()},
                             {block.pixel.data(), events.size()},
                             look.PisteenKoko,
                             look.PisteenKoko});
    }
}

}  // namespace tessarin
