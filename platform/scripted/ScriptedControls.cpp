#include "platform/scripted/ScriptedControls.h"

namespace tessarin {

int ScriptedTable::NeededWidth() const {
    int width = table.rows.empty() ? 0 : 1 + widened;
    for (const Twips column : table.columnWidths) {
        width += PixelsFromTwips(column);
    }
    return width;
}

int ScriptedTable::NeededHeight() const {
    return table.rows.empty() ? 0 : table.Rows() * PixelsFromTwips(kGridRowHeight) + 1;
}

void ScriptedTable::Widen(int pixels) {
    widened += pixels;
    onColumnWidth();
}

Bitmap ScriptedTable::Picture() const {
    const auto cells =
        static_cast<std::size_t>(table.Cols()) * static_cast<std::size_t>(table.Rows());
    return {table.Cols(), table.Rows(), 1, std::vector<uint32_t>(cells, 0xffffffff)};
}

const std::vector<std::string>& ScriptedTable::Row(const std::string& head) const {
    for (const GridRow& row : table.rows) {
        if (row.cells.at(0) == head) {
            return row.cells;
        }
    }
    throw std::out_of_range("no row " + head);
}

}  // namespace tessarin
