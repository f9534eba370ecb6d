// Which points lie inside a polygon: the test behind every region drawn with corners.
//
// It knows nothing of files, channels or populations; those who evaluate a population hand it the
// positions of all events of a file at once, and the mouse asks it about one place.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "core/Populaatio.h"

namespace tessarin {

/// `Kulma` means corner: a place on the grid, in whole grid units.
struct Kulma {
    int32_t x = 0;
    int32_t y = 0;
};

/// `PopulaationKulmat` means corners of the population: its corners, rounded to the grid.
std::vector<Kulma> PopulaationKulmat(const Populaatio& population);

/// `PolygoninSisalla` means inside the polygon: `inside[i]` becomes 1 when the point
/// (`xs[i]`, `ys[i]`) lies inside, else 0.
///
/// Corners follow each other around the polygon; the last is joined to the first. They may repeat,
/// cross each other and lie off the grid. A point is inside when a ray from it towards larger x
/// crosses 1, 3, 5, 7 or 9 edges; 11 and more are outside. An edge is crossed only strictly
/// between the heights of its ends, so at exactly the height of a corner the edges that meet in it
/// are not seen, and a point on the upright part of an outline is not left of it. What is not a
/// number is outside.
/// REQUIRES: xs, ys and inside are equally long.
void PolygoninSisalla(std::span<const float> xs, std::span<const float> ys,
                      std::span<const Kulma> polygon, std::span<uint8_t> inside);

/// `OnkoSisalla` means is it inside: the same for one point.
bool OnkoSisalla(float x, float y, std::span<const Kulma> polygon);

}  // namespace tessarin
