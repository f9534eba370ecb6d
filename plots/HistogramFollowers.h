// Windows that are made of the bins of histograms follow what those show.
#pragma once

namespace tessarin {

/// Redraws every window that takes its data from histograms: one of them was drawn, or is gone.
void PiirraHistogrammienSeuraajat();

}  // namespace tessarin
