// The one loop over the events that a plot uses: the gate, the step and the count.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "core/Tiedosto.h"

namespace tessarin {

/// Which events of a file a window uses.
struct EventChoice {
    const Tiedosto& file;
    int16_t gate = 0;        ///< population slot, 0 for all events
    int32_t PiirtoVali = 1;  ///< every so many events only
};

/// Gives the used events of a file in rising order, a block at a time, so that what is done with
/// them stays near the processor. An event is used when its number is 1, 1 + step, 1 + 2 * step
/// and so on up to `EventCount`, and it is a member of the gate.
class KaytetytTapahtumat {
  public:
    static constexpr std::size_t kBlock = 2048;

    /// `gate` is a population slot or 0 for all events. The file must outlive the object.
    /// REQUIRES: step at least 1, gate 0..kPopulationSlots.
    KaytetytTapahtumat(const Tiedosto& file, int16_t gate, int32_t step);
    explicit KaytetytTapahtumat(const EventChoice& choice)
        : KaytetytTapahtumat(choice.file, choice.gate, choice.PiirtoVali) {}

    /// The next event numbers, at most kBlock; empty when there are no more.
    std::span<const int32_t> Next();

  private:
    std::span<const uint8_t> members_;  // empty without a gate
    int64_t next_ = 1;
    int64_t last_;
    int64_t step_;
    std::array<int32_t, kBlock> events_;
};

}  // namespace tessarin
