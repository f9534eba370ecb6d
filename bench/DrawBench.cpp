// Drawing dots, density and bars, beside a plain loop that projects the events and stores the
// pixels.
#include <benchmark/benchmark.h>

#include <vector>

#include "BenchFile.h"
#include "Beside.h"
#include "core/Muuttujat.h"
#include "core/Projektio.h"
#include "platform/scripted/RecordingKuva.h"
#include "plots/DensityLayer.h"
#include "plots/DotLayer.h"
#include "plots/HistogramBars.h"
#include "plots/HistogramBins.h"

namespace tessarin {
namespace {

constexpr int kSide = 512;
constexpr int16_t kX = 5;
constexpr int16_t kY = 6;
constexpr int16_t kLinear = 2;
constexpr int kBins = 1024;
constexpr int64_t kBytes = 2 * sizeof(float) + sizeof(uint32_t);  // two values and a pixel

void Prepare(RecordingKuva& surface) {
    PalautaAlkutila();
    surface.SetSize(kSide, kSide);
}

template <int32_t step>
void Dots(benchmark::State& state) {
    const Tiedosto& file = BenchFile();
    RecordingKuva surface;
    Prepare(surface);
    for (auto _ : state) {
        PiirraPisteet(surface, PlotArea(surface), {file, kX, kY, 0, step}, {1, true, Grey(255)});
    }
    MovesBytes(state, kBytes * (BenchEvents() / step));
}

void Density(benchmark::State& state) {
    const Tiedosto& file = BenchFile();
    RecordingKuva surface;
    Prepare(surface);
    TiheysKuva density;
    for (auto _ : state) {
        density.Piirra(surface, PlotArea(surface), {file, kX, kY, 0, 1}, 512);
    }
    MovesBytes(state, kBytes * BenchEvents());
}

// A whole redraw of a histogram: counting, smoothing, bars and outline.
template <int16_t channel>
void Bars(benchmark::State& state) {
    const Tiedosto& file = BenchFile();
    RecordingKuva surface;
    Prepare(surface);
    for (auto _ : state) {
        surface.Cls();
        auto histo = LaskeHistogrammi({file, channel}, kBins);
        Tasoita(histo, 2);
        PiirraPylvaat(surface, PlotArea(surface), histo, {KorkeinPylvas(histo), {255, 0, 0}, true});
    }
    MovesBytes(state, int64_t{sizeof(float)} * BenchEvents());
}

// The plain loop of a histogram: projects and counts, and draws nothing.
template <int16_t channel>
void PlainBins(benchmark::State& state) {
    const Tiedosto& file = BenchFile();
    const AkseliProjektio axis(file.Channels(channel));
    const auto values = file.Data.Sarake(channel);
    for (auto _ : state) {
        std::vector<int32_t> bins(kBins + 1);
        for (const float value : values) {
            const double place = axis.TapahtumanPaikka(static_cast<double>(value), kBins);
            if (place < kBins + 1) {
                ++bins[static_cast<std::size_t>(place)];
            }
        }
        benchmark::DoNotOptimize(bins.data());
    }
}

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
template <std::size_t step>
void PlainStore(benchmark::State& state) {
    PlainLoop(state, step, [](uint32_t& cell) { cell = 0xffffffff; });
}
void PlainCount(benchmark::State& state) {
    PlainLoop(state, 1, [](uint32_t& cell) { ++cell; });
}

constexpr int32_t kFast = 21;
const bool kRegistered =
    Beside("Dots", Dots<1>, PlainStore<1>) && Beside("FastDots", Dots<kFast>, PlainStore<kFast>) &&
    Beside("Density", Density, PlainCount) && Beside("LogHistogram", Bars<kX>, PlainBins<kX>) &&
    Beside("LinearHistogram", Bars<kLinear>, PlainBins<kLinear>);

}  // namespace
}  // namespace tessarin
