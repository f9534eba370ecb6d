// The widget that shows a table, scrolls it and takes the mouse for it.
#pragma once

#include <QAbstractScrollArea>
#include <functional>

#include "platform/qt/GridCells.h"

namespace tessarin {

class GridWidget : public QAbstractScrollArea {
  public:
    explicit GridWidget(QWidget* parent);

    void SetCells(GridCells cells);
    const GridCells& Cells() const { return cells_; }
    /// Where the table's corner stands in the viewport.
    QPoint Corner() const;

    QSize minimumSizeHint() const override { return {0, 0}; }

    /// The right button was pressed over it.
    std::function<void()> onRightPress;

  protected:
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    void FitScrollBars();

    GridCells cells_;
};

}  // namespace tessarin
