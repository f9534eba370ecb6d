// Zeroed memory for columns of values, had from the system so that fresh pages cost little.
#pragma once

#include <cstddef>
#include <memory>

namespace tessarin {

/// `bytes` of zeros, aligned for any value and given back when the last holder lets go.
///
/// From `kHugePage` on the block starts at a multiple of it and is advised for huge pages, so that
/// the system clears two megabytes for one page fault instead of four kilobytes. The end of the
/// block gets a huge page of its own only when that is at least half full. Small blocks, and those
/// of systems without such pages, are plain zeroed memory.
/// Throws std::bad_alloc when the memory cannot be had.
std::shared_ptr<void> VaraaNollattu(std::size_t bytes);

inline constexpr std::size_t kHugePage = std::size_t{2} << 20U;

}  // namespace tessarin
