#include "plots/Tilastot.h"

#include <cmath>

#include "core/Muuttujat.h"
#include "core/Projektio.h"
#include "plots/StatisticsRows.h"

namespace tessarin {
namespace {

constexpr std::size_t kBlock = KaytetytTapahtumat::kBlock;

// Values and logarithms of one block of events.
struct ValueBlock {
    std::array<double, kBlock> x;
    std::array<double, kBlock> y;
    std::array<double, kBlock> logX;
    std::array<double, kBlock> logY;

    void Take(const PlotData& data, std::span<const int32_t> events) {
        const auto xs = data.file.Data.Sarake(data.KanavaX);
        const auto ys = data.file.Data.Sarake(data.KanavaY);
        for (std::size_t i = 0; i < events.size(); ++i) {
            const auto row = static_cast<std::size_t>(events[i]) - 1;
            x[i] = static_cast<double>(xs[row]);
            y[i] = static_cast<double>(ys[row]);
        }
        Log10Arvot({x.data(), events.size()}, logX);
        Log10Arvot({y.data(), events.size()}, logY);
    }

    void AddTo(TilastoRivi& row, std::size_t i) const {
        ++row.Lukumaara;
        row.XKeski += x[i];
        row.YKeski += y[i];
        row.XGeo += logX[i];
        row.YGeo += logY[i];
    }
};

void ClearSums(TilastoRivi& row) {
    row = {0, row.Osuus, 0, 0, 0, 0};
}

// Sums become means.
void Finish(TilastoRivi& row) {
    if (row.Lukumaara > 0) {
        row.XKeski /= row.Lukumaara;
        row.YKeski /= row.Lukumaara;
        row.XGeo = std::pow(10.0, row.XGeo / row.Lukumaara);
        row.YGeo = std::pow(10.0, row.YGeo / row.Lukumaara);
    }
}

TilastoRivi& Quadrant(Tilastot& tilastot, bool left, bool upper) {
    if (upper) {
        return left ? tilastot.KvadranttiYV : tilastot.KvadranttiYO;
    }
    return left ? tilastot.KvadranttiAV : tilastot.KvadranttiAO;
}

std::array<TilastoRivi*, 4> Quadrants(Tilastot& tilastot) {
    return {&tilastot.KvadranttiYV, &tilastot.KvadranttiYO, &tilastot.KvadranttiAV,
            &tilastot.KvadranttiAO};
}

}  // namespace

Tilastot::Tilastot() : Rivit(kPopulationSlots + 1) {}

bool OnkoTilastoRivi(int16_t slot, int16_t kanavaX, int16_t kanavaY) {
    const Populaatio& row = Populaatiot(slot);
    const bool applies = slot > MaxPopulations ||
                         (row.Type == "Polygon" && row.AxisX == kanavaX && row.AxisY == kanavaY);
    return row.Defined && applies;
}

void LaskeTilastot(const PlotData& data, Tilastot& tilastot) {
    const auto slots = TilastoRivit(
        [&](int16_t slot) { return OnkoTilastoRivi(slot, data.KanavaX, data.KanavaY); });
    std::vector<TilastoRivi>& rows = tilastot.Rivit;
    rows[0] = {};
    for (const int16_t slot : slots) {
        rows[static_cast<std::size_t>(slot)] = {};
    }
    ValueBlock block;
    KayRivit(
        data.file, {data.file, data.gate, data.PiirtoVali}, slots,
        [&](std::span<const int32_t> events) { block.Take(data, events); },
        [&](int16_t slot, std::size_t i) { block.AddTo(rows[static_cast<std::size_t>(slot)], i); });
    Finish(rows[0]);
    for (const int16_t slot : slots) {
        Finish(rows[static_cast<std::size_t>(slot)]);
    }
    LaskeOsuudet(rows, slots);
}

void LaskeKvadrantit(const PlotData& data, const Kvadrantti& cross, Tilastot& tilastot) {
    if (Loading) {
        return;
    }
    for (TilastoRivi* row : Quadrants(tilastot)) {
        ClearSums(*row);
    }
    ValueBlock block;
    std::array<double, kBlock> gx;
    std::array<double, kBlock> gy;
    KaytetytTapahtumat used(data.file, data.gate, data.PiirtoVali);
    for (auto events = used.Next(); !events.empty(); events = used.Next()) {
        block.Take(data, events);
        AnnaPaikat(data.file, events, data.KanavaX, kGrid, gx);
        AnnaPaikat(data.file, events, data.KanavaY, kGrid, gy);
        for (std::size_t i = 0; i < events.size(); ++i) {
            const bool left = gx[i] < cross.KvadranttiX;
            const bool upper = kGrid - gy[i] < cross.KvadranttiY;
            block.AddTo(Quadrant(tilastot, left, upper), i);
        }
    }
    int64_t total = 0;
    for (TilastoRivi* row : Quadrants(tilastot)) {
        Finish(*row);
        total += row->Lukumaara;
    }
    for (TilastoRivi* row : Quadrants(tilastot)) {
        if (total > 0) {
            row->Osuus = static_cast<double>(row->Lukumaara) / static_cast<double>(total);
        }
    }
}

}  // namespace tessarin
