// A table as a plain value, as grids show it.
#pragma once

#include <string>
#include <vector>

#include "platform/Twips.h"

namespace tessarin {

/// What a column and a row of a grid measure when nobody says otherwise.
inline constexpr Twips kGridColumnWidth{960};
inline constexpr Twips kGridRowHeight{240};

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

}  // namespace tessarin
