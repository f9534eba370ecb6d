// The widget that shows a table, scrolls it and takes the mouse for it; fills a child window.
#pragma once

#include <QAbstractScrollArea>

#include "platform/GridForm.h"
#include "platform/qt/GridCells.h"

namespace tessarin {

class GridWidget : public QAbstractScrollArea {
  public:
    /// The receiver is used until `Detach`.
    explicit GridWidget(GridFormEvents& events);

    /// The receiver is going: from here on it only shows.
    void Detach() { events_ = nullptr; }

    void SetCells(GridCells cells);
    const GridCells& Cells() const { return cells_; }
    /// Where the table's corner stands in the viewport.
    QPoint Corner() const;

    QSize minimumSizeHint() const override { return {0, 0}; }

  protected:
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    void FitScrollBars();

    GridCells cells_;
    GridFormEvents* events_;
};

}  // namespace tessarin
