// Evaluating a polygon and a marker, beside the same job done event by event, and a definition,
// beside a copy of the columns that it reads and writes.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "BenchFile.h"
#include "Beside.h"
#include "core/Muuttujat.h"
#include "core/Projektio.h"
#include "plots/MarkerMembership.h"
#include "plots/PolygonMembership.h"
#include "populations/Definitions.h"

namespace tessarin {
namespace {

constexpr int16_t kX = 5;
constexpr int16_t kY = 6;
constexpr int16_t kNames = 4;
constexpr float kLeft = 4000;  // grid places of a marker around the middle cloud
constexpr float kRight = 6000;

// An octagon around the middle cloud of two log channels.
void DefineOctagon(Populaatio& population) {
    population = {.Corners = 8,
                  .X = {0, 5000, 5800, 6200, 5900, 5100, 4300, 4000, 4400},
                  .Y = {0, 3800, 4000, 4700, 5500, 5900, 5600, 4800, 4100},
                  .Name = "Poly-1",
                  .Defined = true,
                  .AxisX = kX,
                  .AxisY = kY,
                  .Type = "Polygon"};
}

void Gate(benchmark::State& state) {
    PalautaAlkutila();
    Tiedostot(1) = LoadBenchFile();
    DefineOctagon(Populaatiot(1));
    for (auto _ : state) {
        TarkistaMonikulmio(1);
    }
    MovesBytes(state, int64_t{2 * sizeof(float) + 1} * BenchEvents());
    const auto members = Tiedostot(1).Membership.Sarake(1);
    state.counters["members"] = static_cast<double>(std::ranges::count(members, 1));
    PalautaAlkutila();
}

// The same job as one would first write it down: each event is placed on both axes and tested
// against each edge, one after the other.
void GatePlain(benchmark::State& state) {
    const Tiedosto& file = BenchFile();
    PalautaAlkutila();
    DefineOctagon(Populaatiot(1));
    const Populaatio& octagon = Populaatiot(1);
    const auto xs = file.Data.Sarake(kX);
    const auto ys = file.Data.Sarake(kY);
    const AkseliProjektio axisX(file.Channels(kX));
    const AkseliProjektio axisY(file.Channels(kY));
    std::vector<uint8_t> inside(static_cast<std::size_t>(BenchEvents()));
    for (auto _ : state) {
        for (std::size_t i = 0; i < inside.size(); ++i) {
            const double x = axisX.Paikka(static_cast<double>(xs[i]), 10000);
            const double y = 10000 - axisY.Paikka(static_cast<double>(ys[i]), 10000);
            bool in = false;
            for (std::size_t k = 1; k <= 8; ++k) {
                const std::size_t next = k % 8 + 1;
                const auto x1 = static_cast<double>(octagon.X[k]);
                const auto y1 = static_cast<double>(octagon.Y[k]);
                const auto x2 = static_cast<double>(octagon.X[next]);
                const auto y2 = static_cast<double>(octagon.Y[next]);
                if ((y1 < y) != (y2 < y) && x < x1 + (x2 - x1) * (y - y1) / (y2 - y1)) {
                    in = !in;
                }
            }
            inside[i] = static_cast<uint8_t>(in);
        }
        benchmark::DoNotOptimize(inside.data());
        benchmark::ClobberMemory();
    }
    state.counters["members"] = static_cast<double>(std::ranges::count(inside, 1));
    PalautaAlkutila();
}

void Marker(benchmark::State& state) {
    PalautaAlkutila();
    Tiedostot(1) = LoadBenchFile();
    Populaatio& marker = Populaatiot(1);
    marker = {.Corners = 2, .Name = "M-1", .Defined = true, .AxisX = kX, .Type = "Histogram"};
    marker.X[1] = kLeft;
    marker.X[2] = kRight;
    for (auto _ : state) {
        TarkistaMarkkeri(1);
    }
    MovesBytes(state, int64_t{sizeof(float) + 1} * BenchEvents());
    const auto members = Tiedostot(1).Membership.Sarake(1);
    state.counters["members"] = static_cast<double>(std::ranges::count(members, 1));
    PalautaAlkutila();
}

void MarkerPlain(benchmark::State& state) {
    const Tiedosto& file = BenchFile();
    const auto xs = file.Data.Sarake(kX);
    const AkseliProjektio axis(file.Channels(kX));
    std::vector<uint8_t> inside(xs.size());
    for (auto _ : state) {
        for (std::size_t i = 0; i < inside.size(); ++i) {
            const double x = axis.Paikka(static_cast<double>(xs[i]), 10000);
            inside[i] = static_cast<uint8_t>(x >= kLeft && x <= kRight);
        }
        benchmark::DoNotOptimize(inside.data());
        benchmark::ClobberMemory();
    }
    state.counters["members"] = static_cast<double>(std::ranges::count(inside, 1));
}

// A file of nothing but members, spread at random over the first populations.
void FillMembers(Tiedosto& file) {
    file.Valid = true;
    file.EventCount = BenchEvents();
    file.Membership.Mitoita(BenchEvents(), kPopulationSlots);
    std::mt19937 random(5);
    for (int16_t slot = 1; slot <= kNames; ++slot) {
        std::ranges::generate(file.Membership.OmaSarake(slot),
                              [&random] { return static_cast<uint8_t>(random() % 2); });
    }
}

void Definition(benchmark::State& state) {
    PalautaAlkutila();
    FillMembers(Tiedostot(1));
    for (int16_t slot = 1; slot <= kNames; ++slot) {
        Populaatiot(slot).Defined = true;
        Populaatiot(slot).Name = "Poly-" + std::to_string(slot);
    }
    for (auto _ : state) {
        const std::string message =
            TarkistaMaaritelma(MaxPopulations + 1, "Poly-1 and (Poly-2 or Poly-3) and not Poly-4");
        if (!message.empty()) {
            state.SkipWithError(message.c_str());
        }
    }
    MovesBytes(state, int64_t{kNames + 1} * BenchEvents());
    PalautaAlkutila();
}

void DefinitionPlain(benchmark::State& state) {
    Tiedosto file;
    FillMembers(file);
    std::vector<uint8_t> copy(std::size_t{kNames} * static_cast<std::size_t>(BenchEvents()));
    for (auto _ : state) {
        for (int16_t slot = 1; slot <= kNames; ++slot) {
            std::ranges::copy(file.Membership.Sarake(slot),
                              copy.begin() + std::ptrdiff_t{slot - 1} * BenchEvents());
        }
        benchmark::DoNotOptimize(copy.data());
        benchmark::ClobberMemory();
    }
}

const bool kRegistered = Beside("Gate", Gate, GatePlain) && Beside("Marker", Marker, MarkerPlain) &&
                         Beside("Definition", Definition, DefinitionPlain);

}  // namespace
}  // namespace tessarin
