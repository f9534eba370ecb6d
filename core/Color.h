// A colour, and the few colours that the program itself is painted in.
#pragma once

#include <cstdint>

namespace tessarin {

/// Red, green and blue, 0 to 255 each.
struct Rgb {
    uint8_t red = 0;
    uint8_t green = 0;
    uint8_t blue = 0;

    friend bool operator==(const Rgb&, const Rgb&) = default;

    /// The pixel word of a picture: 0xffRRGGBB.
    constexpr uint32_t Pixel() const {
        return 0xff000000U | (uint32_t{red} << 16U) | (uint32_t{green} << 8U) | uint32_t{blue};
    }
};

constexpr Rgb Grey(uint8_t level) {
    return {level, level, level};
}

inline constexpr Rgb kBackgroundColor{34, 30, 31};  // main window, logo area, About box
inline constexpr Rgb kPanelColor = Grey(200);       // side panel, its frames and check box
inline constexpr Rgb kButtonColor = Grey(220);      // the panel's five buttons

}  // namespace tessarin
