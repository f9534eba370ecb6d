#include "core/Kompensaatio.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include "core/WideVectors.h"

namespace tessarin {
namespace {

// What spills into a channel.
struct Spill {
    std::span<const float> raw;  // of the channel that it comes from
    float factor = 0;
};

// A factor of 0 takes nothing off; most of the matrix is 0.
std::vector<Spill> SpillsInto(const Tiedosto& file, int into) {
    std::vector<Spill> spills;
    for (int from = 1; from <= file.ChannelCount; ++from) {
        const float factor = file.Compensation(from, into);
        if (factor != 0) {
            spills.push_back({file.RawData.Sarake(from), factor});
        }
    }
    return spills;
}

TESSARIN_WIDE void TakeSpillOff(std::span<float> values, std::span<const float> spilling,
                                float factor) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] -= factor * spilling[i];
    }
}

// A channel that something spills into.
struct Spilled {
    std::span<const float> raw;
    std::span<float> values;
    std::vector<Spill> spills;
};

// A block of events at a time, so that the raw values of all channels stay near the processor while
// they are taken off each other, for each channel in the order of those that spill into it.
void Compensate(const std::vector<Spilled>& channels, std::size_t events) {
    constexpr std::size_t kBlock = 2048;
    for (std::size_t from = 0; from < events; from += kBlock) {
        const std::size_t count = std::min(kBlock, events - from);
        for (const Spilled& channel : channels) {
            const auto block = channel.values.subspan(from, count);
            std::ranges::copy(channel.raw.subspan(from, count), block.begin());
            for (const Spill& spill : channel.spills) {
                TakeSpillOff(block, spill.raw.subspan(from, count), spill.factor);
            }
        }
    }
}

}  // namespace

void LaskeKompensaatio(Tiedosto& file) {
    TapahtumaTaulu<float> data = file.RawData;
    std::vector<Spilled> changed;
    for (int into = 1; file.Compensate && into <= file.ChannelCount; ++into) {
        std::vector<Spill> spills = SpillsInto(file, into);
        if (!spills.empty()) {
            changed.push_back(
                {file.RawData.Sarake(into), data.UusiSarake(into), std::move(spills)});
        }
    }
    Compensate(changed, static_cast<std::size_t>(data.Events()));
    file.Data = std::move(data);
}

}  // namespace tessarin
