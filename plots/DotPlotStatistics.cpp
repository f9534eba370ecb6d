// The statistics of a dot plot: computing, the table, and what tools read of them.
#include <array>
#include <vector>

#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "plots/DotPlot.h"
#include "windows/StatisticsTable.h"

namespace tessarin {
namespace {

const TilastoRivi* RowOf(const Tilastot& tilastot, std::string_view area) {
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

std::vector<TilastoValinta> DotPlot::TilastonValinnat() const {
    return TilastoValinnat({"Number", "% of Vis", "XMean", "YMean", "XGeoMean", "YGeoMean"});
}

void DotPlot::LaskeTilasto(const Tiedosto& file) {
    const PlotData data = UsedData(file, view_.Vali());
    LaskeTilastot(data, tilastot_);
    if (quadrant_.Risti().KvadranttiKaytossa) {
        LaskeKvadrantit(data, quadrant_.Risti(), tilastot_);
    }
}

GridTable DotPlot::TilastonTaulukko(const Tiedosto& file, const Statistics& window,
                                    bool copy) const {
    StatisticsTable table(window, kHeads);
    table.AddHeaders(file, copy);
    table.AddColumnHeads(view_.Nopea().FastDraw ? "FAST DRAW" : "");
    table.AddValues("Visible", Values(tilastot_.Rivit[0]));
    for (int16_t slot = 1; slot <= kPopulationSlots; ++slot) {
        if (OnkoTilastoRivi(slot, axes_(1), axes_(2))) {
            table.AddValues(Populaatiot(slot).Name,
                            Values(tilastot_.Rivit[static_cast<std::size_t>(slot)]));
        }
    }
    if (quadrant_.Risti().KvadranttiKaytossa) {
        table.AddEmptyRow();
        table.AddValues("Upper Left", Values(tilastot_.KvadranttiYV));
        table.AddValues("Upper Right", Values(tilastot_.KvadranttiYO));
        table.AddValues("Lower Left", Values(tilastot_.KvadranttiAV));
        table.AddValues("Lower Right", Values(tilastot_.KvadranttiAO));
    }
    return table.Take();
}

std::optional<double> DotPlot::TilastonLuku(std::string_view area, std::string_view kind) const {
    const TilastoRivi* row = RowOf(tilastot_, area);
    return row == nullptr ? std::nullopt : Value(*row, kind);
}

}  // namespace tessarin
