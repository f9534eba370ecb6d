#include "plots/HistogramBins.h"

#include <algorithm>
#include <array>

#include "core/Projektio.h"
#include "plots/UsedEvents.h"

namespace tessarin {

std::vector<double> LaskeHistogrammi(const ChannelData& data, int32_t resolution) {
    std::vector<int32_t> counts(static_cast<std::size_t>(resolution) + 1);
    const double end = resolution + 1.0;
    std::array<double, KaytetytTapahtumat::kBlock> position;
    KaytetytTapahtumat used(data.file, data.gate, data.PiirtoVali);
    for (auto events = used.Next(); !events.empty(); events = used.Next()) {
        AnnaPaikat(data.file, events, data.KanavaX, resolution, position);
        for (std::size_t i = 0; i < events.size(); ++i) {
            if (position[i] < end) {  // a position is never negative
                ++counts[static_cast<std::size_t>(position[i])];
            }
        }
    }
    return {counts.begin(), counts.end()};
}

void Tasoita(std::span<double> histo, int32_t width) {
    const auto last = static_cast<std::ptrdiff_t>(histo.size()) - 1;
    const std::ptrdiff_t s = std::min<std::ptrdiff_t>(width, last - 1);
    if (s <= 0) {
        return;
    }
    float mean = 0;
    for (std::ptrdiff_t i = 1; i <= last - s; ++i) {
        float sum = 0;
        for (std::ptrdiff_t j = i; j <= i + s; ++j) {
            sum = static_cast<float>(static_cast<double>(sum) + histo[static_cast<std::size_t>(j)]);
        }
        mean = static_cast<float>(static_cast<double>(sum) / static_cast<double>(s + 1));
        histo[static_cast<std::size_t>(i)] = static_cast<double>(mean);
    }
    std::fill(histo.begin() + (last - s), histo.end(), static_cast<double>(mean));
}

float KorkeinPylvas(std::span<const double> histo) {
    constexpr std::size_t kLeftOut = 10;
    double highest = 1;
    for (std::size_t i = kLeftOut; i + kLeftOut < histo.size(); ++i) {
        highest = std::max(highest, histo[i]);
    }
    return static_cast<float>(highest);
}

}  // namespace tessarin
