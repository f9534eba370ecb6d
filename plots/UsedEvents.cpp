#include "plots/UsedEvents.h"

#include <cassert>

namespace tessarin {

KaytetytTapahtumat::KaytetytTapahtumat(const Tiedosto& file, int16_t gate, int32_t step)
    : last_(file.EventCount), step_(step) {
    assert(step >= 1);
    if (gate != 0) {
        members_ = file.Membership.Sarake(gate);
    }
}

std::span<const int32_t> KaytetytTapahtumat::Next() {
    std::size_t count = 0;
    if (members_.empty()) {
        for (; next_ <= last_ && count < kBlock; next_ += step_) {
            events_[count++] = static_cast<int32_t>(next_);
        }
    } else {
        for (; next_ <= last_ && count < kBlock; next_ += step_) {
            events_[count] = static_cast<int32_t>(next_);
            count += members_[static_cast<std::size_t>(next_) - 1] == 1 ? 1U : 0U;
        }
    }
    return {events_.data(), count};
}

}  // namespace tessarin
