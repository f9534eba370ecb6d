#include "core/TableSize.h"

#include "core/Muuttujat.h"

namespace tessarin {
namespace {

constexpr uint64_t kMegabyte = uint64_t{1} << 20U;

// Of raw and compensated values and of memberships.
uint64_t EventBytes(int64_t events, int64_t channels) {
    return static_cast<uint64_t>(
        events * (channels * 2 * static_cast<int64_t>(sizeof(float)) + kPopulationSlots));
}

}  // namespace

bool VoikoOllaLupaus(int64_t events, int64_t channels, uint64_t fileSize) {
    constexpr uint64_t kTimesFileSize = 16;
    return EventBytes(events, channels) > kMegabyte + kTimesFileSize * fileSize;
}

bool OvatkoTaulutJarkevat(int64_t events, int64_t channels, uint64_t fileSize) {
    constexpr uint64_t kAlwaysAllowed = 64 * kMegabyte;
    constexpr uint64_t kMostTimesFileSize = 64;
    const auto matrix = static_cast<uint64_t>(channels * channels) * sizeof(float);
    return EventBytes(events, channels) + matrix <= kAlwaysAllowed + kMostTimesFileSize * fileSize;
}

}  // namespace tessarin
