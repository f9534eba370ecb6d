// Runs all benchmarks and prints each beside the plainest loop over the same bytes.
//
// A benchmark is named "Thing/ours" or "Thing/plain"; the table at the end gives the ratio of the
// two, taken in the same run: these numbers can be compared between machines, the times cannot.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <iostream>
#include <map>
#include <string>

namespace {

class RatioReporter : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Aggregate) {
                continue;
            }
            const std::string& name = run.run_name.function_name;
            const auto slash = name.find('/');
            const double time = run.GetAdjustedRealTime();
            double& best = times_[name.substr(0, slash)][name.substr(slash + 1)];
            best = best == 0 ? time : std::min(best, time);
        }
    }

    void Finalize() override {
        std::cout << "\nRatio to the plain loop, best of all repetitions\n";
        for (auto& [thing, times] : times_) {
            if (times["plain"] > 0) {
                std::cout << "  " << thing << ": " << times["ours"] / times["plain"] << "\n";
            }
        }
    }

  private:
    std::map<std::string, std::map<std::string, double>> times_;
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
