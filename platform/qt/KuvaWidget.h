// The content of a child window: it shows the picture surface, takes the mouse for it, and holds
// the controls.
#pragma once

#include <QWidget>

#include "platform/Form.h"
#include "platform/qt/QtKuva.h"

namespace tessarin {

class KuvaWidget : public QWidget {
  public:
    /// Both are used until `Detach`.
    KuvaWidget(QtKuva& kuva, FormEvents& events);

    /// Surface and receiver are going: from here on it shows its last background and is silent.
    void Detach();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, 0}; }
    /// Changes of the size that come while this is on are the program's, not the user's.
    void SetProgramResizes(bool on) { programResizes_ = on; }
    /// The mouse moved over it where the surface is not, or over a control in it.
    void TellMove();

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    MouseEvent Translated(const QMouseEvent& event, MouseButton button) const;
    bool HasControls() const;
    void FollowRatio();
    void LoseMouse();

    QtKuva* kuva_;
    FormEvents* events_;
    QSize told_;  // the client size that the receiver knows
    bool programResizes_ = false;
    MouseButton down_ = MouseButton::kNone;
    bool pressing_ = false;  // the receiver is handling a press at this moment
    bool lostWhilePressing_ = false;
};

}  // namespace tessarin
