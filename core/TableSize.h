// Whether the tables of a file should be had in memory at all.
#pragma once

#include <cstdint>

namespace tessarin {

/// False for tables that are absurdly large for a file of that many bytes. Every event that is
/// really there takes at least a byte or two of it, so a file that is whole never comes near the
/// bound; one that only promises events must not take the machine's memory with a few letters.
/// REQUIRES: events and channels are not negative and fit an int32_t each.
bool OvatkoTaulutJarkevat(int64_t events, int64_t channels, uint64_t fileSize);

}  // namespace tessarin
