// Reading a file in each form, beside two plain loops over its bytes: one that fills two
// column-major tables of ordinary memory, and one that fills a single table, and the columns that
// compensation changes, in memory advised like ours.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <bit>
#include <fstream>
#include <string>
#include <vector>

#include "BenchFile.h"
#include "Beside.h"
#include "core/Kompensaatio.h"
#include "core/ValueMemory.h"

namespace tessarin {
namespace {

constexpr std::size_t kChannels = kBenchChannels;

std::size_t Values() {
    return static_cast<std::size_t>(BenchEvents()) * kChannels;
}

// The file's bytes once, and one table, or with compensation two.
int64_t Bytes(BenchForm form) {
    const int64_t tables = form == BenchForm::kCompensated ? 2 : 1;
    return static_cast<int64_t>(Values()) *
           (BenchValueBytes(form) + tables * static_cast<int64_t>(sizeof(float)));
}

template <BenchForm form>
void Read(benchmark::State& state) {
    BenchPath(form);
    for (auto _ : state) {
        Tiedosto file = LoadBenchFile(form);
        LaskeKompensaatio(file);
        benchmark::DoNotOptimize(file.Data(1, 1));
    }
    MovesBytes(state, Bytes(form));
}

template <BenchForm form>
float Decode(const unsigned char* at) {
    if constexpr (form == BenchForm::kIntegers16) {
        return static_cast<float>(at[0] << 8U | at[1]);
    } else {
        uint32_t bits = static_cast<uint32_t>(at[0]) << 24U | static_cast<uint32_t>(at[1]) << 16U |
                        static_cast<uint32_t>(at[2]) << 8U | at[3];
        if constexpr (form == BenchForm::kIntegers32) {
            return static_cast<float>(bits);
        }
        if constexpr (form == BenchForm::kLittleEndianFloats) {
            bits = __builtin_bswap32(bits);
        }
        return std::bit_cast<float>(bits);
    }
}

// Takes a hundredth of every other channel off each.
void PlainCompensation(const float* raw, float* data) {
    const auto events = static_cast<std::size_t>(BenchEvents());
    for (std::size_t into = 0; into < kChannels; ++into) {
        for (std::size_t from = 0; from < kChannels; ++from) {
            if (from == into) {
                continue;
            }
            for (std::size_t event = 0; event < events; ++event) {
                data[into * events + event] -= 0.01F * raw[from * events + event];
            }
        }
    }
}

// Calls `store(place, value)` for every value of the file, row by row; `place` counts column by
// column.
template <BenchForm form, class Store>
void ReadRows(Store store) {
    const auto events = static_cast<std::size_t>(BenchEvents());
    const auto width = static_cast<std::size_t>(BenchValueBytes(form));
    std::ifstream in(BenchPath(form), std::ios::binary);
    in.seekg(-static_cast<std::streamoff>(width * Values()), std::ios::end);
    std::vector<unsigned char> row(width * kChannels);
    for (std::size_t event = 0; event < events; ++event) {
        in.read(reinterpret_cast<char*>(row.data()), static_cast<std::streamsize>(row.size()));
        for (std::size_t channel = 0; channel < kChannels; ++channel) {
            store(channel * events + event, Decode<form>(row.data() + width * channel));
        }
    }
}

template <BenchForm form>
void PlainRead(benchmark::State& state) {
    BenchPath(form);
    for (auto _ : state) {
        std::vector<float> raw(Values());
        std::vector<float> data(Values());
        ReadRows<form>([&](std::size_t place, float value) {
            raw[place] = value;
            data[place] = value;
        });
        if (form == BenchForm::kCompensated) {
            PlainCompensation(raw.data(), data.data());
        }
        benchmark::DoNotOptimize(data.data());
        benchmark::DoNotOptimize(raw.data());
    }
    MovesBytes(state, Bytes(form));
}

template <BenchForm form>
void LeanRead(benchmark::State& state) {
    BenchPath(form);
    for (auto _ : state) {
        const auto block = VaraaNollattu(Values() * sizeof(float));
        auto* const raw = static_cast<float*>(block.get());
        ReadRows<form>([raw](std::size_t place, float value) { raw[place] = value; });
        if (form == BenchForm::kCompensated) {
            const auto changed = VaraaNollattu(Values() * sizeof(float));
            auto* const data = static_cast<float*>(changed.get());
            std::copy_n(raw, Values(), data);
            PlainCompensation(raw, data);
            benchmark::DoNotOptimize(data);
        }
        benchmark::DoNotOptimize(raw);
    }
    MovesBytes(state, Bytes(form));
}

template <BenchForm form>
bool BesidePlain(const std::string& thing) {
    return Beside(thing, Read<form>, PlainRead<form>) &&
           Beside(thing + "Lean", Read<form>, LeanRead<form>);
}

const bool kRegistered = BesidePlain<BenchForm::kBigEndianFloats>("Read") &&
                         BesidePlain<BenchForm::kLittleEndianFloats>("ReadLittleEndian") &&
                         BesidePlain<BenchForm::kIntegers16>("ReadIntegers16") &&
                         BesidePlain<BenchForm::kIntegers32>("ReadIntegers32") &&
                         BesidePlain<BenchForm::kCompensated>("ReadCompensated");

}  // namespace
}  // namespace tessarin
