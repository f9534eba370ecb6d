// The bar along the main window's right edge: logo, check box, populations and definitions.
#pragma once

#include <QScrollArea>
#include <QVBoxLayout>
#include <QWidget>

#include "platform/MainForm.h"
#include "platform/qt/PanelFrame.h"

namespace tessarin {

/// However narrow the bar is made, what stands on it keeps its size and is cut off.
class SidePanel : public QWidget {
  public:
    explicit SidePanel(MainFormEvents& events);

    void Build(int populations, int definitions);
    /// Slots are 1 to populations + definitions for both.
    void SetRow(int slot, const PanelRow& row) { FrameOf(slot).SetRow(slot, row); }
    void Select(int slot) { FrameOf(slot).Select(slot); }
    void SetButtonEnabled(PanelButton button, bool enabled);
    void SetButtonDown(PanelButton button, bool down);

    bool eventFilter(QObject* receiver, QEvent* event) override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    PanelFrame& FrameOf(int slot) { return slot <= populations_ ? *regions_ : *definitions_; }
    void WatchMouse();

    MainFormEvents& events_;
    QScrollArea* scroll_;
    QVBoxLayout* column_;
    PanelFrame* regions_ = nullptr;
    PanelFrame* definitions_ = nullptr;
    int populations_ = 0;
};

}  // namespace tessarin
