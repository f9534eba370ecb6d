// Drawing dots and density, beside a plain loop that projects the events and stores the pixels.
#include <benchmark/benchmark.h>

#include <vector>

#include "BenchFile.h"
#include "core/Muuttujat.h"
#include "core/Projektio.h"
#include "platform/scripted/RecordingKuva.h"
#include "plots/DensityLayer.h"
#include "plots/DotLayer.h"

namespace tessarin {
namespace {

constexpr int kSide = 512;
constexpr int16_t kX = 5;
constexpr int16_t kY = 6;

void Prepare(RecordingKuva& surface) {
    PalautaAlkutila();
    surface.SetSize(kSide, kSide);
}

void Dots(benchmark::State& state, int32_t step) {
    const Tiedosto& file = BenchFile();
    RecordingKuva surface;
    Prepare(surface);
    for (auto _ : state) {
        PiirraPisteet(surface, PlotArea(surface), {file, kX, kY, 0, step}, {1, true, Grey(255)});
    }
}
BENCHMARK_CAPTURE(Dots, all, 1)->Name("Dots/ours")->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK_CAPTURE(Dots, fast, 21)
    ->Name("FastDots/ours")
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5);

void Density(benchmark::State& state) {
    const Tiedosto& file = BenchFile();
    RecordingKuva surface;
    Prepare(surface);
    TiheysKuva density;
    for (auto _ : state) {
        density.Piirra(surface, PlotArea(surface), {file, kX, kY, 0, 1}, 512);
    }
}
BENCHMARK(Density)->Name("Density/ours")->Unit(benchmark::kMillisecond)->Repetitions(5);

// Projects with the same rule, its constants worked out once, and sets a pixel or counts a cell at
// each event.
template <class Store>
void PlainLoop(benchmark::State& state, std::size_t step, Store store) {
    const Tiedosto& file = BenchFile();
    const AkseliProjektio xAxis(file.Channels(kX));
    const AkseliProjektio yAxis(file.Channels(kY));
    const auto xs = file.Data.Sarake(kX);
    const auto ys = file.Data.Sarake(kY);
    std::vector<uint32_t> cells(std::size_t{kSide} * kSide);
    for (auto _ : state) {
        for (std::size_t event = 0; event < xs.size(); event += step) {
            const double x = xAxis.TapahtumanPaikka(static_cast<double>(xs[event]), kSide - 1);
            const double y = yAxis.TapahtumanPaikka(static_cast<double>(ys[event]), kSide - 1);
            if (x < kSide && y < kSide) {
                store(cells[static_cast<std::size_t>(y) * kSide + static_cast<std::size_t>(x)]);
            }
        }
        benchmark::DoNotOptimize(cells.data());
    }
}
void PlainStore(benchmark::State& state, std::size_t step) {
    PlainLoop(state, step, [](uint32_t& cell) { cell = 0xffffffff; });
}
void PlainCount(benchmark::State& state) {
    PlainLoop(state, 1, [](uint32_t& cell) { ++cell; });
}
BENCHMARK_CAPTURE(PlainStore, all, 1)
    ->Name("Dots/plain")
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5);
BENCHMARK_CAPTURE(PlainStore, fast, 21)
    ->Name("FastDots/plain")
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5);
BENCHMARK(PlainCount)->Name("Density/plain")->Unit(benchmark::kMillisecond)->Repetitions(5);

}  // namespace
}  // namespace tessarin
