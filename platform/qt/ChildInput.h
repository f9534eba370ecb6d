// Keys and mouse presses on their way to the child windows.
#pragma once

#include <QMouseEvent>
#include <QObject>
#include <QPointer>

#include "platform/qt/ActiveChild.h"

namespace tessarin {

/// Sees the whole program's events before anybody else does.
class ChildInput : public QObject {
  public:
    explicit ChildInput(ActiveChild& active);

    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    void Pressed(const QWindow& window, const QMouseEvent& mouse);
    void KeyMoved(const QKeyEvent& key);
    /// Who heard that Shift is down hears also that it is up, when another child is active by then
    /// too, perhaps one that cares for no keys.
    void TellShift(ChildWindow& child, bool down);

    ActiveChild& active_;
    QPointer<ChildWindow> holder_;  // has heard that Shift is down
};

}  // namespace tessarin
