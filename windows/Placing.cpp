#include "windows/Placing.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <tuple>
#include <vector>

namespace tessarin {
namespace {

constexpr int kTitleBar = 24;  // pixels, about

int Right(const PixelBox& box) {
    return box.left + box.width;
}

int Bottom(const PixelBox& box) {
    return box.top + box.height;
}

// Square pixels that two boxes share.
int64_t Shared(const PixelBox& a, const PixelBox& b) {
    const int64_t width = std::min(Right(a), Right(b)) - std::max(a.left, b.left);
    const int64_t height = std::min(Bottom(a), Bottom(b)) - std::max(a.top, b.top);
    return std::max<int64_t>(0, width) * std::max<int64_t>(0, height);
}

int64_t Covered(const PixelBox& window, std::span<const PixelBox> taken) {
    int64_t sum = 0;
    for (const PixelBox& box : taken) {
        sum += Shared(window, box);
    }
    return sum;
}

// How far two boxes are apart, across and down.
int Gap(const PixelBox& a, const PixelBox& b) {
    return std::max({0, a.left - Right(b), b.left - Right(a)}) +
           std::max({0, a.top - Bottom(b), b.top - Bottom(a)});
}

PixelBox Whole(PixelSize area) {
    return {0, 0, area.width, area.height};
}

bool IsInside(const PixelBox& window, PixelSize area) {
    return window.left >= 0 && window.top >= 0 && Right(window) <= area.width &&
           Bottom(window) <= area.height;
}

bool IsHalfSeen(const PixelBox& box, PixelSize area) {
    return 2 * Shared(box, Whole(area)) >= int64_t{box.width} * box.height;
}

// Where a window can begin along one axis without a gap to another one: at the ends of the room for
// it, behind each of those taken and before it.
using Ends = std::array<int, 2>;

std::vector<int> Beginnings(int length, int room, std::span<const Ends> taken) {
    std::vector<int> places = {0, room - length};
    for (const Ends& ends : taken) {
        places.push_back(ends[1]);
        places.push_back(ends[0] - length);
    }
    for (int& place : places) {
        place = std::clamp(place, 0, std::max(0, room - length));
    }
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

struct Grid {
    std::vector<int> lefts;
    std::vector<int> tops;
};

Grid Corners(PixelSize window, PixelSize area, std::span<const PixelBox> taken) {
    std::vector<Ends> across;
    std::vector<Ends> down;
    for (const PixelBox& box : taken) {
        across.push_back({box.left, Right(box)});
        down.push_back({box.top, Bottom(box)});
    }
    return {Beginnings(window.width, area.width, across),
            Beginnings(window.height, area.height, down)};
}

// The search for a place beside an owner.
class Beside {
  public:
    Beside(const PixelBox& owner, PixelSize window, PixelSize area, std::span<const PixelBox> taken)
        : owner_(owner),
          window_(window),
          area_(area),
          taken_(taken),
          corners_(Corners(window, area, taken)) {
        corners_.lefts.push_back(owner.left);
        corners_.tops.push_back(owner.top);
    }

    PixelBox Place() const {
        std::optional<PixelBox> place = Across(Right(owner_));
        place = place ? place : Down(Bottom(owner_));
        place = place ? place : Across(owner_.left - window_.width);
        place = place ? place : Down(owner_.top - window_.height);
        return place ? *place : Least();
    }

  private:
    PixelBox At(int left, int top) const { return {left, top, window_.width, window_.height}; }

    bool IsFree(const PixelBox& box) const {
        return IsInside(box, area_) && Covered(box, taken_) == 0;
    }

    // At the right or left: as near as can be to the owner's upper edge, and beside it somewhere.
    std::optional<PixelBox> Across(int left) const {
        std::optional<PixelBox> best;
        for (const int top : corners_.tops) {
            const PixelBox box = At(left, top);
            const bool nearer =
                !best || std::abs(top - owner_.top) < std::abs(best->top - owner_.top);
            if (nearer && top < Bottom(owner_) && Bottom(box) > owner_.top && IsFree(box)) {
                best = box;
            }
        }
        return best;
    }

    // Below or above, likewise.
    std::optional<PixelBox> Down(int top) const {
        std::optional<PixelBox> best;
        for (const int left : corners_.lefts) {
            const PixelBox box = At(left, top);
            const bool nearer =
                !best || std::abs(left - owner_.left) < std::abs(best->left - owner_.left);
            if (nearer && left < Right(owner_) && Right(box) > owner_.left && IsFree(box)) {
                best = box;
            }
        }
        return best;
    }

    // Of places that cover the same, the one nearest to the owner, and with its corner nearest to
    // the owner's.
    PixelBox Least() const {
        using Cost = std::tuple<int64_t, int64_t, int, int>;
        std::optional<Cost> least;
        PixelBox place = MovedIn(At(Right(owner_), owner_.top), area_);
        for (const int top : corners_.tops) {
            for (const int left : corners_.lefts) {
                const PixelBox box = MovedIn(At(left, top), area_);
                const Cost cost{Shared(box, owner_), Covered(box, taken_), Gap(box, owner_),
                                std::abs(box.left - owner_.left) + std::abs(box.top - owner_.top)};
                if (!least || cost < *least) {
                    least = cost;
                    place = box;
                }
            }
        }
        return place;
    }

    PixelBox owner_;
    PixelSize window_;
    PixelSize area_;
    std::span<const PixelBox> taken_;
    Grid corners_;
};

}  // namespace

std::optional<PixelBox> FreePlace(PixelSize window, PixelSize area,
                                  std::span<const PixelBox> taken) {
    const Grid corners = Corners(window, area, taken);
    for (const int top : corners.tops) {
        for (const int left : corners.lefts) {
            const PixelBox box{left, top, window.width, window.height};
            if (IsInside(box, area) && Covered(box, taken) == 0) {
                return box;
            }
        }
    }
    return std::nullopt;
}

PixelBox PlaceBeside(const PixelBox& owner, PixelSize window, PixelSize area,
                     std::span<const PixelBox> taken) {
    return Beside(owner, window, area, taken).Place();
}

bool IsInReach(const PixelBox& window, PixelSize area) {
    const PixelBox title{window.left, window.top, window.width, std::min(kTitleBar, window.height)};
    return IsHalfSeen(window, area) && IsHalfSeen(title, area);
}

PixelBox MovedIn(PixelBox window, PixelSize area) {
    window.left = std::max(0, std::min(window.left, area.width - window.width));
    window.top = std::max(0, std::min(window.top, area.height - window.height));
    return window;
}

}  // namespace tessarin
