#include "plots/DotLayer.h"

#include <array>

#include "plots/EventColours.h"

namespace tessarin {

void PiirraTapahtumat(Kuva& surface, const PlaneFrame& plane, const EventChoice& choice,
                      const EventPlacer& placer, const DotColours& colours, int size) {
    std::array<double, KaytetytTapahtumat::kBlock> x;
    std::array<double, KaytetytTapahtumat::kBlock> y;
    std::array<uint32_t, KaytetytTapahtumat::kBlock> pixel;
    KaytetytTapahtumat used(choice);
    for (auto events = used.Next(); !events.empty(); events = used.Next()) {
        placer.Place(events, plane, x, y);
        colours(events, pixel);
        surface.PaintBlocks({{x.data(), events.size()},
                             {y.data(), events.size()},
                             {pixel.data(), events.size()},
                             size,
                             size});
    }
}

void PiirraPisteet(Kuva& surface, const PlotArea& area, const PlotData& data,
                   const DotStyle& style) {
    const EventColours colours(
        data.file, style.MoniVari ? ColouredBy::kShown : ColouredBy::kNothing, style.color);
    PiirraTapahtumat(
        surface, PlaneOf(area), data.Events(), ChannelPlacer(data.file, data.KanavaX, data.KanavaY),
        [&colours](std::span<const int32_t> events, std::span<uint32_t> pixels) {
            colours.Colour(events, pixels);
        },
        style.PisteenKoko);
}

}  // namespace tessarin
