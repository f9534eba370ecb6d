// One layer of a picture: pixels in memory and the shapes that are painted into them.
#pragma once

#include <cstdint>
#include <vector>

#include "core/Bitmap.h"
#include "platform/Kuva.h"

namespace tessarin {

/// A rectangle of device pixels, right and bottom edge not included; empty when nothing is in it.
struct PixelRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool IsEmpty() const { return left >= right || top >= bottom; }
    /// The smallest rectangle that holds both.
    PixelRect Joined(const PixelRect& other) const;
};

/// The nearest whole number, ties to even, for the device places of `RasterKuva`.
/// REQUIRES: |x| is below 2^31.
int NearestPixel(double x);

/// Every place and size here is in device pixels and may lie outside; only what is inside is
/// painted. `pixel` is a colour word as `Rgb::Pixel` gives it.
class Layer {
  public:
    /// REQUIRES: width and height at least 1.
    void Resize(int width, int height, uint32_t pixel);
    int Width() const { return width_; }
    int Height() const { return height_; }
    uint32_t* Pixels() { return pixels_.data(); }
    const uint32_t* Pixels() const { return pixels_.data(); }
    const std::vector<uint32_t>& AllPixels() const { return pixels_; }

    void Fill(uint32_t pixel);
    /// Takes over that part of a layer of the same size.
    void CopyRect(const Layer& from, const PixelRect& rect);

    void FillRect(const PixelRect& rect, uint32_t pixel);
    /// A line whose points are squares of `thickness`, their upper left corners on the line.
    void StampLine(int x1, int y1, int x2, int y2, int thickness, uint32_t pixel);
    /// A ring of that thickness inside the radius.
    void Ring(double x, double y, double radius, double thickness, uint32_t pixel);
    void Disc(double x, double y, double radius, uint32_t pixel);
    /// Places and sizes of the blocks are multiplied by `ratio` first.
    void PaintBlocks(const Blocks& blocks, double ratio);
    /// Stretched with the nearest pixel of the picture.
    void PaintPicture(const Bitmap& picture, const PixelRect& to);

    /// The part of a rectangle that lies on this layer.
    PixelRect Clipped(const PixelRect& rect) const;

  private:
    uint32_t* Row(int y) {
        return pixels_.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width_);
    }
    void PaintDots(const Blocks& blocks, double ratio);

    int width_ = 0;
    int height_ = 0;
    std::vector<uint32_t> pixels_;
};

}  // namespace tessarin
