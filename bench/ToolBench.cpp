// Running the lines of a tool, beside a loop that copies each executed line and reads its number.
#include <benchmark/benchmark.h>

#include <array>
#include <cstdlib>
#include <sstream>
#include <string>

#include "Beside.h"
#include "core/Muuttujat.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"
#include "platform/scripted/ScriptedPlatform.h"
#include "plots/RegisterPlots.h"
#include "tools/AnswerToolUser.h"
#include "tools/ToolRun.h"

namespace tessarin {
namespace {

constexpr int kRounds = 1000;
constexpr std::array<const char*, 4> kLines = {"$i.calc:$i+1", "$x.calc:$i*2.5 - Sqr($i)",
                                               "$q.set:@.windows.count", "loop"};

void ToolLines(benchmark::State& state) {
    PalautaAlkutila();
    RekisteroiKuvaajat();
    {
        ScriptedPlatform platform;
        PaaIkkuna main(platform.Services());
        main.Kaynnista();
        std::string text = "$i.set:0\ndo:" + std::to_string(kRounds) + "\n";
        for (const char* line : kLines) {
            text += std::string(line) + "\n";
        }
        std::ostringstream log;
        AnswerToolUser user({}, platform.dialogs, nullptr, log);
        for (auto _ : state) {
            ToolRun run(main, {user});
            if (!run.AjaOhjelma(text)) {
                state.SkipWithError(log.str().c_str());
            }
        }
        PalautaAlkutila();
    }
    state.counters["lines"] = benchmark::Counter(static_cast<double>(kRounds * kLines.size()),
                                                 benchmark::Counter::kIsIterationInvariantRate);
}

void PlainLines(benchmark::State& state) {
    for (auto _ : state) {
        double sum = 0;
        for (int round = 0; round < kRounds; ++round) {
            for (const char* line : kLines) {
                const std::string copy(line);
                const auto digit = copy.find_first_of("0123456789");
                sum += digit == std::string::npos ? 0 : std::strtod(copy.c_str() + digit, nullptr);
            }
        }
        benchmark::DoNotOptimize(sum);
    }
}

const bool kRegistered = Beside("ToolLines", ToolLines, PlainLines);

}  // namespace
}  // namespace tessarin
