#include "plots/UsedEvents.h"

#include <algorithm>
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
        const int64_t left = next_ > last_ ? 0 : (last_ - next_) / step_ + 1;
        count = static_cast<std::size_t>(std::min<int64_t>(left, kBlock));
        const auto first = static_cast<int32_t>(next_);
        const auto step = static_cast<int32_t>(step_);
        for (std::size_t i = 0; i < count; ++i) {
            events_[i] = first + static_cast<int32_t>(i) * step;  // a loop for vectors
        }
        next_ += static_cast<int64_t>(count) * step_;
    } else {
        for (; next_ <= last_ && count < kBlock; next_ += step_) {
            events_[count] = static_cast<int32_t>(next_);
            count += members_[static_cast<std::size_t>(next_) - 1] == 1 ? 1U : 0U;
        }
    }
    return {events_.data(), count};
}

}  // namespace tessarin
