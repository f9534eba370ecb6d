// A child window that shows one table, as the logic sees it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/Bitmap.h"
#include "platform/Twips.h"

namespace tessarin {

/// One row of a table. In a merged row equal neighbouring cells are shown as one.
struct GridRow {
    std::vector<std::string> cells;
    bool merged = false;
};

/// The whole content of a grid. Every row has as many cells as there are column widths.
struct GridTable {
    std::vector<Twips> columnWidths;
    std::vector<GridRow> rows;

    int Cols() const { return static_cast<int>(columnWidths.size()); }
    int Rows() const { return static_cast<int>(rows.size()); }
};

/// What a grid form tells its window.
class GridFormEvents {
  public:
    virtual ~GridFormEvents() = default;

    /// The form became the active child; not sent again while it stays so.
    virtual void Form_Activate() = 0;
    /// The user closes the form; the receiver may destroy it during the call.
    virtual void Form_QueryUnload() = 0;
    /// The right button was pressed over the grid.
    virtual void Grid_RightPress() = 0;
    /// The mouse moved over the grid.
    virtual void Grid_MouseMove() = 0;
};

/// The child window. Destroying it takes it off the screen without asking and sends no event.
class GridForm {
  public:
    /// What a column and a row measure when nobody says otherwise.
    static constexpr Twips kColumnWidth{960};
    static constexpr Twips kRowHeight{240};

    virtual ~GridForm() = default;

    virtual void SetCaption(std::string_view caption) = 0;
    /// Shows another table; the old one is gone.
    virtual void SetTable(const GridTable& table) = 0;
    /// Outer size, frame and title included. The grid fills the client area.
    virtual void SetOuterSize(Twips width, Twips height) = 0;
    /// Upper left corner of the frame in the main window's area.
    virtual Twips Left() const = 0;
    virtual Twips Top() const = 0;
    virtual void SetPlace(Twips left, Twips top) = 0;
    /// Shows it as the active child.
    virtual void Show() = 0;
    /// The whole table as a picture, also what the window is too small to show.
    virtual Bitmap Picture() const = 0;
};

}  // namespace tessarin
