// Which points lie inside a polygon: the rules one by one, and at random against the same rules
// written down plainly.
#include "populations/PolygonTest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <set>

namespace tessarin {
namespace {

constexpr float kInfinite = std::numeric_limits<float>::infinity();

// The rule for one point as one would tell it, edge by edge.
bool Told(double x, double y, const std::vector<Kulma>& corners) {
    int crossings = 0;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Kulma a = corners[i];
        const Kulma b = corners[(i + 1) % corners.size()];
        const double xs = std::min(a.x, b.x);
        const double xb = std::max(a.x, b.x);
        const double ys = std::min(a.y, b.y);
        const double yb = std::max(a.y, b.y);
        if (!(ys < y && y < yb)) {
            continue;
        }
        const Kulma lower = a.y < b.y ? a : b;
        const double at = lower.x == xs ? xs + (xb - xs) * (y - ys) / (yb - ys)
                                        : xs + (xb - xs) * (y - yb) / (ys - yb);
        crossings += x < xs || x < at ? 1 : 0;
    }
    return std::set{1, 3, 5, 7, 9}.contains(crossings);
}

TEST(PolygonTest, ListedPoints) {
    const std::vector<Kulma> square = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};
    const std::vector<Kulma> diamond = {{5, 0}, {10, 5}, {5, 10}, {0, 5}};
    const std::vector<Kulma> arrow = {{0, 0}, {10, 5}, {0, 10}};
    const std::vector<Kulma> falling = {{0, 0}, {10, 0}, {0, 10}};
    const std::vector<Kulma> rising = {{0, 0}, {10, 10}, {0, 10}};
    // Differences of these corners do not fit their own width, and still nothing is lost.
    constexpr int32_t kFar = std::numeric_limits<int32_t>::max();
    constexpr int32_t kLow = std::numeric_limits<int32_t>::min();
    const std::vector<Kulma> huge = {{kLow, kLow}, {kFar, kLow}, {kFar, kFar}, {kLow, kFar}};
    struct Case {
        std::vector<Kulma> corners;
        float x, y;
        bool inside;
    };
    const Case cases[] = {
        {square, 5, 5, true},
        {square, 0, 5, true},  // on the left edge: only the right one is crossed
        {square, 10, 5, false},
        {square, 5, 0, false},  // at the height of corners
        {square, 5, NAN, false},
        {square, NAN, 5, false},
        {square, -kInfinite, 5, false},
        {diamond, 5, 5, false},  // no edge reaches past the height of a corner
        {diamond, 5, 5.001F, true},
        {arrow, -3, 5, true},  // only the upright edge is seen at the tip's height
        {falling, std::nextafter(5.0F, 0.0F), 5, true},
        {falling, 5, 5, false},
        {rising, std::nextafter(8.0F, 0.0F), 8, true},
        {rising, 8, 8, false},
        {huge, 2147483520.0F, -2147483520.0F, true},
        {huge, 2147483648.0F, 0, false},
        {{}, 3, 5, false},
        {{{5, 5}}, 3, 5, false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(OnkoSisalla(c.x, c.y, c.corners), c.inside)
            << c.x << ", " << c.y << " of " << c.corners.size() << " corners";
    }
}

TEST(PolygonTest, ElevenCrossingsAreOutside) {
    // A comb of eight upright teeth 10 wide: each crosses a ray from the left twice.
    std::vector<Kulma> comb;
    for (int x = 0; x < 160; x += 20) {
        comb.insert(comb.end(), {{x, 0}, {x, 100}, {x + 10, 100}, {x + 10, 0}});
    }
    for (int tooth = 0; tooth < 8; ++tooth) {
        const int crossings = 2 * (8 - tooth) - 1;
        const auto left = static_cast<float>(20 * tooth);
        EXPECT_EQ(OnkoSisalla(left + 5, 50, comb), crossings < 11) << crossings;
        EXPECT_FALSE(OnkoSisalla(left + 15, 50, comb)) << "a gap";
    }
}

TEST(PolygonTest, CornersOfAPopulationAreRoundedToTheGrid) {
    Populaatio population;
    population.Corners = 3;
    population.X = {99, 0.5F, 1.5F, -2.6F, 99};
    population.Y = {99, 10000.4F, NAN, 1e30F, 99};
    std::vector<int32_t> places;
    for (const Kulma corner : PopulaationKulmat(population)) {
        places.insert(places.end(), {corner.x, corner.y});
    }
    EXPECT_EQ(places, (std::vector<int32_t>{0, 10000, 2, 0, -3, 2147483647}));
    population.Corners = 32000;
    EXPECT_EQ(PopulaationKulmat(population).size(), std::size_t{kMaxCorners});
}

// 1 to kMaxCorners corners, some in the place or at the height of an earlier one.
std::vector<Kulma> RandomCorners(std::mt19937& random, std::uniform_int_distribution<int>& place) {
    std::vector<Kulma> corners(1 + random() % kMaxCorners);
    for (std::size_t i = 0; i < corners.size(); ++i) {
        corners[i] = {place(random), place(random)};
        if (i > 0 && random() % 4 == 0) {
            const Kulma earlier = corners[random() % i];
            corners[i] = {random() % 2 == 0 ? earlier.x : corners[i].x, earlier.y};
        }
    }
    return corners;
}

TEST(PolygonTest, ListsOfPointsFollowTheRulesAtRandom) {
    std::mt19937 random(11);
    const auto below = [&random](unsigned limit) { return static_cast<int>(random() % limit); };
    const std::pair<int, int> sizes[] = {{5000, 7000}, {50, 6}, {0, 1 << 30}, {-3000, 90}};
    int insideCount = 0;
    for (std::size_t round = 0; round < 200; ++round) {
        const auto [middle, reach] = sizes[round % 4];
        std::uniform_int_distribution<int> place(middle - reach, middle + reach);
        const std::vector<Kulma> corners = RandomCorners(random, place);
        // Points on lines between corners, between them, in them, at their height, next to them.
        std::vector<float> xs;
        std::vector<float> ys;
        for (int left = 1000 + below(1000); left > 0; --left) {
            const Kulma a = corners[random() % corners.size()];
            const Kulma b = corners[random() % corners.size()];
            const auto between = [](double from, double to, double part) {
                return static_cast<float>(from + (to - from) * part);
            };
            const double part = below(2) == 0 ? below(9) / 8.0 : below(1000) / 999.0;
            const float x = between(a.x, b.x, below(3) == 0 ? below(1000) / 999.0 : part);
            const float odd[] = {std::nextafter(x, 1e30F), std::nextafter(x, -1e30F), NAN,
                                 kInfinite, -kInfinite};
            xs.push_back(below(4) == 0 ? odd[below(5)] : x);
            ys.push_back(below(50) == 0 ? kInfinite : between(a.y, b.y, part));
        }
        std::vector<uint8_t> inside(xs.size(), 77);
        PolygoninSisalla(xs, ys, corners, inside);
        for (std::size_t i = 0; i < xs.size(); ++i) {
            const bool told = Told(static_cast<double>(xs[i]), static_cast<double>(ys[i]), corners);
            ASSERT_EQ(int{inside[i]}, told ? 1 : 0) << xs[i] << ", " << ys[i] << " in " << round;
            insideCount += inside[i];
        }
    }
    EXPECT_GT(insideCount, 50000) << "the points test both answers";
    EXPECT_LT(insideCount, 200000);
}

}  // namespace
}  // namespace tessarin
