// Which child window is active, and telling it exactly once.
#pragma once

#include <QMdiArea>
#include <QObject>
#include <QPointer>

#include "platform/qt/ChildWindow.h"

namespace tessarin {

/// Qt reports an activation also when the program comes back from another one, from a dialog or
/// from a menu. The logic must hear of it only when another child becomes the active one.
class ActiveChild : public QObject {
  public:
    explicit ActiveChild(QMdiArea& area);

    /// The active child; nullptr when there is none.
    ChildWindow* Current() const { return current_; }
    /// Makes a shown window the active one; works without a window manager too.
    void Activate(ChildWindow& window);
    /// Shows a window in front of the others; the active one stays active.
    void ShowBeside(ChildWindow& window);
    /// Takes a window off the screen. Another child then becomes active, but hears of it from the
    /// event loop only: whoever removes a window is seldom ready for news of others.
    void TakeAway(ChildWindow& window);

  private:
    void Became(QMdiSubWindow* window);

    QMdiArea& area_;
    QPointer<ChildWindow> current_;
    bool quiet_ = false;
};

}  // namespace tessarin
