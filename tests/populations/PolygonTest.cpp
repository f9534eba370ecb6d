// Which points lie inside a polygon: the rules one by one, and at random against the same rules
// written down plainly.
#include "populations/PolygonTest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <random>
#include <utility>
#include <vector>

namespace tessarin {
namespace {

constexpr std::array<int, 5> kInside = {1, 3, 5, 7, 9};

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
        if (x < xs) {
            ++crossings;
            continue;
        }
        const Kulma lower = a.y < b.y ? a : b;
        const double at = lower.x == xs ? xs + (xb - xs) * (y - ys) / (yb - ys)
                                        : xs + (xb - xs) * (y - yb) / (ys - yb);
        crossings += x < at ? 1 : 0;
    }
    return std::ranges::find(kInside, crossings) != kInside.end();
}

// A comb of `teeth` upright teeth of width 10 at distances of 20, from y = 0 to y = 100: a ray
// from the left crosses two edges for each tooth, one from inside the n-th last tooth 2n - 1.
std::vector<Kulma> Comb(int teeth) {
    std::vector<Kulma> corners;
    for (int tooth = 0; tooth < teeth; ++tooth) {
        const int x = 20 * tooth;
        corners.insert(corners.end(), {{x, 0}, {x, 100}, {x + 10, 100}, {x + 10, 0}});
    }
    return corners;
}

TEST(PolygonTest, EdgesAndHeightsOfCorners) {
    const std::vector<Kulma> square = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};
    EXPECT_TRUE(OnkoSisalla(5, 5, square));
    EXPECT_TRUE(OnkoSisalla(0, 5, square)) << "on the left edge: only the right one is crossed";
    EXPECT_FALSE(OnkoSisalla(10, 5, square)) << "on the right edge";
    EXPECT_FALSE(OnkoSisalla(-1, 5, square));
    EXPECT_FALSE(OnkoSisalla(5, 0, square)) << "at the height of corners";
    EXPECT_FALSE(OnkoSisalla(5, 10, square));

    const std::vector<Kulma> diamond = {{5, 0}, {10, 5}, {5, 10}, {0, 5}};
    EXPECT_FALSE(OnkoSisalla(5, 5, diamond)) << "no edge reaches past the height of a corner";
    EXPECT_TRUE(OnkoSisalla(5, 5.001F, diamond));

    const std::vector<Kulma> arrow = {{0, 0}, {10, 5}, {0, 10}};
    EXPECT_TRUE(OnkoSisalla(-3, 5, arrow)) << "only the upright edge is seen at the tip's height";
}

TEST(PolygonTest, SlopingEdgesCutExactly) {
    // The sloping edge of each stands at x = 5 where y = 5, or x = 8 where y = 2 or 8.
    const std::vector<Kulma> falling = {{0, 0}, {10, 0}, {0, 10}};
    EXPECT_TRUE(OnkoSisalla(std::nextafter(5.0F, 0.0F), 5, falling));
    EXPECT_FALSE(OnkoSisalla(5, 5, falling));
    EXPECT_TRUE(OnkoSisalla(2, 5, falling));
    EXPECT_FALSE(OnkoSisalla(8, 2, falling));
    const std::vector<Kulma> rising = {{0, 0}, {10, 10}, {0, 10}};
    EXPECT_TRUE(OnkoSisalla(std::nextafter(8.0F, 0.0F), 8, rising));
    EXPECT_FALSE(OnkoSisalla(8, 8, rising));

    // Far apart corners: differences do not fit their own width, and still nothing is lost.
    constexpr int32_t kFar = std::numeric_limits<int32_t>::max();
    constexpr int32_t kLow = std::numeric_limits<int32_t>::min();
    const std::vector<Kulma> huge = {{kLow, kLow}, {kFar, kLow}, {kFar, kFar}, {kLow, kFar}};
    EXPECT_TRUE(OnkoSisalla(0, 0, huge));
    EXPECT_TRUE(OnkoSisalla(2147483520.0F, -2147483520.0F, huge));
    EXPECT_FALSE(OnkoSisalla(2147483648.0F, 0, huge));
}

TEST(PolygonTest, ElevenCrossingsAreOutside) {
    const std::vector<Kulma> comb = Comb(8);
    for (int tooth = 0; tooth < 8; ++tooth) {
        const int crossings = 2 * (8 - tooth) - 1;
        EXPECT_EQ(OnkoSisalla(static_cast<float>(20 * tooth + 5), 50, comb), crossings < 11)
            << crossings;
        EXPECT_FALSE(OnkoSisalla(static_cast<float>(20 * tooth + 15), 50, comb)) << "a gap";
    }
}

TEST(PolygonTest, WhatHoldsNothing) {
    for (const auto& corners : {std::vector<Kulma>{}, {{5, 5}}, {{0, 0}, {10, 10}}}) {
        EXPECT_FALSE(OnkoSisalla(3, 5, corners)) << corners.size();
    }
    const std::vector<Kulma> square = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};
    constexpr float kInfinite = std::numeric_limits<float>::infinity();
    for (const float odd : {NAN, kInfinite, -kInfinite}) {
        EXPECT_FALSE(OnkoSisalla(5, odd, square)) << odd;
        EXPECT_FALSE(OnkoSisalla(odd, 5, square)) << odd;
        EXPECT_FALSE(OnkoSisalla(odd, odd, square)) << odd;
    }
}

TEST(PolygonTest, CornersOfAPopulationAreRoundedToTheGrid) {
    Populaatio population;
    population.Corners = 3;
    population.X = {99, 0.5F, 1.5F, -2.6F, 99};
    population.Y = {99, 10000.4F, NAN, 1e30F, 99};
    const std::vector<Kulma> corners = PopulaationKulmat(population);
    ASSERT_EQ(corners.size(), 3U);
    EXPECT_EQ(corners[0].x, 0) << "a tie goes to the even number";
    EXPECT_EQ(corners[1].x, 2);
    EXPECT_EQ(corners[2].x, -3);
    EXPECT_EQ(corners[0].y, 10000);
    EXPECT_EQ(corners[1].y, 0);
    EXPECT_EQ(corners[2].y, std::numeric_limits<int32_t>::max());
    population.Corners = 32000;
    EXPECT_EQ(PopulaationKulmat(population).size(), std::size_t{kMaxCorners});
}

// Corners within `reach` of `middle`, some of them the same as an earlier one.
std::vector<Kulma> RandomPolygon(std::mt19937& random, int middle, int reach) {
    std::uniform_int_distribution<int> place(middle - reach, middle + reach);
    std::vector<Kulma> corners(1 + random() % kMaxCorners);
    for (std::size_t i = 0; i < corners.size(); ++i) {
        corners[i] = {place(random), place(random)};
        if (i > 0 && random() % 4 == 0) {
            const Kulma earlier = corners[random() % i];
            corners[i] = random() % 2 == 0 ? earlier : Kulma{corners[i].x, earlier.y};
        }
    }
    return corners;
}

// Points all over the polygon; many at the height of a corner, in a corner, on an edge or next to
// one, a few that are no places at all.
void AddPoint(std::mt19937& random, const std::vector<Kulma>& corners, std::vector<float>& xs,
              std::vector<float>& ys) {
    constexpr float kInfinite = std::numeric_limits<float>::infinity();
    const Kulma a = corners[random() % corners.size()];
    const Kulma b = corners[random() % corners.size()];
    const auto between = [&random](int from, int to, int steps) {
        const int step = static_cast<int>(random() % static_cast<unsigned>(steps + 1));
        return static_cast<float>(from + (static_cast<double>(to) - from) * step / steps);
    };
    const auto along = static_cast<int>(random() % 9);
    const auto onLine = [along](int from, int to) {
        return static_cast<float>(from + (static_cast<double>(to) - from) * along / 8);
    };
    const bool coin = random() % 2 == 0;
    switch (random() % 8) {
        case 0:
            xs.push_back(static_cast<float>(a.x));
            ys.push_back(static_cast<float>(b.y));
            break;
        case 1:
            xs.push_back(coin ? NAN : random() % 2 == 0 ? kInfinite : -kInfinite);
            ys.push_back(random() % 4 == 0 ? kInfinite : between(a.y, b.y, 999));
            break;
        case 2:
            xs.push_back(std::nextafter(onLine(a.x, b.x), coin ? 1e30F : -1e30F));
            ys.push_back(onLine(a.y, b.y));
            break;
        case 3:
        case 4:
            xs.push_back(onLine(a.x, b.x));
            ys.push_back(onLine(a.y, b.y));
            break;
        default:
            xs.push_back(between(a.x, b.x, 999));
            ys.push_back(between(a.y, b.y, 999));
    }
}

TEST(PolygonTest, ListsOfPointsFollowTheRulesAtRandom) {
    std::mt19937 random(11);
    const std::array<std::pair<int, int>, 4> sizes = {
        {{5000, 7000}, {50, 6}, {0, 1 << 30}, {-3000, 90}}};
    int insideCount = 0;
    for (int round = 0; round < 200; ++round) {
        const auto [middle, reach] = sizes[static_cast<std::size_t>(round) % sizes.size()];
        const std::vector<Kulma> corners = RandomPolygon(random, middle, reach);
        std::vector<float> xs;
        std::vector<float> ys;
        const std::size_t count = 1000 + random() % 1000;
        while (xs.size() < count) {
            AddPoint(random, corners, xs, ys);
        }
        std::vector<uint8_t> inside(count, 77);
        PolygoninSisalla(xs, ys, corners, inside);
        for (std::size_t i = 0; i < count; ++i) {
            const bool told = Told(static_cast<double>(xs[i]), static_cast<double>(ys[i]), corners);
            ASSERT_EQ(int{inside[i]}, told ? 1 : 0)
                << xs[i] << ", " << ys[i] << " in round " << round;
            insideCount += inside[i];
        }
    }
    EXPECT_GT(insideCount, 50000) << "the points test both answers";
    EXPECT_LT(insideCount, 200000);
}

}  // namespace
}  // namespace tessarin
