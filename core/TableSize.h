// How large the tables of a file may be in memory.
#pragma once

#include <cstdint>

namespace tessarin {

/// True for tables that are large for a file of that many bytes: the events may be there all the
/// same, or the file may only promise them, and only a look at the bytes can tell.
/// REQUIRES: events and channels are not negative and fit an int32_t each.
bool VoikoOllaLupaus(int64_t events, int64_t channels, uint64_t fileSize);

/// False for tables that are absurdly large for a file of that many bytes. Every event that is
/// really there takes at least a byte or two of it, so a file that is whole never comes near the
/// bound; a few letters must not take the machine's memory.
/// REQUIRES: the same.
bool OvatkoTaulutJarkevat(int64_t events, int64_t channels, uint64_t fileSize);

}  // namespace tessarin
