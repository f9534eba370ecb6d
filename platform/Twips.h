// The unit of a window's outer size.
#pragma once

#include <cstdint>

namespace tessarin {

/// 1/1440 inch; a pixel is 15. A type of its own, so that it cannot pass for pixels.
struct Twips {
    int32_t count = 0;

    friend bool operator==(const Twips&, const Twips&) = default;
};

inline constexpr int32_t kTwipsPerPixel = 15;

constexpr Twips TwipsFromPixels(int pixels) {
    return {pixels * kTwipsPerPixel};
}

/// Whole pixels, the fraction dropped.
constexpr int PixelsFromTwips(Twips twips) {
    return twips.count / kTwipsPerPixel;
}

}  // namespace tessarin
