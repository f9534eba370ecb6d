// The density picture: how many events fall into each cell of a plot, as shades of grey.
#pragma once

#include <cstdint>
#include <vector>

#include "plots/DotLayer.h"

namespace tessarin {

/// Counts on a square of cells with some slack around it for events beyond the axes.
class TiheysKuva {
  public:
    static constexpr int kSlack = 10;

    /// Counts the used events anew and paints each cell at each of its events with the shade of
    /// its count so far, so the last shade stands. `resolution` is in cells for each axis, at
    /// least 1. Events further out than the slack count in its outermost cell.
    void Piirra(Kuva& surface, const PlotArea& area, const PlotData& data, int16_t resolution);

    /// Count of a cell after the last drawing. REQUIRES: both -kSlack..resolution + kSlack.
    int32_t Count(int ix, int iy) const { return cells_[Place(ix, iy)]; }

    /// Grey level of a cell that holds so many events: 60 for one, 255 for 18 and more.
    static uint8_t Shade(int32_t count);

  private:
    std::size_t Place(int ix, int iy) const;

    int side_ = 0;
    std::vector<int32_t> cells_;
};

}  // namespace tessarin
