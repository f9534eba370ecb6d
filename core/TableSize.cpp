#include "core/TableSize.h"

#include "core/Muuttujat.h"

namespace tessarin {

bool OvatkoTaulutJarkevat(int64_t events, int64_t channels, uint64_t fileSize) {
    constexpr uint64_t kAlwaysAllowed = uint64_t{256} << 20U;
    constexpr uint64_t kMostTimesFileSize = 64;
    const auto bytes = static_cast<uint64_t>(
        events * (channels * 2 * static_cast<int64_t>(sizeof(float)) + kPopulationSlots) +
        channels * channels * static_cast<int64_t>(sizeof(float)));
    return bytes <= kAlwaysAllowed + kMostTimesFileSize * fileSize;
}

}  // namespace tessarin
