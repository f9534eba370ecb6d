// The statistics of both plots with ten populations, beside a plain pass for each of them.
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "BenchFile.h"
#include "Beside.h"
#include "core/Muuttujat.h"
#include "plots/DotStatistics.h"
#include "plots/HistogramStatistics.h"

namespace tessarin {
namespace {

constexpr int16_t kX = 5;
constexpr int16_t kY = 6;
constexpr int16_t kRows = 10;

// Ten populations on the channels, each with a third of the events or so.
const Tiedosto& Prepare(const char* type) {
    PalautaAlkutila();
    auto& file = const_cast<Tiedosto&>(BenchFile());
    for (int16_t slot = 1; slot <= kRows; ++slot) {
        Populaatiot(slot).Defined = true;
        Populaatiot(slot).Type = type;
        Populaatiot(slot).AxisX = kX;
        Populaatiot(slot).AxisY = kY;
        const auto members = file.Membership.OmaSarake(slot);
        for (std::size_t i = 0; i < members.size(); ++i) {
            members[i] = (i * 2654435761U >> (8U + static_cast<unsigned>(slot))) % 3 == 0 ? 1 : 0;
        }
    }
    return file;
}

void DotStatistics(benchmark::State& state) {
    const Tiedosto& file = Prepare("Polygon");
    Tilastot statistics;
    for (auto _ : state) {
        LaskeTilastot({file, kX, kY, 0, 1}, statistics);
    }
    MovesBytes(state, int64_t{2 * sizeof(float) + kRows} * BenchEvents());
}

void HistogramStatistics(benchmark::State& state) {
    const Tiedosto& file = Prepare("Histogram");
    std::vector<HistoRivi> rows(kPopulationSlots + 1);
    for (auto _ : state) {
        LaskeHistoTilastot({file, kX}, rows);
    }
    MovesBytes(state, int64_t{2 * (sizeof(float) + kRows)} * BenchEvents());  // two passes
}

double Log(float value) {
    return value > 0 ? std::log10(static_cast<double>(value)) : 0;
}

void PlainDots(benchmark::State& state) {
    const Tiedosto& file = Prepare("Polygon");
    const auto xs = file.Data.Sarake(kX);
    const auto ys = file.Data.Sarake(kY);
    std::vector<double> logX(xs.size());
    std::vector<double> logY(xs.size());
    for (auto _ : state) {
        for (std::size_t i = 0; i < xs.size(); ++i) {
            logX[i] = Log(xs[i]);
            logY[i] = Log(ys[i]);
        }
        for (int16_t slot = 0; slot <= kRows; ++slot) {
            double sums[5] = {};
            const auto members = file.Membership.Sarake(slot == 0 ? 1 : slot);
            for (std::size_t i = 0; i < xs.size(); ++i) {
                if (slot == 0 || members[i] == 1) {
                    ++sums[0];
                    sums[1] += static_cast<double>(xs[i]);
                    sums[2] += static_cast<double>(ys[i]);
                    sums[3] += logX[i];
                    sums[4] += logY[i];
                }
            }
            benchmark::DoNotOptimize(sums);
        }
    }
}

void PlainHistogram(benchmark::State& state) {
    const Tiedosto& file = Prepare("Histogram");
    const auto xs = file.Data.Sarake(kX);
    std::vector<double> logX(xs.size());
    for (auto _ : state) {
        for (std::size_t i = 0; i < xs.size(); ++i) {
            logX[i] = Log(xs[i]);
        }
        for (int16_t slot = 0; slot <= kRows; ++slot) {
            double sums[4] = {};
            const auto members = file.Membership.Sarake(slot == 0 ? 1 : slot);
            for (std::size_t i = 0; i < xs.size(); ++i) {
                if (slot == 0 || members[i] == 1) {
                    ++sums[0];
                    sums[1] += static_cast<double>(xs[i]);
                    sums[2] += logX[i];
                }
            }
            for (std::size_t i = 0; i < xs.size(); ++i) {
                if (slot == 0 || members[i] == 1) {
                    const double distance = static_cast<double>(xs[i]) - sums[1] / sums[0];
                    sums[3] += distance * distance;
                }
            }
            benchmark::DoNotOptimize(sums);
        }
    }
}

const bool kRegistered = Beside("DotStatistics", DotStatistics, PlainDots) &&
                         Beside("HistogramStatistics", HistogramStatistics, PlainHistogram);

}  // namespace
}  // namespace tessarin
