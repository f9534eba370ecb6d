#include "core/EventValues.h"

#include <cassert>
#include <cstddef>

#include "core/WideVectors.h"

namespace tessarin {

TESSARIN_WIDE bool OvatPerakkain(std::span<const int32_t> events) {
    int32_t gaps = 0;
    for (std::size_t i = 1; i < events.size(); ++i) {
        gaps |= events[i] - events[i - 1] - 1;
    }
    return gaps == 0;
}

TESSARIN_WIDE void PoimiArvot(std::span<const float> column, std::span<const int32_t> events,
                              std::span<double> taken) {
    assert(taken.size() >= events.size());
    if (!events.empty() && OvatPerakkain(events)) {
        const float* from = column.data() + (events.front() - 1);
        for (std::size_t i = 0; i < events.size(); ++i) {
            taken[i] = static_cast<double>(from[i]);
        }
        return;
    }
    for (std::size_t i = 0; i < events.size(); ++i) {
        taken[i] = static_cast<double>(column[static_cast<std::size_t>(events[i]) - 1]);
    }
}

TESSARIN_WIDE int32_t PoimiMaskit(std::span<const uint8_t> members, std::span<const int32_t> events,
                                  std::span<uint64_t> masks) {
    assert(masks.size() >= events.size());
    if (!events.empty() && OvatPerakkain(events)) {
        const uint8_t* from = members.data() + (events.front() - 1);
        for (std::size_t i = 0; i < events.size(); ++i) {
            masks[i] = from[i] == 1 ? ~uint64_t{0} : 0;
        }
    } else {
        for (std::size_t i = 0; i < events.size(); ++i) {
            masks[i] = members[static_cast<std::size_t>(events[i]) - 1] == 1 ? ~uint64_t{0} : 0;
        }
    }
    uint64_t count = 0;
    for (std::size_t i = 0; i < events.size(); ++i) {
        count -= masks[i];
    }
    return static_cast<int32_t>(count);
}

}  // namespace tessarin
