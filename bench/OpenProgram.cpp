#include "OpenProgram.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <iomanip>
#include <iostream>
#include <limits>
#include <vector>

#include "BenchFile.h"

namespace tessarin {
namespace {

// Milliseconds of one run; below 0 when it failed.
double RunOnce(std::vector<std::string> words) {
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t quiet;
    posix_spawn_file_actions_init(&quiet);
    posix_spawn_file_actions_addopen(&quiet, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    const auto start = std::chrono::steady_clock::now();
    pid_t child = 0;
    const int failure =
        posix_spawn(&child, arguments[0], &quiet, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&quiet);
    int status = 0;
    if (failure != 0 || waitpid(child, &status, 0) < 0 || status != 0) {
        return -1;
    }
    const std::chrono::duration<double, std::milli> taken =
        std::chrono::steady_clock::now() - start;
    return taken.count();
}

}  // namespace

void PrintOpenProgram(const std::string& program) {
    const std::string limit = std::to_string(BenchEvents());
    const std::vector<std::string> empty = {program, "--headless", "--max-events", limit};
    std::vector<std::string> withFile = empty;
    withFile.push_back(BenchPath());
    constexpr int kRuns = 15;
    std::array<double, 2> best;
    best.fill(std::numeric_limits<double>::infinity());
    for (int run = 0; run < kRuns; ++run) {
        best[0] = std::min(best[0], RunOnce(empty));
        best[1] = std::min(best[1], RunOnce(withFile));
    }
    if (best[0] < 0 || best[1] < 0) {
        std::cout << program << " could not be run\n";
        return;
    }
    std::cout << "Open: the program opens and draws the file in " << std::fixed
              << std::setprecision(1) << best[1] - best[0] << " ms, beside " << best[0]
              << " ms for its start\n";
}

}  // namespace tessarin
