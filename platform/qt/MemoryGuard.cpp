#include "platform/qt/MemoryGuard.h"

#include <sys/mman.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <exception>
#include <new>
#include <string_view>

namespace tessarin {
namespace {

constexpr std::size_t kRoom = std::size_t{16} << 20U;  // a screen of 2560 by 1600 at four bytes

void EndAtSignal(int /*signal*/) {
    EndForMemory();
}

// Whoever throws what nobody catches is asked here.
void EndForWhatWasThrown() {
    try {
        if (const std::exception_ptr thrown = std::current_exception()) {
            std::rethrow_exception(thrown);
        }
    } catch (const std::bad_alloc&) {
        EndForMemory();
    } catch (...) {
        std::abort();
    }
    std::abort();
}

}  // namespace

bool HasRoomForAnEvent() {
    void* const room =
        mmap(nullptr, kRoom, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return room != MAP_FAILED && munmap(room, kRoom) == 0;
}

void EndForMemory() {
    // Nothing here may ask for memory.
    constexpr std::string_view kWord = "tessarin: there is not enough memory\n";
    [[maybe_unused]] const auto written = write(STDERR_FILENO, kWord.data(), kWord.size());
    _exit(EXIT_FAILURE);
}

void EndWhenMemoryIsGone() {
    std::set_terminate(EndForWhatWasThrown);
}

void EndForMemoryWithin(unsigned seconds) {
    std::signal(SIGALRM, EndAtSignal);
    alarm(seconds);
}

}  // namespace tessarin
