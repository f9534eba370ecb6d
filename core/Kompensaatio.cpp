#include "core/Kompensaatio.h"

#include <cstddef>
#include <span>

namespace tessarin {
namespace {

void TakeSpillOff(std::span<float> values, std::span<const float> spilling, float factor) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] -= factor * spilling[i];
    }
}

}  // namespace

void LaskeKompensaatio(Tiedosto& file) {
    file.Data.CopyFrom(file.RawData);
    if (!file.Compensate) {
        return;
    }
    for (int from = 1; from <= file.ChannelCount; ++from) {
        for (int into = 1; into <= file.ChannelCount; ++into) {
            const float factor = file.Compensation(from, into);
            // A factor of 0 takes nothing off; most of the matrix is 0.
            if (factor != 0) {
                TakeSpillOff(file.Data.Sarake(into), file.RawData.Sarake(from), factor);
            }
        }
    }
}

}  // namespace tessarin
