#include "plots/DotPlotTable.h"

#include <array>

#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "core/Projektio.h"
#include "core/Text.h"

namespace tessarin {
namespace {

constexpr Twips kHeadColumn{1500};
constexpr Twips kValueColumn{1200};  // wide enough for its head

// The value columns: the item that makes each visible, its head, and its text for a row.
struct Column {
    int item;
    std::string_view head;
    std::string (*text)(const TilastoRivi& row);
};

std::string Cut(double value) {
    return NumberText(Pyorista(value, false));
}

constexpr std::array kColumns = {
    Column{1, "Number", [](const TilastoRivi& row) { return std::to_string(row.Lukumaara); }},
    Column{2, "% of vis",
           [](const TilastoRivi& row) { return NumberText(Pyorista(row.Osuus, true)); }},
    Column{3, "X mean", [](const TilastoRivi& row) { return Cut(row.XKeski); }},
    Column{4, "Y mean", [](const TilastoRivi& row) { return Cut(row.YKeski); }},
    Column{5, "X geomean", [](const TilastoRivi& row) { return Cut(row.XGeo); }},
    Column{6, "Y geomean", [](const TilastoRivi& row) { return Cut(row.YGeo); }},
};

struct Header {
    int item;
    std::string_view head;
    std::string (*text)(const Tiedosto& file);
};

constexpr std::array kHeaders = {
    Header{8, "File name", [](const Tiedosto& file) { return file.FileName; }},
    Header{9, "Sample ID", [](const Tiedosto& file) { return file.Otsikko.SampleId; }},
    Header{10, "Comments",
           [](const Tiedosto& file) { return KorvaaTeksti(file.Otsikko.Comment, "\r", ", "); }},
};

class Layout {
  public:
    explicit Layout(const Statistics& window) {
        table_.columnWidths.push_back(kHeadColumn);
        for (const Column& column : kColumns) {
            if (window.OnkoNakyvissa(column.item)) {
                columns_.push_back(&column);
                table_.columnWidths.push_back(kValueColumn);
            }
        }
    }

    void AddHeader(std::string_view head, const std::string& value, bool once) {
        GridRow& row = AddRow(head);
        row.merged = true;
        for (std::size_t c = 1; c < row.cells.size(); ++c) {
            row.cells[c] = c == 1 || !once ? value : "";
        }
    }

    void AddColumnHeads(std::string_view corner) {
        GridRow& row = AddRow(corner);
        for (std::size_t c = 0; c < columns_.size(); ++c) {
            row.cells[c + 1] = columns_[c]->head;
        }
    }

    void AddValues(std::string_view head, const TilastoRivi& values) {
        GridRow& row = AddRow(head);
        for (std::size_t c = 0; c < columns_.size(); ++c) {
            row.cells[c + 1] = columns_[c]->text(values);
        }
    }

    GridRow& AddRow(std::string_view head) {
        GridRow& row = table_.rows.emplace_back();
        row.cells.resize(table_.columnWidths.size());
        row.cells[0] = head;
        return row;
    }

    GridTable Take() { return std::move(table_); }

  private:
    GridTable table_;
    std::vector<const Column*> columns_;
};

}  // namespace

GridTable DotPlotTaulukko(const Statistics& window, const Tiedosto& file, const Tilastot& tilastot,
                          const DotPlotTableLook& look) {
    Layout layout(window);
    for (const Header& header : kHeaders) {
        if (window.OnkoNakyvissa(header.item)) {
            layout.AddHeader(header.head, header.text(file) + " ", look.kopio);
        }
    }
    layout.AddColumnHeads(look.FastDraw ? "FAST DRAW" : "");
    layout.AddValues("Visible", tilastot.Rivit[0]);
    for (int16_t slot = 1; slot <= kPopulationSlots; ++slot) {
        if (OnkoTilastoRivi(slot, look.KanavaX, look.KanavaY)) {
            layout.AddValues(Populaatiot(slot).Name,
                             tilastot.Rivit[static_cast<std::size_t>(slot)]);
        }
    }
    if (look.kvadrantit) {
        layout.AddRow("");
        layout.AddValues("Upper Left", tilastot.KvadranttiYV);
        layout.AddValues("Upper Right", tilastot.KvadranttiYO);
        layout.AddValues("Lower Left", tilastot.KvadranttiAV);
        layout.AddValues("Lower Right", tilastot.KvadranttiAO);
    }
    return layout.Take();
}

}  // namespace tessarin
