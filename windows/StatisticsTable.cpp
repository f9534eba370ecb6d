#include "windows/StatisticsTable.h"

#include <array>

#include "core/Numbers.h"
#include "core/Projektio.h"
#include "core/Text.h"

namespace tessarin {
namespace {

constexpr Twips kHeadColumn{1500};
constexpr Twips kValueColumn{1200};  // wide enough for its head

struct Header {
    std::string_view head;
    std::string (*text)(const Tiedosto& file);
};

constexpr std::array kHeaders = {
    Header{"File name", [](const Tiedosto& file) { return file.FileName; }},
    Header{"Sample ID", [](const Tiedosto& file) { return file.Otsikko.SampleId; }},
    Header{"Comments",
           [](const Tiedosto& file) { return KorvaaTeksti(file.Otsikko.Comment, "\r", ", "); }},
};

}  // namespace

StatisticsTable::StatisticsTable(const Statistics& window, std::span<const std::string_view> heads)
    : window_(window), heads_(heads) {
    table_.columnWidths.push_back(kHeadColumn);
    for (std::size_t i = 0; i < heads_.size(); ++i) {
        if (window_.OnkoNakyvissa(static_cast<int>(i) + 1)) {
            visible_.push_back(i);
            table_.columnWidths.push_back(kValueColumn);
        }
    }
}

void StatisticsTable::AddHeaders(const Tiedosto& file, bool once) {
    int item = static_cast<int>(heads_.size()) + 2;
    for (const Header& header : kHeaders) {
        if (window_.OnkoNakyvissa(item++)) {
            GridRow& row = AddRow(header.head);
            row.merged = true;
            for (std::size_t c = 1; c < row.cells.size(); ++c) {
                row.cells[c] = c == 1 || !once ? header.text(file) + " " : "";
            }
        }
    }
}

void StatisticsTable::AddColumnHeads(std::string_view corner) {
    GridRow& row = AddRow(corner);
    for (std::size_t c = 0; c < visible_.size(); ++c) {
        row.cells[c + 1] = heads_[visible_[c]];
    }
}

void StatisticsTable::AddValues(std::string_view head, const std::vector<std::string>& values) {
    GridRow& row = AddRow(head);
    for (std::size_t c = 0; c < visible_.size(); ++c) {
        row.cells[c + 1] = values[visible_[c]];
    }
}

GridRow& StatisticsTable::AddRow(std::string_view head) {
    GridRow& row = table_.rows.emplace_back();
    row.cells.resize(table_.columnWidths.size());
    row.cells[0] = head;
    return row;
}

std::string TaulukonLuku(double value) {
    return NumberText(Pyorista(value, false));
}

std::string TaulukonProsentti(double fraction) {
    return NumberText(Pyorista(fraction, true));
}

}  // namespace tessarin
