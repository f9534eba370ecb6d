// The frame of a child window: title bar, edges, and the picture inside.
#pragma once

#include <QMdiSubWindow>

#include "platform/Form.h"
#include "platform/qt/KuvaWidget.h"

namespace tessarin {

/// Belongs to the area that it stands in; a `QtForm` steers it and detaches when it goes.
class ChildWindow : public QMdiSubWindow {
  public:
    ChildWindow(QtKuva& kuva, FormEvents& events);

    KuvaWidget& Picture() { return *picture_; }
    /// Who hears of this window; nullptr once it is detached.
    FormEvents* Events() const { return events_; }
    void Detach();

    QSize minimumSizeHint() const override;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    KuvaWidget* picture_;
    FormEvents* events_;
};

}  // namespace tessarin
