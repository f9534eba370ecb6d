// Where windows find room in the main window's area. Everything is in pixels of that area.
#pragma once

#include <optional>
#include <span>

#include "platform/Controls.h"

namespace tessarin {

struct PixelSize {
    int width = 0;
    int height = 0;
};

/// The first place, row by row, where a window of that size stands whole in the area and covers
/// none of `taken`; nothing when there is none.
std::optional<PixelBox> FreePlace(PixelSize window, PixelSize area,
                                  std::span<const PixelBox> taken);

/// The place of a window that belongs to another one. It stands beside it where it covers nothing:
/// at the right, else below, at the left, above. Where no side has room it covers as little as it
/// can, and of its owner least of all. It is never outside the area, unless it is larger.
PixelBox PlaceBeside(const PixelBox& owner, PixelSize window, PixelSize area,
                     std::span<const PixelBox> taken);

/// Whether half of the window or more is to be seen in the area, and half of its title bar.
bool IsInReach(const PixelBox& window, PixelSize area);

/// Moved into the area as far as it has room there; its upper left corner in any case.
PixelBox MovedIn(PixelBox window, PixelSize area);

}  // namespace tessarin
