#include "plots/HistogramStatistics.h"

#include <array>
#include <cmath>

#include "core/Muuttujat.h"
#include "core/Projektio.h"
#include "plots/StatisticsRows.h"

namespace tessarin {
namespace {

constexpr std::size_t kBlock = KaytetytTapahtumat::kBlock;
using ValueBlock = std::array<double, kBlock>;

void TakeValues(const ChannelData& data, std::span<const int32_t> events, ValueBlock& block) {
    const auto values = data.file.Data.Sarake(data.KanavaX);
    for (std::size_t i = 0; i < events.size(); ++i) {
        block[i] = static_cast<double>(values[static_cast<std::size_t>(events[i]) - 1]);
    }
}

// Squared distances from the means of pass one, summed in pass two.
void ComputeSpread(const ChannelData& data, const std::vector<int16_t>& slots,
                   std::vector<HistoRivi>& rows) {
    std::vector<double> sums(rows.size());
    ValueBlock value;
    KayRivit(
        data.file, {data.file, data.gate, data.PiirtoVali}, slots,
        [&](std::span<const int32_t> events) { TakeValues(data, events, value); },
        [&](int16_t slot, std::size_t i) {
            const auto row = static_cast<std::size_t>(slot);
            const double distance = value[i] - rows[row].XKeski;
            sums[row] += distance * distance;
        });
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (rows[row].XKeski > 0 && rows[row].Lukumaara > 0) {
            rows[row].CV = std::sqrt(sums[row] / rows[row].Lukumaara) / rows[row].XKeski;
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
    std::vector<HistoRivi> fresh(rows.size());
    ValueBlock value;
    ValueBlock logarithm;
    KayRivit(
        data.file, {data.file, data.gate, data.PiirtoVali}, slots,
        [&](std::span<const int32_t> events) {
            TakeValues(data, events, value);
            Log10Arvot({value.data(), events.size()}, logarithm);
        },
        [&](int16_t slot, std::size_t i) {
            HistoRivi& row = fresh[static_cast<std::size_t>(slot)];
            ++row.Lukumaara;
            row.XKeski += value[i];
            row.XGeo += logarithm[i];
        });
    for (HistoRivi& row : fresh) {
        if (row.Lukumaara > 0) {
            row.XKeski /= row.Lukumaara;
            row.XGeo = std::pow(10.0, row.XGeo / row.Lukumaara);
        }
    }
    LaskeOsuudet(fresh, slots);
    ComputeSpread(data, slots, fresh);
    rows[0] = fresh[0];
    for (const int16_t slot : slots) {
        rows[static_cast<std::size_t>(slot)] = fresh[static_cast<std::size_t>(slot)];
    }
}

}  // namespace tessarin
