// Runs all benchmarks and prints each beside the plainest loop that does the same.
//
// A benchmark is named "Thing/ours" or "Thing/plain"; the table at the end gives the ratio of the
// two, taken in the same run: these numbers can be compared between machines, the times cannot.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "BenchFile.h"
#include "OpenProgram.h"
#include "OpeningPeak.h"

namespace {

using tessarin::BenchEvents;

// Milliseconds of the best repetition, and what a round moves.
struct Timing {
    double time = 0;
    double bytes = 0;
};

class RatioReporter : public benchmark::ConsoleReporter {
  public:
    bool ReportContext(const Context& context) override {
        order_.clear();
        timings_.clear();
        return ConsoleReporter::ReportContext(context);
    }

    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Aggregate) {
                continue;
            }
            const std::string& name = run.run_name.function_name;
            const auto slash = name.find('/');
            const std::string thing = name.substr(0, slash);
            if (!timings_.contains(thing)) {
                order_.push_back(thing);
            }
            Timing& best = timings_[thing][name.substr(slash + 1)];
            const double time = run.GetAdjustedRealTime();
            best.time = best.time == 0 ? time : std::min(best.time, time);
            const auto bytes = run.counters.find("bytes");
            best.bytes = bytes == run.counters.end() ? 0 : bytes->second.value;
        }
    }

    void Finalize() override {
        std::cout << "\n"
                  << BenchEvents() << " events, best of all repetitions\n"
                  << "thing                    ms   ns/event      MB    GB/s   ratio to plain\n"
                  << std::fixed;
        for (const std::string& thing : order_) {
            PrintRow(thing, timings_[thing]["ours"], timings_[thing]["plain"]);
        }
    }

  private:
    static void PrintRow(const std::string& thing, const Timing& ours, const Timing& plain) {
        constexpr double kMega = 1e6;
        std::cout << std::left << std::setw(20) << thing << std::right << std::setprecision(3)
                  << std::setw(10) << ours.time << std::setw(11) << std::setprecision(2)
                  << ours.time * kMega / BenchEvents() << std::setw(8) << std::setprecision(1)
                  << ours.bytes / kMega << std::setw(8)
                  << (ours.time > 0 ? ours.bytes / kMega / ours.time : 0) << std::setw(9)
                  << std::setprecision(2) << (plain.time > 0 ? ours.time / plain.time : 0) << "\n";
    }

    std::vector<std::string> order_;
    std::map<std::string, std::map<std::string, Timing>> timings_;
};

// Takes the options that begin so out of the arguments; gives what stands behind.
std::vector<std::string> TakeOption(std::vector<char*>& arguments, std::string_view option) {
    std::vector<std::string> values;
    std::erase_if(arguments, [&](const char* argument) {
        if (std::string_view(argument).starts_with(option)) {
            values.emplace_back(argument + option.size());
            return true;
        }
        return false;
    });
    return values;
}

// The numbers of events to run with.
std::vector<int32_t> TakeSizes(std::vector<char*>& arguments) {
    std::vector<int32_t> sizes;
    for (const std::string& value : TakeOption(arguments, "--events=")) {
        sizes.push_back(std::atoi(value.c_str()));
    }
    if (sizes.empty()) {
        sizes.push_back(BenchEvents());
    }
    return sizes;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<char*> arguments(argv, argv + argc);
    const std::vector<int32_t> sizes = TakeSizes(arguments);
    const std::vector<std::string> programs = TakeOption(arguments, "--program=");
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
        return 1;
    }
    RatioReporter reporter;
    for (const int32_t size : sizes) {
        if (size < 1) {
            std::cerr << "--events=N: N is a whole number from 1\n";
            return 1;
        }
        tessarin::SetBenchEvents(size);
        benchmark::RunSpecifiedBenchmarks(&reporter);
        tessarin::PrintOpeningPeak();
        for (const std::string& program : programs) {
            tessarin::PrintOpenProgram(program);
        }
    }
    return 0;
}
