#include "platform/qt/KuvaWidget.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>

#include "platform/qt/Conversions.h"

namespace tessarin {
namespace {

MouseButton ButtonOf(Qt::MouseButton button) {
    switch (button) {
        case Qt::LeftButton:
            return MouseButton::kLeft;
        case Qt::RightButton:
            return MouseButton::kRight;
        default:
            return MouseButton::kNone;
    }
}

MouseButton FirstOf(Qt::MouseButtons buttons) {
    if (buttons.testFlag(Qt::LeftButton)) {
        return MouseButton::kLeft;
    }
    return buttons.testFlag(Qt::RightButton) ? MouseButton::kRight : MouseButton::kNone;
}

bool TakesMouseAway(const QEvent& event) {
    switch (event.type()) {
        case QEvent::UngrabMouse:
        case QEvent::WindowDeactivate:
        case QEvent::Hide:
            return true;
        case QEvent::FocusOut:
            return static_cast<const QFocusEvent&>(event).reason() == Qt::PopupFocusReason;
        default:
            return false;
    }
}

}  // namespace

KuvaWidget::KuvaWidget(QtKuva& kuva, FormEvents& events) : kuva_(&kuva), events_(&events) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);
    setCursor(Qt::ArrowCursor);  // else that of a window edge would stay
    setMinimumSize(0, 0);
    kuva_->SetView(this);
    kuva_->SetRatio(devicePixelRatioF());
}

void KuvaWidget::Detach() {
    kuva_ = nullptr;
    events_ = nullptr;
}

QSize KuvaWidget::sizeHint() const {
    return {240, 240};
}

bool KuvaWidget::event(QEvent* event) {
    if (TakesMouseAway(*event)) {
        LoseMouse();
    } else if (event->type() == QEvent::Show || event->type() == QEvent::ScreenChangeInternal) {
        FollowRatio();
    }
    return QWidget::event(event);
}

void KuvaWidget::FollowRatio() {
    if (kuva_ == nullptr || kuva_->Ratio() == devicePixelRatioF()) {
        return;
    }
    kuva_->SetRatio(devicePixelRatioF());
    events_->Form_Resize(false);
}

void KuvaWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    if (kuva_ == nullptr) {
        painter.fillRect(event->rect(), Qt::black);
        return;
    }
    if (kuva_->Ratio() != devicePixelRatioF()) {
        // The new picture cannot be drawn in the middle of painting.
        QTimer::singleShot(0, this, [this] { FollowRatio(); });
    }
    QRegion uncovered = event->region();
    if (kuva_->IsVisible()) {
        const Layer& shown = kuva_->Shown();
        const void* bytes = shown.Pixels();
        QImage image(static_cast<const uchar*>(bytes), shown.Width(), shown.Height(),
                     qsizetype{shown.Width()} * 4, QImage::Format_RGB32);
        image.setDevicePixelRatio(kuva_->Ratio());
        // Clipped to the exposed region, so only that part is copied.
        painter.drawImage(kuva_->Left(), kuva_->Top(), image);
        uncovered -= QRect(kuva_->Left(), kuva_->Top(), kuva_->Width(), kuva_->Height());
    }
    for (const QRect& rest : uncovered) {
        painter.fillRect(rest,
                         HasControls() ? palette().window() : QBrush(ToQt(kuva_->BackColor())));
    }
    kuva_->Painted();
}

void KuvaWidget::resizeEvent(QResizeEvent* /*event*/) {
    if (events_ != nullptr && size() != told_) {
        told_ = size();
        events_->Form_Resize(!programResizes_);
    }
}

MouseEvent KuvaWidget::Translated(const QMouseEvent& event, MouseButton button) const {
    const QPointF place = event.position();
    return {button, event.modifiers().testFlag(Qt::ShiftModifier), place.x() - kuva_->Left(),
            place.y() - kuva_->Top()};
}

void KuvaWidget::mousePressEvent(QMouseEvent* event) {
    const MouseButton button = ButtonOf(event->button());
    if (events_ == nullptr || button == MouseButton::kNone || !kuva_->IsVisible()) {
        return;
    }
    down_ = button;
    pressing_ = true;
    lostWhilePressing_ = false;
    // A press may open a pop-up menu and wait for it; all sorts of things happen meanwhile.
    const QPointer<KuvaWidget> self(this);
    events_->Kuva_MouseDown(Translated(*event, button));
    if (self) {
        pressing_ = false;
        if (lostWhilePressing_) {
            LoseMouse();
        }
    }
}

// The second press of a double click is a press too: corners are placed as fast as one likes.
void KuvaWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    const QPointer<KuvaWidget> self(this);
    mousePressEvent(event);
    if (self && events_ != nullptr && event->button() == Qt::LeftButton) {
        events_->Kuva_DoubleClick(Translated(*event, MouseButton::kLeft));
    }
}

void KuvaWidget::TellMove() {
    if (events_ != nullptr) {
        events_->Form_MouseMove();
    }
}

bool KuvaWidget::HasControls() const {
    return findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly) != nullptr;
}

void KuvaWidget::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() == Qt::NoButton) {
        LoseMouse();
    }
    if (events_ == nullptr) {
        return;
    }
    if (kuva_->IsVisible()) {
        events_->Kuva_MouseMove(Translated(*event, FirstOf(event->buttons())));
    } else {
        events_->Form_MouseMove();
    }
}

void KuvaWidget::mouseReleaseEvent(QMouseEvent* event) {
    const MouseButton button = ButtonOf(event->button());
    if (events_ == nullptr || button == MouseButton::kNone || !kuva_->IsVisible()) {
        return;
    }
    if (button == down_) {
        down_ = MouseButton::kNone;
    }
    events_->Kuva_MouseUp(Translated(*event, button));
}

void KuvaWidget::LoseMouse() {
    if (events_ == nullptr || down_ == MouseButton::kNone) {
        return;
    }
    if (pressing_) {
        lostWhilePressing_ = true;
        return;
    }
    down_ = MouseButton::kNone;
    events_->Kuva_MouseLost();
}

}  // namespace tessarin
