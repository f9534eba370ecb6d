// Reading a file, beside a loop that reads its bytes and fills two column-major tables.
#include <benchmark/benchmark.h>

#include <bit>
#include <fstream>
#include <vector>

#include "BenchFile.h"
#include "core/FCSReader.h"
#include "core/Kompensaatio.h"

namespace tessarin {
namespace {

void Ours(benchmark::State& state) {
    BenchPath();
    for (auto _ : state) {
        Tiedosto file = LueFCS(BenchPath());
        LaskeKompensaatio(file);
        benchmark::DoNotOptimize(file.Data(1, 1));
    }
}
BENCHMARK(Ours)->Name("Read/ours")->Unit(benchmark::kMillisecond)->Repetitions(5)->UseRealTime();

void Plain(benchmark::State& state) {
    constexpr std::size_t kEvents = kBenchEvents;
    constexpr std::size_t kChannels = kBenchChannels;
    BenchPath();
    for (auto _ : state) {
        std::ifstream in(BenchPath(), std::ios::binary);
        in.seekg(-static_cast<std::streamoff>(4 * kEvents * kChannels), std::ios::end);
        std::vector<unsigned char> row(4 * kChannels);
        std::vector<float> raw(kEvents * kChannels);
        std::vector<float> data(kEvents * kChannels);
        for (std::size_t event = 0; event < kEvents; ++event) {
            in.read(reinterpret_cast<char*>(row.data()), static_cast<std::streamsize>(row.size()));
            for (std::size_t channel = 0; channel < kChannels; ++channel) {
                const unsigned char* at = row.data() + 4 * channel;
                const uint32_t bits = static_cast<uint32_t>(at[0]) << 24U |
                                      static_cast<uint32_t>(at[1]) << 16U |
                                      static_cast<uint32_t>(at[2]) << 8U | at[3];
                const auto value = std::bit_cast<float>(bits);
                raw[channel * kEvents + event] = value;
                data[channel * kEvents + event] = value;
            }
        }
        benchmark::DoNotOptimize(data.data());
        benchmark::DoNotOptimize(raw.data());
    }
}
BENCHMARK(Plain)->Name("Read/plain")->Unit(benchmark::kMillisecond)->Repetitions(5)->UseRealTime();

}  // namespace
}  // namespace tessarin
