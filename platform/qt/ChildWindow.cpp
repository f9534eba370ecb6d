#include "platform/qt/ChildWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHelpEvent>
#include <QPointer>
#include <QStyleOptionTitleBar>
#include <QToolTip>

#include "platform/qt/Conversions.h"
#include "platform/qt/TitleStyle.h"

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

void ChildWindow::SetTitle(std::string_view title) {
    title_ = ToQt(title);
    setWindowTitle(AsTitle(title));
}

// Whether that place is in the title, and the bar has less room than the title needs. The bar is
// laid out as the toolkit does it.
bool ChildWindow::TitleIsCutAt(QPoint place) const {
    constexpr int kEdge = 4;
    QStyleOptionTitleBar bar;
    bar.initFrom(this);
    bar.titleBarFlags = windowFlags();
    bar.titleBarState = static_cast<int>(static_cast<Qt::WindowStates::Int>(windowState()));
    bar.subControls = QStyle::SC_All;
    bar.rect = QRect(kEdge, kEdge, width() - 2 * kEdge,
                     style()->pixelMetric(QStyle::PM_TitleBarHeight, &bar, this) - kEdge);
    const QRect room =
        style()->subControlRect(QStyle::CC_TitleBar, &bar, QStyle::SC_TitleBarLabel, this);
    const QFontMetrics letters(QApplication::font("QMdiSubWindowTitleBar"));
    return room.contains(place) && letters.horizontalAdvance(title_) > TitleWidth(room);
}

bool ChildWindow::event(QEvent* event) {
    const bool handled = QMdiSubWindow::event(event);
    if (event->type() == QEvent::ToolTip) {
        const auto& help = static_cast<const QHelpEvent&>(*event);
        if (TitleIsCutAt(help.pos())) {
            QToolTip::showText(help.globalPos(), AsToolTip(title_), this);
        }
    }
    return handled;
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

// What stands on the background depends on whether there is a window to see.

void ChildWindow::showEvent(QShowEvent* event) {
    QMdiSubWindow::showEvent(event);
    if (parentWidget() != nullptr) {
        parentWidget()->update();
    }
}

void ChildWindow::hideEvent(QHideEvent* event) {
    QMdiSubWindow::hideEvent(event);
    if (parentWidget() != nullptr) {
        parentWidget()->update();
    }
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
