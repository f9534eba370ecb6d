// The colours of events: those of the populations that they belong to.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "core/Color.h"
#include "core/Tiedosto.h"

namespace tessarin {

/// Which populations colour events.
enum class ColouredBy {
    kNothing,      ///< all events are plain
    kShown,        ///< defined populations and definitions that are not transparent
    kPopulations,  ///< every population, definitions left out
};

/// The colour of each event of a file as it is now; among several populations the highest slot
/// wins.
class EventColours {
  public:
    /// `plain` is the colour of events that no population colours. The file must outlive it.
    EventColours(const Tiedosto& file, ColouredBy by, Rgb plain);

    /// `pixels[i]` becomes the colour of `events[i]`, as `Rgb::Pixel` gives it.
    void Colour(std::span<const int32_t> events, std::span<uint32_t> pixels) const;

  private:
    struct Colouring {
        std::span<const uint8_t> members;
        uint32_t pixel;
    };

    std::vector<Colouring> colourings_;  // in rising slot order
    uint32_t plain_;
};

}  // namespace tessarin
