#include "platform/qt/QtForm.h"

#include <QLayout>
#include <algorithm>

#include "platform/qt/Conversions.h"

namespace tessarin {
namespace {

// Sizes come from sheets too; beyond this a picture would not fit into memory.
constexpr int kLargest = 8192;

int FramePixels(Twips size) {
    return std::clamp(PixelsFromTwips(size), 1, kLargest);
}

}  // namespace

QtForm::QtForm(QMdiArea& area, ActiveChild& active, FormEvents& events)
    : window_(new ChildWindow(kuva_, events)), active_(&active) {
    area.addSubWindow(window_);
}

QtForm::~QtForm() {
    if (window_ && active_) {
        window_->Detach();
        active_->TakeAway(*window_);
    }
}

void QtForm::SetCaption(std::string_view caption) {
    if (window_) {
        window_->setWindowTitle(AsTitle(caption));
    }
}

void QtForm::SetOuterSize(Twips width, Twips height) {
    if (!window_) {
        return;
    }
    if (!HasOwnSize()) {
        window_->showNormal();
    }
    window_->resize(FramePixels(width), FramePixels(height));
}

Twips QtForm::OuterWidth() const {
    return TwipsFromPixels(window_ ? window_->width() : 0);
}

Twips QtForm::OuterHeight() const {
    return TwipsFromPixels(window_ ? window_->height() : 0);
}

bool QtForm::HasOwnSize() const {
    return window_ && !window_->isMinimized() && !window_->isMaximized();
}

QSize QtForm::ClientSize() const {
    if (!window_ || window_->isMinimized()) {
        return {0, 0};
    }
    // A window that is not shown yet has not laid out its inside.
    window_->layout()->activate();
    return window_->Picture().size().expandedTo({0, 0});
}

void QtForm::Show() {
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

void QtForm::Hide() {
    if (window_ && active_) {
        active_->TakeAway(*window_);
    }
}

}  // namespace tessarin
