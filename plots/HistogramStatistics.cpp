#include "plots/HistogramStatistics.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/EventValues.h"
#include "core/Muuttujat.h"
#include "core/Projektio.h"
#include "plots/StatisticsRows.h"
#include "plots/Summa.h"

namespace tessarin {
namespace {

constexpr std::size_t kBlock = KaytetytTapahtumat::kBlock;
using ValueBlock = std::array<double, kBlock>;

using Masks = std::span<const uint64_t>;

// What a row is made of in the first pass.
struct RowSums {
    int32_t count = 0;
    Summa value;
    Summa logarithm;

    HistoRivi Row() const {
        HistoRivi row;
        row.Lukumaara = count;
        if (count > 0) {
            row.XKeski = value.Yhteensa() / count;
            row.XGeo = std::pow(10.0, logarithm.Yhteensa() / count);
        }
        return row;
    }
};

// Squared distances from the means of pass one, summed in pass two.
void ComputeSpread(const ChannelData& data, const std::vector<int16_t>& slots,
                   std::vector<HistoRivi>& rows) {
    std::vector<Summa> sums(rows.size());
    ValueBlock value;
    std::size_t count = 0;
    KayRivit(
        data.file, {data.file, data.gate, data.PiirtoVali}, slots,
        [&](std::span<const int32_t> events) {
            count = events.size();
            PoimiArvot(data.file.Data.Sarake(data.KanavaX), events, value);
        },
        [&](int16_t slot, int32_t /*chosen*/, Masks masks) {
            const auto row = static_cast<std::size_t>(slot);
            sums[row].LisaaEtaisyydet({value.data(), count}, masks, rows[row].XKeski);
        });
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (rows[row].XKeski > 0 && rows[row].Lukumaara > 0) {
            rows[row].CV = std::sqrt(sums[row].Yhteensa() / rows[row].Lukumaara) / rows[row].XKeski;
        }
    }
}

}  // namespace

bool OnkoHistoRivi(int16_t slot, int16_t kanavaX) {
    const Populaatio& row = Populaatiot(slot);
    const bool applies = slot > MaxPopulations || (row.Type == "Histogram" && row.AxisX == kanavaX);
    return row.Defined && applies;
}

void LaskeHistoTilastot(const ChannelData& data, std::vector<HistoRivi>& rows) {
    const auto slots =
        TilastoRivit([&](int16_t slot) { return OnkoHistoRivi(slot, data.KanavaX); });
    std::vector<RowSums> sums(rows.size());
    ValueBlock value;
    ValueBlock logarithm;
    std::size_t count = 0;
    KayRivit(
        data.file, {data.file, data.gate, data.PiirtoVali}, slots,
        [&](std::span<const int32_t> events) {
            count = events.size();
            PoimiArvot(data.file.Data.Sarake(data.KanavaX), events, value);
            Log10Arvot({value.data(), count}, logarithm);
        },
        [&](int16_t slot, int32_t chosen, Masks masks) {
            RowSums& row = sums[static_cast<std::size_t>(slot)];
            row.count += chosen;
            row.value.Lisaa({value.data(), count}, masks);
            row.logarithm.Lisaa({logarithm.data(), count}, masks);
        });
    std::vector<HistoRivi> fresh(rows.size());
    std::ranges::transform(sums, fresh.begin(), [](const RowSums& row) { return row.Row(); });
    LaskeOsuudet(fresh, slots);
    ComputeSpread(data, slots, fresh);
    rows[0] = fresh[0];
    for (const int16_t slot : slots) {
        rows[static_cast<std::size_t>(slot)] = fresh[static_cast<std::size_t>(slot)];
    }
}

}  // namespace tessarin
