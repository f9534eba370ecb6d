#include "populations/PolygonTest.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>

#include "core/Numbers.h"
#include "core/WideVectors.h"

namespace tessarin {
namespace {

constexpr std::size_t kBlock = 512;  // its three tables stay in the first-level cache
constexpr int kTooManyCrossings = 11;

// An edge that is not level. At height y it stands at left + width * (y - foot) / rise. `foot` is
// the height of its left end, so an edge that falls with x has a negative rise; both forms give
// `left` or more, also after rounding.
struct Edge {
    double low;
    double high;
    double left;
    double width;
    double foot;
    double rise;
};

// Differences of two corners need 33 bits: they are taken as doubles, where they are exact.
Edge MakeEdge(Kulma from, Kulma to) {
    const Kulma left = from.x < to.x ? from : to;
    const Kulma right = from.x < to.x ? to : from;
    const double leftY = left.y;
    const double rightY = right.y;
    const double leftX = left.x;
    return {std::min(leftY, rightY), std::max(leftY, rightY), leftX, right.x - leftX, leftY,
            rightY - leftY};
}

std::vector<Edge> EdgesOf(std::span<const Kulma> polygon) {
    std::vector<Edge> edges;
    edges.reserve(polygon.size());
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const Kulma to = polygon[i + 1 < polygon.size() ? i + 1 : 0];
        if (polygon[i].y != to.y) {
            edges.push_back(MakeEdge(polygon[i], to));
        }
    }
    return edges;
}

// Some points as doubles, with the number of crossings of each. All three have one width, so that
// the loops over them run in vector registers.
class Block {
  public:
    Block(std::span<const float> xs, std::span<const float> ys) : size_(xs.size()) {
        for (std::size_t i = 0; i < size_; ++i) {
            x_[i] = static_cast<double>(xs[i]);
            y_[i] = static_cast<double>(ys[i]);
            crossings_[i] = 0;
        }
    }

    // A division by the rise of an edge is not the same as a product with its reciprocal: points
    // on an edge would change sides. So each point is divided, also where the edge does not reach,
    // because a branch would cost more.
    void Cross(const Edge edge) {
        for (std::size_t i = 0; i < size_; ++i) {
            const double x = edge.left + edge.width * (y_[i] - edge.foot) / edge.rise;
            const double above = edge.low < y_[i] ? 1 : 0;
            const double between = y_[i] < edge.high ? above : 0;
            crossings_[i] += x_[i] < x ? between : 0;
        }
    }

    void Store(std::span<uint8_t> inside) const {
        for (std::size_t i = 0; i < size_; ++i) {
            const int crossings = static_cast<int>(crossings_[i]);
            inside[i] = static_cast<uint8_t>(crossings < kTooManyCrossings ? crossings % 2 : 0);
        }
    }

  private:
    std::size_t size_;
    std::array<double, kBlock> x_;
    std::array<double, kBlock> y_;
    std::array<double, kBlock> crossings_;
};

}  // namespace

std::vector<Kulma> PopulaationKulmat(const Populaatio& population) {
    const int count = std::clamp<int>(population.Corners, 0, kMaxCorners);
    std::vector<Kulma> corners;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(count); ++i) {
        corners.push_back({ToInt32(Rounded(static_cast<double>(population.X[i]))),
                           ToInt32(Rounded(static_cast<double>(population.Y[i])))});
    }
    return corners;
}

TESSARIN_WIDE void PolygoninSisalla(std::span<const float> xs, std::span<const float> ys,
                                    std::span<const Kulma> polygon, std::span<uint8_t> inside) {
    assert(xs.size() == ys.size() && xs.size() == inside.size());
    const std::vector<Edge> edges = EdgesOf(polygon);
    for (std::size_t from = 0; from < xs.size(); from += kBlock) {
        const std::size_t count = std::min(kBlock, xs.size() - from);
        Block block(xs.subspan(from, count), ys.subspan(from, count));
        for (const Edge& edge : edges) {
            block.Cross(edge);
        }
        block.Store(inside.subspan(from, count));
    }
}

bool OnkoSisalla(float x, float y, std::span<const Kulma> polygon) {
    uint8_t inside = 0;
    PolygoninSisalla({&x, 1}, {&y, 1}, polygon, {&inside, 1});
    return inside == 1;
}

}  // namespace tessarin
