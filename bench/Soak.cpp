// Works a session for minutes without a rest: loads a sheet, lets a tool step, gate and read
// statistics, saves the sheet and a package, and so on. Memory must not grow from round to round,
// nor must the time of a round.
//
//   tessarin_soak [SECONDS]    600 by default; exit status 1 when the memory at the end is above
//                              that at the first tenth by a twentieth
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>

#include "BenchFile.h"
#include "core/Muuttujat.h"
#include "mainwindow/FileLoading.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"
#include "platform/scripted/ScriptedPlatform.h"
#include "plots/RegisterPlots.h"
#include "sheets/SheetStore.h"
#include "sheets/SheetWriter.h"
#include "tools/AnswerToolUser.h"
#include "tools/ToolRun.h"

namespace tessarin {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int kFiles = 5;
constexpr int32_t kEvents = 20000;
constexpr int kReports = 10;

constexpr const char* kTool = R"(w.1.file.move:first
do:100
p.1.position.1.x:3900
p.1.position.1.x:4100
p.5.position.right:6000
p.5.position.right:6100
$m.set:@.w.1.population.1.xmean
$h.set:@.w.2.histogram.highest.position.5
w.1.statistics.visible:false
w.1.statistics.visible:true
w.2.file.move:next
w.1.file.move:next
loop
)";

// Kilobytes of memory that the process holds.
int64_t ResidentMemory() {
    std::ifstream in("/proc/self/statm");
    int64_t pages = 0;
    in >> pages >> pages;
    constexpr int64_t kKilo = 1024;
    return pages * sysconf(_SC_PAGESIZE) / kKilo;
}

class Session {
  public:
    Session() : folder_(fs::temp_directory_path() / ("soak-" + std::to_string(getpid()))) {
        fs::create_directories(folder_ / "files");
        SetBenchEvents(kEvents);
        for (int file = 1; file <= kFiles; ++file) {
            fs::copy_file(BenchPath(), FilePath(file));
        }
        RekisteroiKuvaajat();
        main_ = std::make_unique<PaaIkkuna>(platform_.Services());
        store_ = std::make_unique<SheetStore>(*main_, false);
        main_->Kumppanit().views = store_.get();
        main_->Kaynnista();
        main_->AvaaTiedosto(FilePath(1));
        IkkunaPaikassa(1)->Channels()->AsetaKanava("x", 5);
        IkkunaPaikassa(1)->Channels()->AsetaKanava("y", 6);
        LuoIkkuna(*main_, "Histogram");
        DefineRegions();
        KirjoitaNakyma(*main_, NakymaLaji::kSheet, Path("s.tessarin"));
    }
    ~Session() {
        PalautaAlkutila();
        store_.reset();
        main_.reset();
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // False when something of the round failed.
    bool Round() {
        if (!main_->LataaNakyma(Path("s.tessarin"))) {
            return false;
        }
        std::ostringstream log;
        AnswerToolUser user({}, platform_.dialogs, nullptr, log);
        ToolRun run(*main_, {user});
        if (!run.AjaOhjelma(kTool)) {
            std::cerr << log.str();
            return false;
        }
        platform_.pointer.history.clear();  // what the platform remembers is no leak
        if (!platform_.dialogs.messages.empty()) {
            std::cerr << platform_.dialogs.messages.back().text << "\n";
            return false;
        }
        const bool sheet =
            KirjoitaNakyma(*main_, NakymaLaji::kSheet, Path("s.tessarin")).message.empty();
        return sheet &&
               KirjoitaNakyma(*main_, NakymaLaji::kPackage, Path("p.tessarin")).message.empty();
    }

  private:
    std::string Path(const std::string& name) const { return (folder_ / name).string(); }
    std::string FilePath(int file) const {
        return (folder_ / "files" / ("f" + std::to_string(file) + ".fcs")).string();
    }

    static void DefineRegions() {
        Populaatio& polygon = Populaatiot(1);
        polygon = {.Corners = 4,
                   .X = {0, 4000, 6000, 6000, 4000},
                   .Y = {0, 4000, 4000, 6000, 6000},
                   .Name = "Poly-1",
                   .Defined = true,
                   .AxisX = 5,
                   .AxisY = 6,
                   .Type = "Polygon"};
        Populaatio& marker = Populaatiot(5);
        marker = {.Corners = 2,
                  .X = {0, 3000, 6000},
                  .Name = "Marker-5",
                  .Defined = true,
                  .AxisX = 1,
                  .Type = "Histogram"};
        Populaatiot(MaxPopulations + 1).Name = "Poly-1 and not Marker-5";
        Populaatiot(MaxPopulations + 1).Defined = true;
    }

    fs::path folder_;
    ScriptedPlatform platform_;
    std::unique_ptr<PaaIkkuna> main_;
    std::unique_ptr<SheetStore> store_;
};

double SecondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

int Soak(double seconds) {
    Session session;
    int64_t afterFirstRound = 0;
    int64_t afterFirstTenth = 0;
    int rounds = 0;
    std::cout << "seconds   rounds   ms/round   memory kB\n" << std::fixed << std::setprecision(1);
    const Clock::time_point start = Clock::now();
    for (int report = 1; report <= kReports; ++report) {
        const Clock::time_point begin = Clock::now();
        int done = 0;
        while (done == 0 || SecondsSince(start) < seconds * report / kReports) {
            if (!session.Round()) {
                std::cerr << "round " << rounds + done + 1 << " failed\n";
                return 1;
            }
            ++done;
            if (afterFirstRound == 0) {
                afterFirstRound = ResidentMemory();
            }
        }
        rounds += done;
        if (report == 1) {
            afterFirstTenth = ResidentMemory();
        }
        constexpr int kMilli = 1000;
        std::cout << std::setw(7) << SecondsSince(start) << std::setw(9) << rounds << std::setw(11)
                  << SecondsSince(begin) * kMilli / done << std::setw(12) << ResidentMemory()
                  << std::endl;
    }
    std::cout << "memory after the first round: " << afterFirstRound << " kB\n";
    constexpr int64_t kTwentieth = 20;
    return ResidentMemory() > afterFirstTenth + afterFirstTenth / kTwentieth ? 1 : 0;
}

}  // namespace
}  // namespace tessarin

int main(int argc, char** argv) {
    constexpr double kTenMinutes = 600;
    const double seconds = argc > 1 ? std::atof(argv[1]) : kTenMinutes;
    if (!(seconds > 0)) {
        std::cerr << "tessarin_soak [SECONDS]\n";
        return 1;
    }
    return tessarin::Soak(seconds);
}
