// How the dots of a window look, and the density picture that may stand in their place.
#pragma once

#include <cstdint>

#include "plots/DensityLayer.h"
#include "plots/DotLayer.h"
#include "windows/FrameWindow.h"

namespace tessarin {

/// A part of windows that draw events as dots.
class DotLook {
  public:
    explicit DotLook(FrameWindow& window) : window_(window) {}

    int Koko() const { return PisteenKoko; }
    bool OnkoMoniVari() const { return MoniVari; }
    DotStyle Style() const;

    /// "Large dots" and "Disable multicoloring", or the opposite.
    WindowMenuItem SizeItem();
    WindowMenuItem ColoursItem();
    void AddSizeKey(SheetTable& keys);
    void AddColoursKey(SheetTable& keys);

  private:
    FrameWindow& window_;
    uint8_t PisteenKoko = 1;  // dots of 1 or 2 pixels
    bool MoniVari = true;     // coloured by population
};

/// A part of plots of two channels that draw dots or a density picture.
class DensityLook {
  public:
    /// `atFirst`: whether the density picture is drawn.
    DensityLook(FrameWindow& window, const DotLook& dots, bool atFirst)
        : window_(window), dots_(dots), Tiheys(atFirst) {}

    void Piirra(const PlotArea& area, const PlotData& data);

    /// "Density plot" or "Dot plot": what choosing it shows.
    WindowMenuItem Item();
    void AddKeys(SheetTable& keys);

  private:
    FrameWindow& window_;
    const DotLook& dots_;
    TiheysKuva picture_;
    bool Tiheys;
    int16_t TiheysResoluutio = 512;
};

}  // namespace tessarin
