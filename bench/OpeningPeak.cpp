#include "OpeningPeak.h"

#include <sys/resource.h>

#include <cstdint>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <string>

#include "BenchFile.h"
#include "core/Kompensaatio.h"

namespace tessarin {
namespace {

// A line of the process's status, in megabytes.
double StatusOf(const std::string& name) {
    std::ifstream in("/proc/self/status");
    constexpr double kKilo = 1024;
    constexpr double kMega = 1e6;
    for (std::string word; in >> word;) {
        double kilobytes = 0;
        if (word == name && in >> kilobytes) {
            return kilobytes * kKilo / kMega;
        }
    }
    return 0;
}

// What the columns of values take, each counted once.
double TableMegabytes(const Tiedosto& file) {
    int columns = 0;
    for (int channel = 1; channel <= file.ChannelCount; ++channel) {
        columns += file.Data.JakaaSarakkeen(channel, file.RawData) ? 1 : 2;
    }
    constexpr double kMega = 1e6;
    return 1.0 * sizeof(float) * columns * file.EventCount / kMega;
}

int64_t PageFaults() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_minflt + usage.ru_majflt;
}

// Opens the file once, after the benchmarks, and prints what that took.
void PrintOpening(BenchForm form, const char* what) {
    BenchPath(form);
    const bool reset =
        static_cast<bool>(std::ofstream("/proc/self/clear_refs") << "5" << std::flush);
    const double before = StatusOf("VmRSS:");
    const int64_t faults = PageFaults();
    Tiedosto file = LoadBenchFile(form);
    LaskeKompensaatio(file);
    const int64_t taken = PageFaults() - faults;
    const double peak = StatusOf("VmHWM:") - before;
    if (reset) {
        std::cout << "Opening the " << what << " file took " << std::fixed << std::setprecision(1)
                  << peak << " MB at its peak and " << taken
                  << " page faults; its columns of values are " << TableMegabytes(file) << " MB\n";
    }
}

}  // namespace

void PrintOpeningPeak() {
    PrintOpening(BenchForm::kBigEndianFloats, "plain");
    PrintOpening(BenchForm::kCompensated, "compensated");
}

}  // namespace tessarin
