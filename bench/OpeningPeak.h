// How much memory opening a file takes at its peak, beside the tables that stay.
#pragma once

namespace tessarin {

/// Opens the file of big-endian floats once and prints a line. Nothing where the system does not
/// tell the peak.
void PrintOpeningPeak();

}  // namespace tessarin
