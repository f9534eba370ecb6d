#include "plots/EventPlacer.h"

namespace tessarin {

void ChannelPlacer::Place(std::span<const int32_t> events, const PlaneFrame& plane,
                          std::span<double> x, std::span<double> y) const {
    AnnaPaikat(file_, events, xChannel_, plane.xLength, x);
    AnnaPaikat(file_, events, yChannel_, plane.yLength, y);
    for (std::size_t i = 0; i < events.size(); ++i) {
        x[i] = plane.left + x[i];
        y[i] = plane.bottom - y[i];
    }
}

}  // namespace tessarin
