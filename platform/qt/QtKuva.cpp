#include "platform/qt/QtKuva.h"

#include <QImage>
#include <cmath>

#include "platform/qt/Letters.h"

namespace tessarin {
namespace {

constexpr int kUpwards = 900;  // tenths of a degree

bool Contains(const PixelRect& outer, const PixelRect& inner) {
    return inner.left >= outer.left && inner.right <= outer.right && inner.top >= outer.top &&
           inner.bottom <= outer.bottom;
}

Qt::CursorShape ShapeOf(MousePointer pointer) {
    switch (pointer) {
        case MousePointer::kCrosshair:
            return Qt::CrossCursor;
        case MousePointer::kHourglass:
            return Qt::WaitCursor;
        case MousePointer::kNormal:
            break;
    }
    return Qt::ArrowCursor;
}

}  // namespace

void QtKuva::UpdateView() {
    if (view_) {
        view_->update();
    }
}

void QtKuva::SetPlace(int left, int top) {
    RasterKuva::SetPlace(left, top);
    UpdateView();
}

void QtKuva::SetSize(int width, int height) {
    RasterKuva::SetSize(width, height);
    UpdateView();
}

void QtKuva::SetVisible(bool visible) {
    RasterKuva::SetVisible(visible);
    UpdateView();
}

void QtKuva::SetBackColor(Rgb color) {
    RasterKuva::SetBackColor(color);
    if (!(color == backColor_)) {
        backColor_ = color;
        UpdateView();
    }
}

void QtKuva::SetMousePointer(MousePointer pointer) {
    if (pointer == Pointer()) {
        return;
    }
    RasterKuva::SetMousePointer(pointer);
    if (view_) {
        view_->setCursor(ShapeOf(pointer));
    }
}

void QtKuva::PaintText(Layer& layer, const TextRun& run) {
    void* bytes = layer.Pixels();
    QImage image(static_cast<uchar*>(bytes), layer.Width(), layer.Height(),
                 qsizetype{layer.Width()} * 4, QImage::Format_RGB32);
    const Letters letters{run.text, run.x, run.y, run.color, Ratio()};
    if (run.tenths == 0) {
        PaintAcross(image, letters);
    } else if (run.tenths == kUpwards) {
        PaintUpwards(image, letters);  // on whole pixels
    } else {
        PaintTurned(image, letters, run.tenths);
    }
}

void QtKuva::Changed(const PixelRect& rect) {
    const PixelRect seen = Shown().Clipped(rect);
    if (!view_ || seen.IsEmpty() || Contains(waiting_, seen)) {
        return;
    }
    waiting_ = waiting_.Joined(seen);
    const auto before = [&](int place) { return static_cast<int>(std::floor(place / Ratio())); };
    const auto behind = [&](int place) { return static_cast<int>(std::ceil(place / Ratio())); };
    const int left = before(waiting_.left);
    const int top = before(waiting_.top);
    view_->update(Left() + left, Top() + top, behind(waiting_.right) - left,
                  behind(waiting_.bottom) - top);
}

}  // namespace tessarin
