// Puts a benchmark of ours beside the plainest loop that does the same, for one table of ratios.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

namespace tessarin {

using BenchFunction = void (*)(benchmark::State&);

/// Registers both as "THING/ours" and "THING/plain"; both are repeated, and the best time counts.
/// The result says nothing; it lets a constant at file scope register.
inline bool Beside(const std::string& thing, BenchFunction ours, BenchFunction plain) {
    constexpr int kRepetitions = 5;
    const auto add = [&thing](const char* side, BenchFunction function) {
        benchmark::RegisterBenchmark((thing + side).c_str(), function)
            ->Unit(benchmark::kMillisecond)
            ->Repetitions(kRepetitions)
            ->UseRealTime();
    };
    add("/ours", ours);
    add("/plain", plain);
    return true;
}

/// Says how many bytes one round reads and writes at the least, each once.
inline void MovesBytes(benchmark::State& state, int64_t bytes) {
    state.counters["bytes"] = static_cast<double>(bytes);
}

}  // namespace tessarin
