// Counts of events along one channel: binning, smoothing, and the top of the scale.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "core/Tiedosto.h"

namespace tessarin {

/// Which events of one channel a histogram counts.
struct ChannelData {
    const Tiedosto& file;
    int16_t KanavaX = 1;     ///< 1..file.ChannelCount
    int16_t gate = 0;        ///< population slot, 0 for all events
    int32_t PiirtoVali = 1;  ///< every so many events only
};

/// Counts the used events into bins 0 to `resolution` by their position on an axis of that
/// length; what lies beyond falls away, and the last bin holds what lies right on the channel's
/// `Range`. REQUIRES: resolution is at least 1.
std::vector<double> LaskeHistogrammi(const ChannelData& data, int32_t resolution);

/// `Tasoita` means smooth: each bin from 1 becomes the mean of itself and the `width` bins after
/// it, in single precision; the last `width` + 1 bins all take the last such mean. Bin 0 stays.
/// A width of 0 or less does nothing; one that leaves no bin to smooth is taken as the largest
/// that does.
void Tasoita(std::span<double> histo, int32_t width);

/// The automatic top of the y scale: the largest count, at least 1, leaving out the 10 bins at
/// either end, where events pile up.
float KorkeinPylvas(std::span<const double> histo);

}  // namespace tessarin
