#include "OpeningPeak.h"

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

double TableMegabytes(const Tiedosto& file) {
    const double perEvent = 2.0 * sizeof(float) * file.ChannelCount;
    constexpr double kMega = 1e6;
    return perEvent * file.EventCount / kMega;
}

}  // namespace

void PrintOpeningPeak() {
    BenchPath();
    const bool reset =
        static_cast<bool>(std::ofstream("/proc/self/clear_refs") << "5" << std::flush);
    const double before = StatusOf("VmRSS:");
    Tiedosto file = LoadBenchFile();
    LaskeKompensaatio(file);
    const double peak = StatusOf("VmHWM:") - before;
    if (reset) {
        std::cout << "Opening the file took " << std::setprecision(1) << peak
                  << " MB at its peak; its tables of values are " << TableMegabytes(file)
                  << " MB\n";
    }
}

}  // namespace tessarin
