#include "core/ValueMemory.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <new>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace tessarin {
namespace {

std::shared_ptr<void> PlainZeros(std::size_t bytes) {
    // calloc takes untouched zero pages from the system where the block is large.
    void* block = std::calloc(bytes == 0 ? 1 : bytes, 1);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    return {block, std::free};
}

#ifdef __linux__

constexpr std::size_t RoundedUp(std::size_t bytes, std::size_t unit) {
    return (bytes + unit - 1) / unit * unit;
}

// How much of a block is advised for huge pages: all whole ones, and the last when its half is
// used.
constexpr std::size_t HugePart(std::size_t bytes) {
    return (bytes + kHugePage / 2) / kHugePage * kHugePage;
}

// Maps more than is wanted, by the alignment, and gives back what lies before and behind.
std::shared_ptr<void> HugeZeros(std::size_t bytes) {
    constexpr std::size_t kPage = 4096;
    const std::size_t length = std::max(RoundedUp(bytes, kPage), HugePart(bytes));
    void* mapped = mmap(nullptr, length + kHugePage, PROT_READ | PROT_WRITE,
                        MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapped == MAP_FAILED) {
        throw std::bad_alloc();
    }
    auto* const start = static_cast<char*>(mapped);
    const auto place = reinterpret_cast<std::uintptr_t>(start);
    const std::size_t before = RoundedUp(place, kHugePage) - place;
    char* const block = start + before;
    if (before > 0) {
        munmap(start, before);
    }
    if (before < kHugePage) {
        munmap(block + length, kHugePage - before);
    }
    madvise(block, HugePart(bytes), MADV_HUGEPAGE);  // only advice: without it pages are small
    return {block, [length](void* old) { munmap(old, length); }};
}

#endif

}  // namespace

std::shared_ptr<void> VaraaNollattu(std::size_t bytes) {
    if (bytes > std::numeric_limits<std::ptrdiff_t>::max() - 2 * kHugePage) {
        throw std::bad_alloc();
    }
#ifdef __linux__
    if (bytes >= kHugePage) {
        return HugeZeros(bytes);
    }
#endif
    return PlainZeros(bytes);
}

}  // namespace tessarin
