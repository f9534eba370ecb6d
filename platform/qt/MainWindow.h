// The main window's frame: the area of the child windows, the side panel and the status line.
#pragma once

#include <QMainWindow>

#include "platform/MainForm.h"
#include "platform/qt/ChildArea.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/qt/SidePanel.h"
#include "platform/qt/StatusLine.h"

namespace tessarin {

class MainWindow : public QMainWindow {
  public:
    MainWindow(MainFormEvents& events, const QtEventLoop& loop);

    ChildArea& Area() { return *area_; }
    SidePanel& Panel() { return *panel_; }
    StatusLine& Status() { return *status_; }
    /// The panel stands over the area's right edge; what it covers keeps its size and place.
    void SetPanelWidth(int pixels);

    bool eventFilter(QObject* receiver, QEvent* event) override;

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void PlacePanel();

    MainFormEvents& events_;
    const QtEventLoop& loop_;
    ChildArea* area_;
    SidePanel* panel_;
    StatusLine* status_;
    int panelWidth_ = 0;
};

}  // namespace tessarin
