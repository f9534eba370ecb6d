// The autosave of a full session, beside writing a file of the same bytes in the plainest way.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "core/Muuttujat.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"
#include "platform/scripted/ScriptedPlatform.h"
#include "plots/RegisterPlots.h"
#include "sheets/SheetStore.h"

namespace tessarin {
namespace {

// 50 windows, half of them with statistics, and 32 populations, of 50 corners each.
class FullSession {
  public:
    FullSession() : folder_(std::filesystem::temp_directory_path() / "tessarin-bench-save/") {
        std::filesystem::create_directories(folder_);
        platform_.programFolder = folder_.string();
        RekisteroiKuvaajat();
        main_ = std::make_unique<PaaIkkuna>(platform_.Services());
        store_ = std::make_unique<SheetStore>(*main_, true);
        main_->Kumppanit().views = store_.get();
        main_->Kaynnista();
        OletusKoko = {1500, 1500};
        OletusKokoHistogram = {1500, 1500};
        for (int16_t id = 1; id <= MaxWindows; ++id) {
            LuoIkkunaPaikkaan(*main_, id % 2 == 0 ? "DotPlot" : "Histogram", id);
            IkkunaPaikassa(id)->AvaaTaiSuljeStatistics(id % 4 < 2 ? "open" : "close");
        }
        for (int16_t slot = 1; slot <= kPopulationSlots; ++slot) {
            Populaatio& row = Populaatiot(slot);
            row.Defined = true;
            row.Name = "Population " + std::to_string(slot);
            row.Type = "Polygon";
            row.Corners = kMaxCorners;
            row.X.fill(1234.5678F);
            row.Y.fill(8765.4321F);
        }
    }
    ~FullSession() {
        PalautaAlkutila();
        store_.reset();
        main_.reset();
        std::filesystem::remove_all(folder_);
    }
    FullSession(const FullSession&) = delete;
    FullSession& operator=(const FullSession&) = delete;

    void Save(int64_t round) {
        Populaatiot(1).Name = "Step " + std::to_string(round % 10);  // something has changed
        main_->TalletaNakyma("Autosave");
    }
    std::string Path(const char* name) const { return (folder_ / name).string(); }

  private:
    std::filesystem::path folder_;
    ScriptedPlatform platform_;
    std::unique_ptr<PaaIkkuna> main_;
    std::unique_ptr<SheetStore> store_;
};

void Autosave(benchmark::State& state) {
    FullSession session;
    int64_t round = 0;
    for (auto _ : state) {
        session.Save(++round);
    }
}
BENCHMARK(Autosave)->Name("Autosave/ours")->Unit(benchmark::kMillisecond)->Repetitions(5);

void PlainWrite(benchmark::State& state) {
    FullSession session;
    session.Save(1);
    std::ifstream in(session.Path("autosave.tessarin"), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(in), {}};
    for (auto _ : state) {
        std::ofstream(session.Path("plain"), std::ios::binary) << bytes;
    }
    state.counters["bytes"] = static_cast<double>(bytes.size());
}
BENCHMARK(PlainWrite)->Name("Autosave/plain")->Unit(benchmark::kMillisecond)->Repetitions(5);

}  // namespace
}  // namespace tessarin
