#include "platform/qt/ChildWindow.h"

#include <QCloseEvent>
#include <QPointer>

namespace tessarin {
namespace {

constexpr int kFirstSize = 267;  // 4000 twips, so that a new window finds its place at that size
constexpr int kSmallest = 24;

}  // namespace

ChildWindow::ChildWindow(QWidget* content, ChildEvents& events) : events_(&events) {
    setWidget(content);
    resize(kFirstSize, kFirstSize);
}

QSize ChildWindow::minimumSizeHint() const {
    return {kSmallest, kSmallest};
}

// A window that is about to be minimised or to fill the area still has its own geometry in the
// last move or resize before that.
void ChildWindow::KeepGeometry() {
    if (HasOwnSize()) {
        own_ = geometry();
    }
}

void ChildWindow::changeEvent(QEvent* event) {
    QMdiSubWindow::changeEvent(event);
    KeepGeometry();
}

void ChildWindow::moveEvent(QMoveEvent* event) {
    QMdiSubWindow::moveEvent(event);
    KeepGeometry();
}

void ChildWindow::resizeEvent(QResizeEvent* event) {
    QMdiSubWindow::resizeEvent(event);
    KeepGeometry();
}

void ChildWindow::closeEvent(QCloseEvent* event) {
    // Whether the window goes is up to its receiver, not to Qt.
    event->ignore();
    if (events_ == nullptr) {
        return;
    }
    const QPointer<ChildWindow> self(this);
    events_->Closing();
    if (self && events_ != nullptr) {
        hide();
    }
}

}  // namespace tessarin
