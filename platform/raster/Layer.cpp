#include "platform/raster/Layer.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdlib>

namespace tessarin {
namespace {

// Places further out than this are on no surface.
constexpr double kFarOut = 1e8;

bool IsNear(double x, double y) {
    return x > -kFarOut && x < kFarOut && y > -kFarOut && y < kFarOut;
}

int BlockSize(int pixels, double ratio) {
    return std::max(1, NearestPixel(pixels * ratio));
}

}  // namespace

PixelRect PixelRect::Joined(const PixelRect& other) const {
    if (IsEmpty()) {
        return other;
    }
    if (other.IsEmpty()) {
        return *this;
    }
    return {std::min(left, other.left), std::min(top, other.top), std::max(right, other.right),
            std::max(bottom, other.bottom)};
}

int NearestPixel(double x) {
    // Adding 1.5 * 2^52 leaves the rounded number in the low bits of the mantissa.
    constexpr double kMagic = 6755399441055744.0;
    return static_cast<int>(static_cast<uint32_t>(std::bit_cast<uint64_t>(x + kMagic)));
}

void Layer::Resize(int width, int height, uint32_t pixel) {
    pixels_.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), pixel);
    width_ = width;  // not before there are the pixels
    height_ = height;
}

void Layer::Fill(uint32_t pixel) {
    std::fill(pixels_.begin(), pixels_.end(), pixel);
}

PixelRect Layer::Clipped(const PixelRect& rect) const {
    return {std::clamp(rect.left, 0, width_), std::clamp(rect.top, 0, height_),
            std::clamp(rect.right, 0, width_), std::clamp(rect.bottom, 0, height_)};
}

void Layer::CopyRect(const Layer& from, const PixelRect& rect) {
    const PixelRect part = Clipped(rect);
    if (part.IsEmpty()) {
        return;
    }
    for (int y = part.top; y < part.bottom; ++y) {
        const std::size_t start = static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                                  static_cast<std::size_t>(part.left);
        std::copy_n(from.pixels_.begin() + static_cast<std::ptrdiff_t>(start),
                    part.right - part.left, pixels_.begin() + static_cast<std::ptrdiff_t>(start));
    }
}

void Layer::FillRect(const PixelRect& rect, uint32_t pixel) {
    const PixelRect part = Clipped(rect);
    if (part.IsEmpty()) {
        return;
    }
    for (int y = part.top; y < part.bottom; ++y) {
        std::fill_n(Row(y) + part.left, part.right - part.left, pixel);
    }
}

void Layer::StampLine(int x1, int y1, int x2, int y2, int thickness, uint32_t pixel) {
    if (x1 == x2 || y1 == y2) {
        FillRect({std::min(x1, x2), std::min(y1, y2), std::max(x1, x2) + thickness,
                  std::max(y1, y2) + thickness},
                 pixel);
        return;
    }
    const int dx = std::abs(x2 - x1);
    const int dy = -std::abs(y2 - y1);
    const int stepX = x1 < x2 ? 1 : -1;
    const int stepY = y1 < y2 ? 1 : -1;
    for (int error = dx + dy;;) {
        FillRect({x1, y1, x1 + thickness, y1 + thickness}, pixel);
        if (x1 == x2 && y1 == y2) {
            return;
        }
        const int twice = 2 * error;
        if (twice >= dy) {
            error += dy;
            x1 += stepX;
        }
        if (twice <= dx) {
            error += dx;
            y1 += stepY;
        }
    }
}

void Layer::Ring(double x, double y, double radius, double thickness, uint32_t pixel) {
    if (!IsNear(x, y) || !(radius < kFarOut)) {
        return;
    }
    const double inner = std::max(0.0, radius - thickness);
    const PixelRect part = Clipped({NearestPixel(x - radius) - 1, NearestPixel(y - radius) - 1,
                                    NearestPixel(x + radius) + 2, NearestPixel(y + radius) + 2});
    for (int row = part.top; row < part.bottom; ++row) {
        for (int column = part.left; column < part.right; ++column) {
            const double distance = std::hypot(column - x, row - y);
            if (distance <= radius + 0.5 && (inner == 0 || distance > inner + 0.5)) {
                Row(row)[column] = pixel;
            }
        }
    }
}

void Layer::Disc(double x, double y, double radius, uint32_t pixel) {
    Ring(x, y, radius, radius, pixel);
}

void Layer::PaintDots(const Blocks& blocks, double ratio) {
    const auto width = static_cast<unsigned>(width_);
    const auto height = static_cast<unsigned>(height_);
    uint32_t* const pixels = pixels_.data();
    for (std::size_t i = 0; i < blocks.x.size(); ++i) {
        const double x = blocks.x[i] * ratio;
        const double y = blocks.y[i] * ratio;
        if (!IsNear(x, y)) {
            continue;
        }
        const auto column = static_cast<unsigned>(NearestPixel(x));
        const auto row = static_cast<unsigned>(NearestPixel(y));
        if (column < width && row < height) {
            pixels[static_cast<std::size_t>(row) * width + column] = blocks.pixel[i];
        }
    }
}

void Layer::PaintBlocks(const Blocks& blocks, double ratio) {
    const int width = BlockSize(blocks.width, ratio);
    const int height = BlockSize(blocks.height, ratio);
    if (width == 1 && height == 1) {
        PaintDots(blocks, ratio);
        return;
    }
    for (std::size_t i = 0; i < blocks.x.size(); ++i) {
        const double x = blocks.x[i] * ratio;
        const double y = blocks.y[i] * ratio;
        if (IsNear(x, y)) {
            const int left = NearestPixel(x);
            const int top = NearestPixel(y);
            FillRect({left, top, left + width, top + height}, blocks.pixel[i]);
        }
    }
}

void Layer::PaintPicture(const Bitmap& picture, const PixelRect& to) {
    const PixelRect part = Clipped(to);
    if (part.IsEmpty() || picture.width < 1 || picture.height < 1) {
        return;
    }
    const int64_t toWidth = to.right - to.left;
    const int64_t toHeight = to.bottom - to.top;
    for (int y = part.top; y < part.bottom; ++y) {
        const auto fromY = static_cast<int>(int64_t{y - to.top} * picture.height / toHeight);
        for (int x = part.left; x < part.right; ++x) {
            const auto fromX = static_cast<int>(int64_t{x - to.left} * picture.width / toWidth);
            Row(y)[x] = picture.At(fromX, fromY);
        }
    }
}

}  // namespace tessarin
