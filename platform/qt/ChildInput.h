// Shift and mouse presses on their way to the child windows.
#pragma once

#include <QMouseEvent>
#include <QObject>

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

    ActiveChild& active_;
};

}  // namespace tessarin
