// Where events stand on a plane: the one thing that drawing, gating and statistics share.
#pragma once

#include <cstdint>
#include <span>

#include "core/Projektio.h"
#include "core/Tiedosto.h"
#include "windows/PlotArea.h"

namespace tessarin {

/// Where the lower left corner of a plane lies and how long its axes are, in whatever unit is
/// wanted back: pixels, cells, grid units. y runs downwards.
struct PlaneFrame {
    double left = 0;
    double bottom = 0;
    double xLength = 0;
    double yLength = 0;
};

/// The plane on which regions are kept.
inline constexpr PlaneFrame kGridPlane{0, kGrid, kGrid, kGrid};

/// The plane of a plot on its surface.
inline PlaneFrame PlaneOf(const PlotArea& area) {
    return {area.Left(), area.Bottom(), area.XLength(), area.YLength()};
}

/// Places the events of one file.
class EventPlacer {
  public:
    virtual ~EventPlacer() = default;
    /// `x[i]` and `y[i]` become the place of `events[i]`, the same to the last bit in whichever
    /// company it is placed. REQUIRES: both are at least as long as `events`.
    virtual void Place(std::span<const int32_t> events, const PlaneFrame& plane,
                       std::span<double> x, std::span<double> y) const = 0;
};

/// One channel along each axis.
class ChannelPlacer : public EventPlacer {
  public:
    /// The file must outlive it. REQUIRES: both channels are 1..`file.ChannelCount`.
    ChannelPlacer(const Tiedosto& file, int16_t xChannel, int16_t yChannel)
        : file_(file), xChannel_(xChannel), yChannel_(yChannel) {}

    void Place(std::span<const int32_t> events, const PlaneFrame& plane, std::span<double> x,
               std::span<double> y) const override;

  private:
    const Tiedosto& file_;
    int16_t xChannel_;
    int16_t yChannel_;
};

}  // namespace tessarin
