// Writing a list-mode file, beside a loop that writes the same rows.
#include <benchmark/benchmark.h>

#include <bit>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "BenchFile.h"
#include "Beside.h"
#include "core/FCSWriter.h"
#include "core/Muuttujat.h"

namespace tessarin {
namespace {

std::string OutPath() {
    return BenchPath() + ".out";
}

void Finish(benchmark::State& state) {
    MovesBytes(state, int64_t{2 * sizeof(float)} * kBenchChannels * BenchEvents());
    std::error_code ignored;
    std::filesystem::remove(OutPath(), ignored);
    PalautaAlkutila();
}

void Write(benchmark::State& state) {
    PalautaAlkutila();
    Tiedostot(1) = LoadBenchFile();
    for (auto _ : state) {
        const std::string message = KirjoitaFCS(OutPath(), 1);
        if (!message.empty()) {
            state.SkipWithError(message.c_str());
        }
    }
    Finish(state);
}

void PlainWrite(benchmark::State& state) {
    const Tiedosto& file = BenchFile();
    std::vector<char> row(sizeof(uint32_t) * kBenchChannels);
    for (auto _ : state) {
        std::ofstream out(OutPath(), std::ios::binary);
        for (int32_t event = 1; event <= file.EventCount; ++event) {
            char* to = row.data();
            for (int16_t channel = 1; channel <= kBenchChannels; ++channel) {
                const auto bits = std::bit_cast<uint32_t>(file.RawData(event, channel));
                for (unsigned shift = 32; shift > 0; shift -= 8) {
                    *to++ = static_cast<char>(bits >> (shift - 8));
                }
            }
            out.write(row.data(), static_cast<std::streamsize>(row.size()));
        }
    }
    Finish(state);
}

const bool kRegistered = Beside("Write", Write, PlainWrite);

}  // namespace
}  // namespace tessarin
