// The files that all benchmarks work on, of events made at random.
#pragma once

#include <cstdint>
#include <string>

#include "core/Tiedosto.h"

namespace tessarin {

inline constexpr int16_t kBenchChannels = 12;

/// How many events the files have: 1,000,000 unless `SetBenchEvents` said otherwise, which drops
/// the files of the old size.
int32_t BenchEvents();
void SetBenchEvents(int32_t events);

/// How the values stand in a file.
enum class BenchForm {
    kBigEndianFloats,
    kLittleEndianFloats,
    kIntegers16,
    kIntegers32,
    kCompensated,  // big-endian floats, with a spill of every channel into every other
};

/// Bytes of one value in a file of that form.
int BenchValueBytes(BenchForm form);

/// Path of the file, written on first use into a folder of the system's for temporary files and
/// removed when the program ends. Channels 1 to 4 are linear, the others 18-bit log; 16-bit
/// integers are all linear.
const std::string& BenchPath(BenchForm form = BenchForm::kBigEndianFloats);

/// Loads all events of the file, whatever the session's limit is.
Tiedosto LoadBenchFile(BenchForm form = BenchForm::kBigEndianFloats);

/// The file of big-endian floats, loaded on first use.
const Tiedosto& BenchFile();

}  // namespace tessarin
