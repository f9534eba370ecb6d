// The autosave of a full session and its loading, beside writing and reading a file of the same
// bytes in the plainest way.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "Beside.h"
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
        OletusKoko("DotPlot") = {1500, 1500};
        OletusKoko("Histogram") = {1500, 1500};
        for (int16_t id = 1; id <= MaxWindows; ++id) {
            LuoIkkunaPaikkaan(*main_, id % 2 == 0 ? "DotPlot" : "Histogram", id);
            IkkunaPaikassa(id)->Stats()->AvaaTaiSuljeStatistics(id % 4 < 2 ? "open" : "close");
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
    void Load() { main_->LataaNakyma(Path("autosave.tessarin")); }
    std::string Path(const char* name) const { return (folder_ / name).string(); }

  private:
    std::filesystem::path folder_;
    ScriptedPlatform platform_;
    std::unique_ptr<PaaIkkuna> main_;
    std::unique_ptr<SheetStore> store_;
};

std::string BytesOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

int64_t SheetBytes(const FullSession& session) {
    return static_cast<int64_t>(std::filesystem::file_size(session.Path("autosave.tessarin")));
}

void Autosave(benchmark::State& state) {
    FullSession session;
    int64_t round = 0;
    for (auto _ : state) {
        session.Save(++round);
    }
    MovesBytes(state, SheetBytes(session));
}

void PlainWrite(benchmark::State& state) {
    FullSession session;
    session.Save(1);
    const std::string bytes = BytesOf(session.Path("autosave.tessarin"));
    for (auto _ : state) {
        std::ofstream(session.Path("plain"), std::ios::binary) << bytes;
    }
}

void SheetLoad(benchmark::State& state) {
    FullSession session;
    session.Save(1);
    for (auto _ : state) {
        session.Load();
    }
    if (!Ikkunat(MaxWindows).Used) {
        state.SkipWithError("the sheet has lost a window");
    }
    MovesBytes(state, SheetBytes(session));
}

// Reads the file and cuts it into lines.
void PlainLoad(benchmark::State& state) {
    FullSession session;
    session.Save(1);
    for (auto _ : state) {
        std::ifstream in(session.Path("autosave.tessarin"), std::ios::binary);
        std::vector<std::string> lines;
        for (std::string line; std::getline(in, line);) {
            lines.push_back(line);
        }
        benchmark::DoNotOptimize(lines.data());
    }
}

const bool kRegistered =
    Beside("Autosave", Autosave, PlainWrite) && Beside("SheetLoad", SheetLoad, PlainLoad);

}  // namespace
}  // namespace tessarin
