#include "platform/qt/ChildInput.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>

#include "platform/Form.h"

namespace tessarin {
namespace {

int CodeOf(int key) {
    switch (key) {
        case Qt::Key_Shift:
            return kKeyShift;
        case Qt::Key_Escape:
            return kKeyEscape;
        case Qt::Key_Backspace:
            return kKeyBackspace;
        case Qt::Key_Delete:
            return kKeyDelete;
        default:
            break;
    }
    const bool letter = key >= Qt::Key_A && key <= Qt::Key_Z;
    const bool digit = key >= Qt::Key_0 && key <= Qt::Key_9;
    return letter || digit ? key : 0;
}

KeyEvent Translated(const QKeyEvent& key) {
    return {CodeOf(key.key()), key.modifiers().testFlag(Qt::ShiftModifier),
            key.modifiers().testFlag(Qt::ControlModifier)};
}

// The child window at that place of a top-level window; nullptr when there is none.
ChildWindow* ChildAt(const QWindow& window, const QPoint& place) {
    QWidget* top = QWidget::find(window.winId());
    QWidget* widget = top == nullptr ? nullptr : top->childAt(place);
    while (widget != nullptr) {
        if (auto* child = dynamic_cast<ChildWindow*>(widget)) {
            return child;
        }
        widget = widget->parentWidget();
    }
    return nullptr;
}

}  // namespace

ChildInput::ChildInput(ActiveChild& active) : active_(active) {
    QApplication::instance()->installEventFilter(this);
}

// Input is seen on its way to the top-level window, once. When it has come down to the widgets, Qt
// has moved the focus already and with it perhaps activated a child.
bool ChildInput::eventFilter(QObject* receiver, QEvent* event) {
    if (!receiver->isWindowType()) {
        return false;
    }
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            Pressed(static_cast<const QWindow&>(*receiver),
                    static_cast<const QMouseEvent&>(*event));
            break;
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            KeyMoved(static_cast<const QKeyEvent&>(*event));
            break;
        default:
            break;
    }
    return false;
}

void ChildInput::Pressed(const QWindow& window, const QMouseEvent& mouse) {
    // With a pop-up menu open the press is for the menu.
    ChildWindow* child = QApplication::activePopupWidget() == nullptr
                             ? ChildAt(window, mouse.position().toPoint())
                             : nullptr;
    if (child == nullptr || child->Events() == nullptr) {
        return;
    }
    // Shift may have been pressed or let go while another program had the keyboard.
    TellShift(*child, mouse.modifiers().testFlag(Qt::ShiftModifier));
    active_.Activate(*child);
}

void ChildInput::KeyMoved(const QKeyEvent& key) {
    ChildWindow* child = active_.Current();
    if (child == nullptr || child->Events() == nullptr || key.isAutoRepeat()) {
        return;
    }
    if (key.key() == Qt::Key_Shift) {
        TellShift(*child, key.type() == QEvent::KeyPress);
    } else if (key.type() == QEvent::KeyPress) {
        child->Events()->KeyDown(Translated(key));
    } else {
        child->Events()->KeyUp(Translated(key));
    }
}

void ChildInput::TellShift(ChildWindow& child, bool down) {
    if (holder_ && holder_ != &child && holder_->Events() != nullptr) {
        holder_->Events()->KeyUp({kKeyShift});
    }
    holder_ = down ? &child : nullptr;
    if (down) {
        child.Events()->KeyDown({kKeyShift});
    } else {
        child.Events()->KeyUp({kKeyShift});
    }
}

}  // namespace tessarin
