#include "platform/qt/ChildInput.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace tessarin {
namespace {

constexpr int kOtherKey = 0;

// The child window that holds the widget; not one that a dialog or pop-up menu belongs to.
ChildWindow* ChildAround(QObject* receiver) {
    auto* widget = qobject_cast<QWidget*>(receiver);
    while (widget != nullptr && !widget->isWindow()) {
        if (auto* child = dynamic_cast<ChildWindow*>(widget)) {
            return child;
        }
        widget = widget->parentWidget();
    }
    return nullptr;
}

}  // namespace

ChildInput::ChildInput(ActiveChild& active) : active_(active) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool ChildInput::eventFilter(QObject* receiver, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            if (ChildWindow* child = ChildAround(receiver)) {
                Pressed(*child, static_cast<const QMouseEvent&>(*event));
            }
            break;
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            // A key comes by once as the window's and then again for each widget it is offered to.
            if (receiver->isWindowType()) {
                KeyMoved(static_cast<const QKeyEvent&>(*event));
            }
            break;
        default:
            break;
    }
    return false;
}

void ChildInput::Pressed(ChildWindow& window, const QMouseEvent& mouse) {
    FormEvents* events = window.Events();
    if (events == nullptr) {
        return;
    }
    // Shift may have been pressed or let go while another program had the keyboard.
    if (mouse.modifiers().testFlag(Qt::ShiftModifier)) {
        events->Form_KeyDown(kKeyShift);
    } else {
        events->Form_KeyUp(kKeyShift);
    }
    active_.Activate(window);
}

void ChildInput::KeyMoved(const QKeyEvent& key) {
    ChildWindow* child = active_.Current();
    if (child == nullptr || child->Events() == nullptr || key.isAutoRepeat()) {
        return;
    }
    const bool isShift = key.key() == Qt::Key_Shift;
    if (key.type() == QEvent::KeyRelease) {
        child->Events()->Form_KeyUp(isShift ? kKeyShift : kOtherKey);
    } else if (isShift) {
        child->Events()->Form_KeyDown(kKeyShift);
    }
}

}  // namespace tessarin
