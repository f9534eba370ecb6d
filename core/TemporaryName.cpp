#include "core/TemporaryName.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace tessarin {
namespace {

constexpr std::string_view kBegin = ".tessarin-";
constexpr std::string_view kEnd = ".part";

std::string Digits(std::string_view name) {
    uint32_t hash = 2166136261U;  // FNV-1a
    for (const char letter : name) {
        hash = (hash ^ static_cast<unsigned char>(letter)) * 16777619U;
    }
    std::array<char, 9> digits{};
    std::snprintf(digits.data(), digits.size(), "%08x", hash);
    return digits.data();
}

std::string HostName() {
    std::array<char, 256> name{};
    gethostname(name.data(), name.size() - 1);
    return name.data();
}

// All up to the number of the process.
std::string Beginning(std::string_view target) {
    return std::string(kBegin) + Digits(target) + "-" + Digits(HostName()) + "-";
}

// The process that the rest of a name tells; 0 when it tells none.
pid_t Process(std::string_view rest) {
    pid_t process = 0;
    const auto read = std::from_chars(rest.data(), rest.data() + rest.size(), process);
    return read.ec == std::errc() && process > 0 ? process : 0;
}

bool Runs(pid_t process) {
    return kill(process, 0) == 0 || errno != ESRCH;
}

}  // namespace

std::string TemporaryName(std::string_view target, int number) {
    return Beginning(target) + std::to_string(getpid()) +
           (number == 1 ? "" : "-" + std::to_string(number)) + std::string(kEnd);
}

bool IsTemporaryName(std::string_view name) {
    return name.starts_with(kBegin) && name.ends_with(kEnd);
}

void RemoveOrphans(const std::string& folder, std::string_view target) {
    const std::string beginning = Beginning(target);
    std::error_code error;
    std::filesystem::directory_iterator entry(folder.empty() ? "." : folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (!name.starts_with(beginning) || !IsTemporaryName(name)) {
            continue;
        }
        const pid_t process = Process(std::string_view(name).substr(beginning.size()));
        if (process != 0 && !Runs(process)) {
            std::error_code ignored;
            std::filesystem::remove(entry->path(), ignored);
        }
    }
}

}  // namespace tessarin
