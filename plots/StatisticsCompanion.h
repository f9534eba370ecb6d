// Opening, closing and finding the statistics window that belongs to a plot.
#pragma once

#include <cstdint>
#include <string_view>

#include "plots/Statistics.h"

namespace tessarin {

/// `TilastoKumppani` means statistics companion. The window stands in `IkkunatStat`, in the slot
/// of its plot.
class TilastoKumppani {
  public:
    TilastoKumppani(PaaIkkuna& main, StatisticsOwner& owner) : main_(main), owner_(owner) {}

    /// "open", "close", or any other word to toggle. True when something changed.
    bool AvaaTaiSulje(std::string_view what);
    bool OnkoAuki() const { return Ikkuna() != nullptr; }
    /// The open window; nullptr when there is none.
    Statistics* Ikkuna() const;

  private:
    PaaIkkuna& main_;
    StatisticsOwner& owner_;
};

}  // namespace tessarin
