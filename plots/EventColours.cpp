#include "plots/EventColours.h"

#include <algorithm>

#include "core/Muuttujat.h"

namespace tessarin {
namespace {

bool Colours(int slot, ColouredBy by) {
    switch (by) {
        case ColouredBy::kShown:
            return Populaatiot(slot).Defined && !Populaatiot(slot).Transparent;
        case ColouredBy::kPopulations:
            return slot <= MaxPopulations;
        case ColouredBy::kNothing:
            break;
    }
    return false;
}

}  // namespace

EventColours::EventColours(const Tiedosto& file, ColouredBy by, Rgb plain) : plain_(plain.Pixel()) {
    for (int slot = 1; slot <= kPopulationSlots; ++slot) {
        if (Colours(slot, by)) {
            colourings_.push_back(
                {file.Membership.Sarake(slot), Populaatiot(slot).Color().Pixel()});
        }
    }
}

void EventColours::Colour(std::span<const int32_t> events, std::span<uint32_t> pixels) const {
    std::fill_n(pixels.begin(), events.size(), plain_);
    for (const Colouring& colouring : colourings_) {
        for (std::size_t i = 0; i < events.size(); ++i) {
            const auto row = static_cast<std::size_t>(events[i]) - 1;
            pixels[i] = colouring.members[row] == 1 ? colouring.pixel : pixels[i];
        }
    }
}

}  // namespace tessarin
