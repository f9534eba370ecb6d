#include "platform/raster/RasterKuva.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/Text.h"

namespace tessarin {
namespace {

// Shapes are cut off this many device pixels outside the surface, so that a corner far away costs
// no time and fits a whole number.
constexpr double kSlack = 20000;

double Limited(double place) {
    return std::isnan(place) ? -kSlack : std::clamp(place, -kSlack, kSlack * 2);
}

// Cuts the line to the slack around the surface; false when nothing of it is left.
bool ClipLine(double& x1, double& y1, double& x2, double& y2) {
    constexpr double low = -kSlack;
    constexpr double high = kSlack * 2;
    if (!std::isfinite(x1) || !std::isfinite(y1) || !std::isfinite(x2) || !std::isfinite(y2)) {
        return false;
    }
    const double dx = x2 - x1;
    const double dy = y2 - y1;
    double from = 0;
    double to = 1;
    const auto cut = [&](double direction, double distance) {
        if (direction == 0) {
            return distance >= 0;
        }
        const double at = distance / direction;
        if (direction < 0) {
            from = std::max(from, at);
        } else {
            to = std::min(to, at);
        }
        return from <= to;
    };
    if (!cut(-dx, x1 - low) || !cut(dx, high - x1) || !cut(-dy, y1 - low) || !cut(dy, high - y1)) {
        return false;
    }
    const double startX = x1;
    const double startY = y1;
    if (to < 1) {
        x2 = startX + to * dx;
        y2 = startY + to * dy;
    }
    if (from > 0) {
        x1 = startX + from * dx;
        y1 = startY + from * dy;
    }
    return true;
}

}  // namespace

RasterKuva::RasterKuva() {
    ResizeLayers();
}

void RasterKuva::SetPlace(int left, int top) {
    left_ = left;
    top_ = top;
}

void RasterKuva::SetSize(int width, int height) {
    if (width == width_ && height == height_) {
        return;
    }
    width_ = width;
    height_ = height;
    ResizeLayers();
}

void RasterKuva::SetRatio(double ratio) {
    if (ratio != ratio_) {
        ratio_ = ratio;
        ResizeLayers();
    }
}

void RasterKuva::ResizeLayers() {
    const int deviceWidth = std::max(1, NearestPixel(std::max(1, width_) * ratio_));
    const int deviceHeight = std::max(1, NearestPixel(std::max(1, height_) * ratio_));
    picture_.Resize(deviceWidth, deviceHeight, backColor_.Pixel());
    overlayShown_ = false;
    overlayTouched_ = {};
}

Layer& RasterKuva::Target() {
    if (autoRedraw_) {
        overlayShown_ = false;
        return picture_;
    }
    if (!overlayShown_) {
        overlay_ = picture_;
        overlayShown_ = true;
        overlayTouched_ = {};
    }
    return overlay_;
}

void RasterKuva::Touch(const PixelRect& rect) {
    if (!autoRedraw_) {
        overlayTouched_ = overlayTouched_.Joined(picture_.Clipped(rect));
    }
    Changed(rect);
}

void RasterKuva::Cls() {
    const PixelRect whole{0, 0, picture_.Width(), picture_.Height()};
    if (autoRedraw_) {
        overlayShown_ = false;
        picture_.Fill(backColor_.Pixel());
        Changed(whole);
    } else if (overlayShown_) {
        overlay_.CopyRect(picture_, overlayTouched_);
        Changed(overlayTouched_);
        overlayTouched_ = {};
    }
}

int RasterKuva::Device(double place) const {
    return NearestPixel(Limited(place * ratio_));
}

int RasterKuva::Thickness() const {
    return std::max(1, NearestPixel(drawWidth_ * ratio_));
}

PixelRect RasterKuva::DeviceBox(double x1, double y1, double x2, double y2) const {
    const int one = std::max(1, NearestPixel(ratio_));
    return {Device(std::min(x1, x2)), Device(std::min(y1, y2)), Device(std::max(x1, x2)) + one,
            Device(std::max(y1, y2)) + one};
}

void RasterKuva::DeviceLine(double x1, double y1, double x2, double y2, uint32_t pixel) {
    x1 *= ratio_;
    y1 *= ratio_;
    x2 *= ratio_;
    y2 *= ratio_;
    if (!ClipLine(x1, y1, x2, y2)) {
        return;
    }
    const int thickness = Thickness();
    const int left = NearestPixel(x1);
    const int top = NearestPixel(y1);
    const int right = NearestPixel(x2);
    const int bottom = NearestPixel(y2);
    Target().StampLine(left, top, right, bottom, thickness, pixel);
    Touch({std::min(left, right), std::min(top, bottom), std::max(left, right) + thickness,
           std::max(top, bottom) + thickness});
}

void RasterKuva::Line(double x1, double y1, double x2, double y2, Rgb color, LineForm form) {
    switch (form) {
        case LineForm::kLine:
            DeviceLine(x1, y1, x2, y2, color.Pixel());
            break;
        case LineForm::kBox:
            DeviceLine(x1, y1, x2, y1, color.Pixel());
            DeviceLine(x2, y1, x2, y2, color.Pixel());
            DeviceLine(x2, y2, x1, y2, color.Pixel());
            DeviceLine(x1, y2, x1, y1, color.Pixel());
            break;
        case LineForm::kFilledBox: {
            const PixelRect box = DeviceBox(x1, y1, x2, y2);
            Target().FillRect(box, color.Pixel());
            Touch(box);
            break;
        }
    }
}

void RasterKuva::PSet(double x, double y, Rgb color) {
    const uint32_t pixel = color.Pixel();
    const PixelRect place{Device(x), Device(y), Device(x) + Thickness(), Device(y) + Thickness()};
    Target().FillRect(place, pixel);
    Touch(place);
}

void RasterKuva::Circle(double x, double y, double radius, Rgb color) {
    Layer& layer = Target();
    if (filled_) {
        layer.Disc(x * ratio_, y * ratio_, radius * ratio_, fillColor_.Pixel());
    }
    layer.Ring(x * ratio_, y * ratio_, radius * ratio_, Thickness(), color.Pixel());
    Touch({Device(x - radius) - 1, Device(y - radius) - 1, Device(x + radius) + 2,
           Device(y + radius) + 2});
}

void RasterKuva::PaintBlocks(const Blocks& blocks) {
    Target().PaintBlocks(blocks, ratio_);
    Touch({0, 0, picture_.Width(), picture_.Height()});
}

void RasterKuva::PaintPicture(const Bitmap& picture, double x, double y, double width,
                              double height) {
    const PixelRect to{Device(x), Device(y), Device(x + width), Device(y + height)};
    Target().PaintPicture(picture, to);
    Touch(to);
}

void RasterKuva::SetCurrent(double x, double y) {
    currentX_ = x;
    currentY_ = y;
}

void RasterKuva::Print(std::string_view text) {
    if (text.empty()) {
        return;
    }
    PaintText(Target(), {text, currentX_, currentY_, foreColor_, tenths_});
    const double length = static_cast<double>(Length(text)) * kCharacterWidth;
    const double angle = tenths_ * std::numbers::pi / 1800;
    const double alongX = std::cos(angle) * length;
    const double alongY = -std::sin(angle) * length;
    const double downX = std::sin(angle) * kLineHeight;
    const double downY = std::cos(angle) * kLineHeight;
    const auto [left, right] = std::minmax({0.0, alongX, downX, alongX + downX});
    const auto [top, bottom] = std::minmax({0.0, alongY, downY, alongY + downY});
    // Letters may reach a little beyond their cells.
    constexpr int kOverhang = 4;
    Touch({Device(currentX_ + left) - kOverhang, Device(currentY_ + top) - kOverhang,
           Device(currentX_ + right) + kOverhang, Device(currentY_ + bottom) + kOverhang});
}

Bitmap RasterKuva::Image() const {
    return {picture_.Width(), picture_.Height(), ratio_, picture_.AllPixels()};
}

void RasterKuva::SetPicture(const Bitmap& picture) {
    SetSize(NearestPixel(picture.width / picture.ratio),
            NearestPixel(picture.height / picture.ratio));
    const PixelRect whole{0, 0, picture_.Width(), picture_.Height()};
    overlayShown_ = false;
    picture_.PaintPicture(picture, whole);
    Changed(whole);
}

}  // namespace tessarin
