// Reading a file in each form, beside a loop that reads its bytes and fills two column-major
// tables.
#include <benchmark/benchmark.h>

#include <bit>
#include <fstream>
#include <vector>

#include "BenchFile.h"
#include "Beside.h"
#include "core/Kompensaatio.h"

namespace tessarin {
namespace {

constexpr std::size_t kChannels = kBenchChannels;

std::size_t Values() {
    return static_cast<std::size_t>(BenchEvents()) * kChannels;
}

// The file's bytes once, and both tables.
int64_t Bytes(BenchForm form) {
    return static_cast<int64_t>(Values()) *
           (BenchValueBytes(form) + int64_t{2} * static_cast<int64_t>(sizeof(float)));
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
void PlainCompensation(const std::vector<float>& raw, std::vector<float>& data) {
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

template <BenchForm form>
void PlainRead(benchmark::State& state) {
    const auto events = static_cast<std::size_t>(BenchEvents());
    const auto width = static_cast<std::size_t>(BenchValueBytes(form));
    BenchPath(form);
    for (auto _ : state) {
        std::ifstream in(BenchPath(form), std::ios::binary);
        in.seekg(-static_cast<std::streamoff>(width * Values()), std::ios::end);
        std::vector<unsigned char> row(width * kChannels);
        std::vector<float> raw(Values());
        std::vector<float> data(Values());
        for (std::size_t event = 0; event < events; ++event) {
            in.read(reinterpret_cast<char*>(row.data()), static_cast<std::streamsize>(row.size()));
            for (std::size_t channel = 0; channel < kChannels; ++channel) {
                const float value = Decode<form>(row.data() + width * channel);
                raw[channel * events + event] = value;
                data[channel * events + event] = value;
            }
        }
        if (form == BenchForm::kCompensated) {
            PlainCompensation(raw, data);
        }
        benchmark::DoNotOptimize(data.data());
        benchmark::DoNotOptimize(raw.data());
    }
    MovesBytes(state, Bytes(form));
}

template <BenchForm form>
bool BesidePlain(const char* thing) {
    return Beside(thing, Read<form>, PlainRead<form>);
}

const bool kRegistered = BesidePlain<BenchForm::kBigEndianFloats>("Read") &&
                         BesidePlain<BenchForm::kLittleEndianFloats>("ReadLittleEndian") &&
                         BesidePlain<BenchForm::kIntegers16>("ReadIntegers16") &&
                         BesidePlain<BenchForm::kIntegers32>("ReadIntegers32") &&
                         BesidePlain<BenchForm::kCompensated>("ReadCompensated");

}  // namespace
}  // namespace tessarin
