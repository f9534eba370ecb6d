// Runs any bytes as a tool on a small session. Called by a fuzzer, and by the test that replays
// what fuzzers found.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <iterator>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "core/Muuttujat.h"
#include "core/PopulationEvaluation.h"
#include "core/Text.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"
#include "platform/scripted/ScriptedPlatform.h"
#include "plots/RegisterPlots.h"
#include "tests/support/FcsBuilder.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/AnswerToolUser.h"
#include "tools/ToolRun.h"

namespace tessarin {
namespace {

namespace fs = std::filesystem;

// Ends a run that goes on for long: no tool may keep events from running.
class ImpatientLoop : public EventLoop {
  public:
    void Yield() override {
        if (++yields_ > kMost) {
            SkriptiKaynnissa = false;
        }
    }
    void Quit(int /*status*/) override {}

  private:
    static constexpr int kMost = 3000;
    int yields_ = 0;
};

class Program {
  public:
    Program() {
        RekisteroiKuvaajat();
        OletusKoko("DotPlot") = {1800, 1800};
        OletusKoko("Histogram") = {1800, 1800};
        main.Kaynnista();
    }
    ~Program() {
        PalautaAlkutila();  // windows go while the platform is still there
        PoistaArvioijat();
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

  private:
    Platform Services() {
        const Platform all = platform_.Services();
        return {all.mainForm, all.dialogs, all.clipboard,     all.pointer,
                all.popups,   loop_,       all.browser,       all.timers,
                all.printer,  all.locks,   all.programFolder, all.dataFolder};
    }

    ScriptedPlatform platform_;
    ImpatientLoop loop_;

  public:
    PaaIkkuna main{Services()};
    Dialogs& dialogs{platform_.dialogs};
};

// Tools write where they are told to; here they may name no other folder.
std::string Harmless(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '/' || c == '\\' || c == '\0'; }, '_');
    // Nor may they ask for pictures that fill the memory.
    for (const char* word : {"..", "size", "folder.set"}) {
        text = KorvaaTeksti(text, word, "_");
    }
    return text;
}

// Two files to step through, and two windows on the first.
std::string Folder() {
    static const TemporaryFolder outer;
    std::string folder = outer.Path("in/");
    fs::remove_all(folder);
    fs::create_directory(folder);
    FcsBuilder built("I", 16, "4,3,2,1", 2, 20);
    for (uint32_t i = 0; i < 40; ++i) {
        built.AddInteger(i * 37 % 1024);
    }
    outer.Write("in/one.fcs", built.Bytes());
    outer.Write("in/two.fcs", built.Change("$P2E=4,0").Bytes());
    return folder;
}

void Require(bool holds, const char* what) {
    if (!holds) {
        throw std::runtime_error(what);
    }
}

// What can be seen at the end of a run: its messages, and the picture of each window.
using Seen = std::pair<std::string, std::map<int16_t, std::vector<uint32_t>>>;

Seen RunTool(const std::string& text, bool unseen) {
    const std::string folder = Folder();
    Program program;
    program.main.AvaaTiedosto(folder + "one.fcs");
    LuoIkkuna(program.main, "Histogram");
    std::ostringstream log;
    AnswerToolUser user({{"$a", "12"}, {"$f", folder + "two.fcs"}}, program.dialogs, nullptr, log);
    ToolSurroundings surroundings{user};
    surroundings.unseen = unseen;
    ToolRun run(program.main, surroundings);
    run.AsetaKansio(folder);
    run.AjaOhjelma(text);
    Require(!SkriptiKaynnissa, "a run that has not ended");
    const fs::path outer = fs::path(folder).parent_path().parent_path();
    Require(std::distance(fs::directory_iterator(outer), {}) == 1, "a file somewhere else");
    Seen seen{log.str(), {}};
    for (int16_t id = 1; id <= MaxWindows; ++id) {
        const Ikkuna& row = Ikkunat(id);
        Require(row.Used == (row.Window != nullptr), "a window's slot without window");
        Require(row.FileIndex == 0 || Tiedostot(row.FileIndex).Valid, "a window on no file");
        if (row.Used) {
            seen.second[id] = IkkunaPaikassa(id)->Lomake().Surface().Image().pixels;
        }
    }
    program.main.PiirraKaikki();
    return seen;
}

}  // namespace
}  // namespace tessarin

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace tessarin;
    const std::string text = Harmless(std::string(data, data + size));
    const bool alike = RunTool(text, false) == RunTool(text, true);
    Require(alike || text.find("time") != std::string::npos, "a picture that was left out");
    return 0;
}
