// Redrawing ten windows, beside the sum of what they are made of: dots, bars and statistics.
#include <benchmark/benchmark.h>

#include <array>
#include <limits>
#include <memory>
#include <vector>

#include "BenchFile.h"
#include "Beside.h"
#include "core/Muuttujat.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"
#include "platform/scripted/ScriptedPlatform.h"
#include "plots/DotLayer.h"
#include "plots/DotStatistics.h"
#include "plots/HistogramBars.h"
#include "plots/HistogramBins.h"
#include "plots/RegisterPlots.h"

namespace tessarin {
namespace {

constexpr int16_t kPairs = 5;  // of a dot plot and a histogram
constexpr int kBins = 1024;
constexpr int kSmoothing = 2;

int16_t FirstChannel(int16_t pair) {
    return static_cast<int16_t>(4 + pair);
}

int16_t SecondChannel(int16_t pair) {
    return static_cast<int16_t>(FirstChannel(pair) + 1);
}

// A session on one file, every event of which is drawn; two of the dot plots have statistics.
class TenWindows {
  public:
    TenWindows() {
        PalautaAlkutila();
        RekisteroiKuvaajat();
        main_ = std::make_unique<PaaIkkuna>(platform_.Services());
        main_->Kaynnista();
        FastDrawLimit = std::numeric_limits<int32_t>::max();
        Tiedostot(1) = LoadBenchFile();
        CurrentFile = 1;
        for (int16_t pair = 1; pair <= kPairs; ++pair) {
            AddWindow("DotPlot", pair);
            AddWindow("Histogram", pair);
        }
    }
    ~TenWindows() {
        PalautaAlkutila();
        main_.reset();
    }
    TenWindows(const TenWindows&) = delete;
    TenWindows& operator=(const TenWindows&) = delete;

    static bool HasStatistics(int16_t pair) { return pair <= 2; }

    void Redraw() { main_->PiirraKaikki(); }
    Kuva& Surface(std::size_t window) { return platform_.mainForm.children[window]->surface; }

  private:
    void AddWindow(const char* type, int16_t pair) {
        const int16_t id = LuoIkkuna(*main_, type);
        const auto window = IkkunaPaikassa(id);
        window->Channels()->AsetaKanava("x", FirstChannel(pair));
        window->Channels()->AsetaKanava("y", SecondChannel(pair));
        if (HasStatistics(pair) && std::string(type) == "DotPlot") {
            window->Stats()->AvaaTaiSuljeStatistics("open");
        }
    }

    ScriptedPlatform platform_;
    std::unique_ptr<PaaIkkuna> main_;
};

void Redraw(benchmark::State& state) {
    TenWindows session;
    for (auto _ : state) {
        session.Redraw();
    }
    constexpr int64_t kValues = 2 * (kPairs + 2) + kPairs;
    MovesBytes(state, kValues * static_cast<int64_t>(sizeof(float)) * BenchEvents());
}

void Parts(benchmark::State& state) {
    TenWindows session;
    const Tiedosto& file = Tiedostot(1);
    Tilastot statistics;
    for (auto _ : state) {
        for (int16_t pair = 1; pair <= kPairs; ++pair) {
            const auto window = 2 * static_cast<std::size_t>(pair - 1);
            Kuva& dots = session.Surface(window);
            const PlotData data{file, FirstChannel(pair), SecondChannel(pair), 0, 1};
            dots.Cls();
            PiirraPisteet(dots, PlotArea(dots), data, {1, true, Grey(0)});
            if (TenWindows::HasStatistics(pair)) {
                LaskeTilastot(data, statistics);
            }
            Kuva& bars = session.Surface(window + 1);
            bars.Cls();
            auto histo = LaskeHistogrammi({file, FirstChannel(pair)}, kBins);
            Tasoita(histo, kSmoothing);
            PiirraPylvaat(bars, PlotArea(bars), histo, {KorkeinPylvas(histo), {255, 0, 0}, true});
        }
    }
}

const bool kRegistered = Beside("Redraw", Redraw, Parts);

}  // namespace
}  // namespace tessarin
