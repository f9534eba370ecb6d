// The cells of a grid: where they stand, which are shown as one, and how they are painted.
#pragma once

#include <QPainter>
#include <QRect>
#include <QString>
#include <map>
#include <vector>

#include "core/Bitmap.h"
#include "platform/Table.h"

namespace tessarin {

inline constexpr int kGridRowPixels = PixelsFromTwips(kGridRowHeight);

/// One cell as it is seen, or a run of cells that are shown as one.
struct SeenCell {
    QRect place;  ///< in pixels from the table's corner, the grid lines around it left out
    QString text;
    bool number = false;  ///< it stands to the right
};

/// One row's share of a table is found by its number alone, so that thousands of rows cost no more
/// than those on the screen.
class GridCells {
  public:
    GridCells() = default;
    explicit GridCells(GridTable table);

    int Rows() const { return table_.Rows(); }
    int Cols() const { return table_.Cols(); }
    /// The columns by the rows and the line around them; nothing for a table without cells.
    QSize Size() const;
    /// REQUIRES: row is 0..Rows()-1.
    std::vector<SeenCell> Row(int row) const;
    /// The whole text of the cell at that place when the cell is too narrow for it, else "".
    QString CutTextAt(QPoint place) const;

    /// The column whose right line is drawn at that place or very near to it; -1 for none.
    int LineAt(QPoint place) const;
    /// REQUIRES for both: column is 0..Cols()-1. Widths are in pixels, one line included.
    int ColumnWidth(int column) const;
    /// The user gives a column another width; one that could not be taken hold of again is not
    /// given.
    void SetColumnWidth(int column, int pixels);
    /// Widths that the user gave columns of the table that stood here before, as far as they are
    /// still there.
    void KeepWidths(const GridCells& before);

    /// Everything in `exposed`; the painter's origin is the table's corner.
    void Paint(QPainter& painter, const QRect& exposed) const;
    /// All of it, `ratio` picture pixels to a pixel.
    Bitmap Picture(double ratio) const;

  private:
    QRect Between(int row, int firstColumn, int lastColumn) const;
    const std::string& Head(int column) const;
    int ColumnOf(const std::string& head) const;

    GridTable table_;
    std::vector<int> lines_{0};  // the vertical grid lines: one before each column, one behind all
    std::map<int, int> given_;   // widths that the user gave, by column
};

}  // namespace tessarin
