#include "plots/DotStatistics.h"

#include <cmath>

#include "core/EventValues.h"
#include "core/Muuttujat.h"
#include "core/Projektio.h"
#include "plots/StatisticsRows.h"
#include "plots/Summa.h"

namespace tessarin {
namespace {

constexpr std::size_t kBlock = KaytetytTapahtumat::kBlock;

// Values and logarithms of one block of events.
struct ValueBlock {
    std::size_t count = 0;
    std::array<double, kBlock> x;
    std::array<double, kBlock> y;
    std::array<double, kBlock> logX;
    std::array<double, kBlock> logY;

    void Take(const PlotData& data, std::span<const int32_t> events) {
        count = events.size();
        PoimiArvot(data.file.Data.Sarake(data.KanavaX), events, x);
        PoimiArvot(data.file.Data.Sarake(data.KanavaY), events, y);
        Log10Arvot({x.data(), count}, logX);
        Log10Arvot({y.data(), count}, logY);
    }
};

using Masks = std::span<const uint64_t>;

// What a row is made of.
struct RowSums {
    int32_t count = 0;
    Summa x;
    Summa y;
    Summa logX;
    Summa logY;

    void Add(const ValueBlock& block, int32_t chosen, Masks masks) {
        count += chosen;
        x.Lisaa({block.x.data(), block.count}, masks);
        y.Lisaa({block.y.data(), block.count}, masks);
        logX.Lisaa({block.logX.data(), block.count}, masks);
        logY.Lisaa({block.logY.data(), block.count}, masks);
    }

    // The row without its share.
    TilastoRivi Row() const {
        TilastoRivi row;
        row.Lukumaara = count;
        if (count > 0) {
            row.XKeski = x.Yhteensa() / count;
            row.YKeski = y.Yhteensa() / count;
            row.XGeo = std::pow(10.0, logX.Yhteensa() / count);
            row.YGeo = std::pow(10.0, logY.Yhteensa() / count);
        }
        return row;
    }
};

// Events by the quadrant that they lie in.
class QuadrantMasks {
  public:
    explicit QuadrantMasks(const Kvadrantti& cross) : cross_(cross) {}

    void Take(const PlotData& data, std::span<const int32_t> events) {
        count_ = events.size();
        AnnaPaikat(data.file, events, data.KanavaX, kGrid, gx_);
        AnnaPaikat(data.file, events, data.KanavaY, kGrid, gy_);
    }

    // Masks of the events on one side of each line; gives how many they are.
    int32_t Choose(bool left, bool upper) {
        int32_t chosen = 0;
        for (std::size_t i = 0; i < count_; ++i) {
            const bool isLeft = gx_[i] < cross_.KvadranttiX;
            const bool isUpper = kGrid - gy_[i] < cross_.KvadranttiY;
            const bool is = isLeft == left && isUpper == upper;
            masks_[i] = is ? ~uint64_t{0} : 0;
            chosen += is ? 1 : 0;
        }
        return chosen;
    }
    Masks Chosen() const { return masks_; }

  private:
    const Kvadrantti& cross_;
    std::size_t count_ = 0;
    std::array<double, kBlock> gx_;
    std::array<double, kBlock> gy_;
    std::array<uint64_t, kBlock> masks_;
};

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
    std::vector<RowSums> sums(kPopulationSlots + 1);
    ValueBlock block;
    KayRivit(
        data.file, {data.file, data.gate, data.PiirtoVali}, slots,
        [&](std::span<const int32_t> events) { block.Take(data, events); },
        [&](int16_t slot, int32_t chosen, Masks masks) {
            sums[static_cast<std::size_t>(slot)].Add(block, chosen, masks);
        });
    tilastot.Rivit[0] = sums[0].Row();
    for (const int16_t slot : slots) {
        tilastot.Rivit[static_cast<std::size_t>(slot)] = sums[static_cast<std::size_t>(slot)].Row();
    }
    LaskeOsuudet(tilastot.Rivit, slots);
}

void LaskeKvadrantit(const PlotData& data, const Kvadrantti& cross, Tilastot& tilastot) {
    if (Loading) {
        return;
    }
    struct Quadrant {
        bool left;
        bool upper;
        TilastoRivi& row;
        RowSums sums{};
    };
    std::array quadrants = {Quadrant{true, true, tilastot.KvadranttiYV},
                            Quadrant{false, true, tilastot.KvadranttiYO},
                            Quadrant{true, false, tilastot.KvadranttiAV},
                            Quadrant{false, false, tilastot.KvadranttiAO}};
    ValueBlock block;
    QuadrantMasks masks(cross);
    KaytetytTapahtumat used(data.file, data.gate, data.PiirtoVali);
    for (auto events = used.Next(); !events.empty(); events = used.Next()) {
        block.Take(data, events);
        masks.Take(data, events);
        for (Quadrant& quadrant : quadrants) {
            if (const int32_t chosen = masks.Choose(quadrant.left, quadrant.upper); chosen > 0) {
                quadrant.sums.Add(block, chosen, masks.Chosen());
            }
        }
    }
    int64_t total = 0;
    for (const Quadrant& quadrant : quadrants) {
        total += quadrant.sums.count;
    }
    for (const Quadrant& quadrant : quadrants) {
        const double share = quadrant.row.Osuus;
        quadrant.row = quadrant.sums.Row();
        quadrant.row.Osuus =
            total > 0 ? static_cast<double>(quadrant.sums.count) / static_cast<double>(total)
                      : share;
    }
}

}  // namespace tessarin
