// The file that all benchmarks work on: 1,000,000 events of 12 channels, made at random.
#pragma once

#include <cstdint>
#include <string>

#include "core/Tiedosto.h"

namespace tessarin {

inline constexpr int32_t kBenchEvents = 1000000;
inline constexpr int16_t kBenchChannels = 12;

/// Path of the file, written on first use into the system's folder for temporary files and
/// removed when the program ends. Channels 1 to 4 are linear, the others 18-bit log.
const std::string& BenchPath();

/// The file, loaded on first use.
const Tiedosto& BenchFile();

}  // namespace tessarin
