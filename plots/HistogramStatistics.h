// Counts, shares, means and spread of the events of a histogram.
#pragma once

#include <cstdint>
#include <vector>

#include "plots/HistogramBins.h"

namespace tessarin {

/// `HistoRivi` means line of histogram statistics. Means are of the values in `Data`, never of
/// positions or bins.
struct HistoRivi {
    int32_t Lukumaara = 0;  ///< events counted
    double Osuus = 0;       ///< share of the shown events, 0 to 1
    double XKeski = 0;      ///< arithmetic mean
    double XGeo = 0;        ///< geometric mean; a value of 0 or less counts as 1 in it
    double CV = 0;          ///< standard deviation, over the count itself, by the mean
};

/// Whether population or definition `slot` has a row in a histogram of that channel: a defined
/// marker on it, whichever window made it, or any defined definition.
bool OnkoHistoRivi(int16_t slot, int16_t kanavaX);

/// Computes row 0 from the used events and row k from those that are members of slot k, for each
/// slot that has a row. Other rows keep what they held.
/// REQUIRES: rows has kPopulationSlots + 1 entries.
void LaskeHistoTilastot(const ChannelData& data, std::vector<HistoRivi>& rows);

}  // namespace tessarin
