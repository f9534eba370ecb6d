#include "platform/qt/ChildFrame.h"

#include <QLayout>
#include <algorithm>

#include "platform/qt/Conversions.h"

namespace tessarin {
namespace {

// Sizes and places come from sheets too. Beyond this a picture would not fit into memory, and a
// window would not be found again.
constexpr int kLargest = 8192;

int SizePixels(Twips size) {
    return std::clamp(PixelsFromTwips(size), 1, kLargest);
}

int PlacePixels(Twips place) {
    return std::clamp(PixelsFromTwips(place), -kLargest, kLargest);
}

}  // namespace

ChildFrame::ChildFrame(ChildArea& area, ActiveChild& active, QWidget* content, ChildEvents& events)
    : area_(&area), window_(new ChildWindow(content, events)), active_(&active) {
    area.addSubWindow(window_);
}

ChildFrame::~ChildFrame() {
    if (window_ && active_) {
        window_->Detach();
        active_->TakeAway(*window_);
    }
}

void ChildFrame::SetCaption(std::string_view caption) {
    if (window_) {
        window_->SetTitle(caption);
    }
}

void ChildFrame::SetOuterSize(Twips width, Twips height) {
    if (!window_) {
        return;
    }
    if (!HasOwnSize()) {
        window_->showNormal();
    }
    const QSize size(SizePixels(width), SizePixels(height));
    if (!resizable_) {
        window_->setFixedSize(size);
    }
    window_->resize(size);
    width_.Set(width, window_->OwnGeometry().width());
    height_.Set(height, window_->OwnGeometry().height());
}

void ChildFrame::SetResizable(bool resizable) {
    resizable_ = resizable;
    if (!window_) {
        return;
    }
    window_->setWindowFlag(Qt::WindowMaximizeButtonHint, resizable);
    if (resizable) {
        window_->setMinimumSize(0, 0);
        window_->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    } else {
        window_->setFixedSize(window_->size());
    }
}

Twips ChildFrame::OuterWidth() const {
    return window_ ? width_.At(window_->OwnGeometry().width()) : Twips();
}

Twips ChildFrame::OuterHeight() const {
    return window_ ? height_.At(window_->OwnGeometry().height()) : Twips();
}

bool ChildFrame::HasOwnSize() const {
    return window_ != nullptr && window_->HasOwnSize();
}

QSize ChildFrame::ClientSize() const {
    if (!window_ || window_->isMinimized()) {
        return {0, 0};
    }
    // A window that is not shown yet has not laid out its inside.
    window_->layout()->activate();
    return window_->widget()->size().expandedTo({0, 0});
}

Twips ChildFrame::Left() const {
    return window_ ? left_.At(window_->OwnGeometry().x()) : Twips();
}

Twips ChildFrame::Top() const {
    return window_ ? top_.At(window_->OwnGeometry().y()) : Twips();
}

void ChildFrame::SetPlace(Twips left, Twips top) {
    if (window_) {
        window_->move(PlacePixels(left), PlacePixels(top));
        left_.Set(left, window_->OwnGeometry().x());
        top_.Set(top, window_->OwnGeometry().y());
    }
}

QSize ChildFrame::AreaSize() const {
    return area_ ? area_->viewport()->size() : QSize(0, 0);
}

std::vector<PixelBox> ChildFrame::Neighbours() const {
    std::vector<PixelBox> boxes;
    const auto add = [&boxes](const QRect& place) {
        boxes.push_back({place.x(), place.y(), place.width(), place.height()});
    };
    if (!area_) {
        return boxes;
    }
    const QList<QMdiSubWindow*> children = area_->subWindowList();
    for (QMdiSubWindow* each : children) {
        const auto* child = dynamic_cast<ChildWindow*>(each);
        if (child != nullptr && child != window_ && !child->isHidden()) {
            add(child->isMaximized() ? child->OwnGeometry() : child->geometry());
        }
    }
    if (!area_->Covered().isEmpty()) {
        add(area_->Covered());
    }
    return boxes;
}

void ChildFrame::Show() {
    if (!window_ || !active_) {
        return;
    }
    if (window_->isMinimized()) {
        window_->showNormal();
    } else {
        window_->show();
    }
    active_->Activate(*window_);
}

void ChildFrame::ShowBeside() {
    if (window_ && active_) {
        active_->ShowBeside(*window_);
    }
}

void ChildFrame::Hide() {
    if (window_ && active_) {
        active_->TakeAway(*window_);
    }
}

}  // namespace tessarin
