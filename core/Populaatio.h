// A population (a region drawn in a window) or a definition (a boolean combination of them).
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/Color.h"

namespace tessarin {

inline constexpr int kMaxCorners = 50;

/// `Populaatio` means population. Corners of a "Polygon" are grid positions: 0 to 10000 on both
/// axes, y from the top; corner i stands in X[i] and Y[i], entry 0 is not used.
struct Populaatio {
    int16_t Corners = 0;
    std::array<float, kMaxCorners + 1> X{};
    std::array<float, kMaxCorners + 1> Y{};
    std::string Name;        ///< for a definition, its expression
    int32_t TitleBaseX = 0;  ///< computed place of the name, in grid units
    int32_t TitleBaseY = 0;
    int32_t TitleX = 0;  ///< where the user dragged the name, from that base, in grid units
    int32_t TitleY = 0;
    bool Defined = false;
    int16_t AxisX = 0;  ///< channels that the region was drawn on
    int16_t AxisY = 0;
    std::string Type;  ///< "Polygon", "Histogram", "DAD" or "BendPlot"
    uint8_t Red = 0;
    uint8_t Green = 0;
    uint8_t Blue = 0;
    bool Transparent = false;
    int16_t Created = 0;  ///< id of the window that made it

    Rgb Color() const { return {Red, Green, Blue}; }
};

}  // namespace tessarin
