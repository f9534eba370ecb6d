// Lays out the rows of a statistics window: what is visible, and in which order.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/Tiedosto.h"
#include "platform/Table.h"
#include "windows/Statistics.h"

namespace tessarin {

/// A table of one value column for each of `heads` whose item is on; head n belongs to item
/// n + 1 of the window, and the header rows' items stand one separator behind the last of them.
class StatisticsTable {
  public:
    StatisticsTable(const Statistics& window, std::span<const std::string_view> heads);

    /// The visible header rows of the file; with `once` their values stand in one cell only.
    void AddHeaders(const Tiedosto& file, bool once);
    /// The row of column heads, with a word in its corner.
    void AddColumnHeads(std::string_view corner);
    /// A row of values: one text for each head, visible or not.
    void AddValues(std::string_view head, const std::vector<std::string>& values);
    void AddEmptyRow() { AddRow(""); }

    GridTable Take() { return std::move(table_); }

  private:
    GridRow& AddRow(std::string_view head);

    const Statistics& window_;
    std::span<const std::string_view> heads_;
    std::vector<std::size_t> visible_;  // indexes into heads_
    GridTable table_;
};

/// A value with at most two decimals, cut towards minus infinity, as tables show it.
std::string TaulukonLuku(double value);
/// A fraction as a percentage, likewise.
std::string TaulukonProsentti(double fraction);

}  // namespace tessarin
