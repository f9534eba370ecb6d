// The statistics of a dot plot: computing, the table, and what tools read of them.
#include <array>
#include <vector>

#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "plots/DotPlot.h"
#include "plots/StatisticsTable.h"

namespace tessarin {
namespace {

const TilastoRivi* Area(const Tilastot& tilastot, std::string_view area) {
    if (area == "ul") {
        return &tilastot.KvadranttiYV;
    }
    if (area == "ur") {
        return &tilastot.KvadranttiYO;
    }
    if (area == "ll") {
        return &tilastot.KvadranttiAV;
    }
    if (area == "lr") {
        return &tilastot.KvadranttiAO;
    }
    const auto row = ParseWholeNumber(area);
    return row && *row >= 0 && *row <= kPopulationSlots
               ? &tilastot.Rivit[static_cast<std::size_t>(*row)]
               : nullptr;
}

std::optional<double> Value(const TilastoRivi& row, std::string_view kind) {
    if (kind == "number") {
        return row.Lukumaara;
    }
    if (kind == "vis") {
        return row.Osuus * 100;
    }
    if (kind == "xmean") {
        return row.XKeski;
    }
    if (kind == "ymean") {
        return row.YKeski;
    }
    if (kind == "xgeomean") {
        return row.XGeo;
    }
    if (kind == "ygeomean") {
        return row.YGeo;
    }
    return std::nullopt;
}

constexpr std::array<std::string_view, 6> kHeads = {"Number", "% of vis",  "X mean",
                                                    "Y mean", "X geomean", "Y geomean"};

std::vector<std::string> Values(const TilastoRivi& row) {
    return {std::to_string(row.Lukumaara), TaulukonProsentti(row.Osuus), TaulukonLuku(row.XKeski),
            TaulukonLuku(row.YKeski),      TaulukonLuku(row.XGeo),       TaulukonLuku(row.YGeo)};
}

}  // namespace

PlotData DotPlot::UsedData(const Tiedosto& file, int32_t step) const {
    return {file, KanavaX, KanavaY, NaytettavaPopulaatio, step};
}

void DotPlot::ComputeStatistics(const Tiedosto& file) {
    const PlotData data = UsedData(file, nopea_.PiirtoVali);
    LaskeTilastot(data, tilastot_);
    if (kvadrantti_.KvadranttiKaytossa) {
        LaskeKvadrantit(data, kvadrantti_, tilastot_);
    }
}

GridTable DotPlot::TableOf(const Tiedosto& file, bool copy) const {
    StatisticsTable table(*tilasto_.Ikkuna(), kHeads);
    table.AddHeaders(file, copy);
    table.AddColumnHeads(nopea_.FastDraw ? "FAST DRAW" : "");
    table.AddValues("Visible", Values(tilastot_.Rivit[0]));
    for (int16_t slot = 1; slot <= kPopulationSlots; ++slot) {
        if (OnkoTilastoRivi(slot, KanavaX, KanavaY)) {
            table.AddValues(Populaatiot(slot).Name,
                            Values(tilastot_.Rivit[static_cast<std::size_t>(slot)]));
        }
    }
    if (kvadrantti_.KvadranttiKaytossa) {
        table.AddEmptyRow();
        table.AddValues("Upper Left", Values(tilastot_.KvadranttiYV));
        table.AddValues("Upper Right", Values(tilastot_.KvadranttiYO));
        table.AddValues("Lower Left", Values(tilastot_.KvadranttiAV));
        table.AddValues("Lower Right", Values(tilastot_.KvadranttiAO));
    }
    return table.Take();
}

std::optional<double> DotPlot::AnnaStatistiikka(std::string_view area,
                                                std::string_view kind) const {
    const TilastoRivi* row = Area(tilastot_, area);
    return row == nullptr ? std::nullopt : Value(*row, kind);
}

}  // namespace tessarin
