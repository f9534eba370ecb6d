// The widget that shows a table, scrolls it and takes the mouse for it.
#pragma once

#include <QAbstractScrollArea>
#include <functional>

#include "platform/qt/GridCells.h"

namespace tessarin {

class GridWidget : public QAbstractScrollArea {
  public:
    explicit GridWidget(QWidget* parent);

    /// Shows other cells; columns keep the widths that the user gave them.
    void SetCells(GridCells cells);
    const GridCells& Cells() const { return cells_; }
    /// Where the table's corner stands in the viewport.
    QPoint Corner() const;

    QSize minimumSizeHint() const override { return {0, 0}; }

    /// The right button was pressed over it.
    std::function<void()> onRightPress;
    /// The user has given a column another width.
    std::function<void()> onColumnWidth;

  protected:
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    /// A column whose right line the user has hold of.
    struct Hold {
        int column = -1;
        int mouse = 0;  ///< where the line was taken hold of
        int width = 0;  ///< of the column then
    };

    void FitScrollBars();
    void DrawLine(int mouse);
    void LetGo();

    GridCells cells_;
    Hold hold_;
};

}  // namespace tessarin
