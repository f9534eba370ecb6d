// The background of the main window, in which the child windows stand.
#pragma once

#include <QMdiArea>

namespace tessarin {

class ChildArea : public QMdiArea {
  public:
    ChildArea();

    /// The part of it that something else in the main window stands over; empty for none.
    void SetCovered(const QRect& part) { covered_ = part; }
    const QRect& Covered() const { return covered_; }

  protected:
    /// Tells how to begin while there is no child window to see.
    void paintEvent(QPaintEvent* event) override;

  private:
    QRect covered_;
};

}  // namespace tessarin
