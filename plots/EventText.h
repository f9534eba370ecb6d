// Writes the events of a dot plot as a text table.
#pragma once

#include <string>

#include "plots/DotLayer.h"

namespace tessarin {

/// One line for each event that passes the gate, thinned or not as `data` says: the value of the
/// x channel, a tab, that of the y channel, a line feed. An old file is replaced only once the new
/// one is whole. Returns "" on success, else what went wrong.
std::string TalletaTapahtumat(const PlotData& data, const std::string& path);

}  // namespace tessarin
