// Projecting one log channel, beside a plain loop with the same logarithm.
#include <benchmark/benchmark.h>

#include <cmath>
#include <numeric>
#include <vector>

#include "BenchFile.h"
#include "Beside.h"
#include "core/Projektio.h"

namespace tessarin {
namespace {

constexpr int16_t kLogChannel = 6;
constexpr int64_t kBytesPerEvent = sizeof(float) + sizeof(double);

void Ours(benchmark::State& state) {
    const Tiedosto& file = BenchFile();
    std::vector<int32_t> events(static_cast<std::size_t>(BenchEvents()));
    std::iota(events.begin(), events.end(), 1);
    std::vector<double> positions(events.size());
    for (auto _ : state) {
        AnnaPaikat(file, events, kLogChannel, 10000, positions);
        benchmark::DoNotOptimize(positions.data());
    }
    MovesBytes(state, kBytesPerEvent * BenchEvents());
}

void Plain(benchmark::State& state) {
    const auto values = BenchFile().Data.Sarake(kLogChannel);
    std::vector<double> positions(values.size());
    for (auto _ : state) {
        for (std::size_t i = 0; i < values.size(); ++i) {
            positions[i] = std::log10(static_cast<double>(values[i]) + 40) * 0.1;
        }
        benchmark::DoNotOptimize(positions.data());
    }
    MovesBytes(state, kBytesPerEvent * BenchEvents());
}

const bool kRegistered = Beside("Project", Ours, Plain);

}  // namespace
}  // namespace tessarin
