// One channel of a file counted into bins: the bars, the scale and the smoothing of a window.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "plots/HistogramBins.h"
#include "windows/FrameWindow.h"

namespace tessarin {

/// A part of windows that show a channel as bars.
class BinnedChannel {
  public:
    BinnedChannel(FrameWindow& window, int32_t smoothing, Rgb color)
        : window_(window), Tasoitus(smoothing), Tayttovari(color) {}

    /// Counts the events anew.
    void Laske(const ChannelData& data);
    /// Draws the bars; the outline, where there is one, needs a plot of fewer columns than bins.
    void PiirraPalkit(const PlotArea& area, bool outline) const;
    /// The top of the scale beside the y axis.
    void PiirraHuippu(const PlotArea& area) const;

    /// Counts after smoothing, from bin 0 to `Bins()`; empty before the first redraw.
    std::span<const double> Palkit() const { return Histo; }
    int32_t Bins() const { return Resoluutio; }
    /// The top of the y scale at the last redraw, and the one asked for: 0 for automatic.
    float Huippu() const { return Korkein; }
    int32_t Skaala() const { return YSkaala; }
    /// The bin at a grid place, also one before the first or behind the last.
    double BinAt(float grid) const;

    /// "Set Y scale", "Set smoothing" and "Change color".
    WindowMenuItem ScaleItem();
    WindowMenuItem SmoothingItem();
    WindowMenuItem ColorItem();
    void AddColorKeys(SheetTable& keys);
    void AddScaleKeys(SheetTable& keys);

  private:
    void AskNumber(const std::string& title, std::string_view zero, int32_t& value);

    FrameWindow& window_;
    int32_t Resoluutio = 1024;  // number of bins
    std::vector<double> Histo;
    int32_t Tasoitus;     // smoothing width in bins, 0 for none
    int32_t YSkaala = 0;  // top of the y scale as a count
    float Korkein = 1;    // the top in use
    Rgb Tayttovari;       // colour of the bars
};

}  // namespace tessarin
