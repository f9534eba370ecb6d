// The statistics of a histogram: the table, and what tools read of them.
#include <array>

#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "plots/Histogram.h"
#include "windows/StatisticsTable.h"

namespace tessarin {
namespace {

constexpr std::array<std::string_view, 5> kHeads = {"Number", "% of vis", "X mean", "X geomean",
                                                    "CV"};

std::vector<std::string> Values(const HistoRivi& row) {
    return {std::to_string(row.Lukumaara), TaulukonProsentti(row.Osuus), TaulukonLuku(row.XKeski),
            TaulukonLuku(row.XGeo), TaulukonProsentti(row.CV)};
}

}  // namespace

std::vector<TilastoValinta> Histogram::TilastonValinnat() const {
    return TilastoValinnat({"Number", "% of vis", "XMean", "XGeoMean", "CV"});
}

void Histogram::LaskeTilasto(const Tiedosto& file) {
    LaskeHistoTilastot(UsedData(file), HistoRivit);
}

GridTable Histogram::TilastonTaulukko(const Tiedosto& file, const Statistics& window,
                                      bool copy) const {
    StatisticsTable table(window, kHeads);
    table.AddHeaders(file, copy);
    table.AddColumnHeads(view_.Nopea().FastDraw ? "FAST DRAW" : "");
    table.AddValues("Visible", Values(HistoRivit[0]));
    for (int16_t slot = 1; slot <= kPopulationSlots; ++slot) {
        if (OnkoHistoRivi(slot, axes_(1))) {
            table.AddValues(Populaatiot(slot).Name,
                            Values(HistoRivit[static_cast<std::size_t>(slot)]));
        }
    }
    return table.Take();
}

std::optional<double> Histogram::TilastonLuku(std::string_view area, std::string_view kind) const {
    const auto number = ParseWholeNumber(area);
    if (!number || *number < 0 || *number > kPopulationSlots) {
        return std::nullopt;
    }
    const HistoRivi& row = HistoRivit[static_cast<std::size_t>(*number)];
    if (kind == "number") {
        return row.Lukumaara;
    }
    if (kind == "vis" || kind == "cv") {
        return (kind == "vis" ? row.Osuus : row.CV) * 100;
    }
    if (kind == "xmean" || kind == "xgeomean") {
        return kind == "xmean" ? row.XKeski : row.XGeo;
    }
    return std::nullopt;
}

}  // namespace tessarin
