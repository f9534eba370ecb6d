// Loads any bytes as an analysis sheet and checks what must hold whatever they say. Called by a
// fuzzer, and by the test that replays what fuzzers found.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "core/Muuttujat.h"
#include "core/PopulationEvaluation.h"
#include "core/Text.h"
#include "mainwindow/PaaIkkuna.h"
#include "platform/scripted/ScriptedPlatform.h"
#include "plots/RegisterPlots.h"
#include "sheets/SheetLoader.h"
#include "sheets/SheetWriter.h"
#include "tests/support/FcsBuilder.h"
#include "tests/support/TemporaryFolder.h"

namespace tessarin {
namespace {

namespace fs = std::filesystem;

// Stands in a sheet for the folder in which it lies, with the separator.
constexpr std::string_view kHere = "$HERE/";

void Require(bool holds, const std::string& what) {
    if (!holds) {
        throw std::runtime_error(what);
    }
}

std::string Bytes(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// A window whose picture is small, so that a run is short whatever size a sheet names.
class SmallForm : public ScriptedForm {
  public:
    using ScriptedForm::ScriptedForm;
    int ScaleWidth() const override { return std::min(ScriptedForm::ScaleWidth(), kMost); }
    int ScaleHeight() const override { return std::min(ScriptedForm::ScaleHeight(), kMost); }

  private:
    static constexpr int kMost = 120;
};

class SmallMainForm : public ScriptedMainForm {
  public:
    std::unique_ptr<Form> MakeChild(FormEvents& formEvents) override {
        return std::make_unique<SmallForm>(formEvents, [](ScriptedForm* /*gone*/) {});
    }
};

// The folder of the sheet, alone in another one, with files beside the sheet.
class SheetFolder {
  public:
    SheetFolder() {
        FcsBuilder built("I", 16, "4,3,2,1", 3, 40);
        for (uint32_t i = 0; i < 120; ++i) {
            built.AddInteger(i * 37 % 1024);
        }
        kept_["tube.fcs"] = built.Change("$P2E=4,0").Bytes();
        kept_["table.txt"] = "A\tB\n1\t20\n300\t4.5\n-6\tx\n";
        kept_["new.fcs.part"] = "of another program";
    }

    /// The folder afresh, with this sheet in it.
    std::string Put(std::string_view sheet) {
        kept_["sheet.tessarin"] = KorvaaTeksti(sheet, kHere, outer_.Path("in/"));
        fs::remove_all(outer_.Path("in"));
        fs::create_directory(outer_.Path("in"));
        for (const auto& [name, bytes] : kept_) {
            outer_.Write("in/" + name, bytes);
        }
        return outer_.Path("in/sheet.tessarin");
    }
    /// What was there is as it was, and what came lies in the folder of the sheet.
    void Check(bool loaded) const {
        Require(Count("") == 1, "a file outside the folder of the sheet");
        Require(loaded || Count("in") == kept_.size(), "a file of a sheet that was not loaded");
        for (const auto& [name, bytes] : kept_) {
            Require(Bytes(outer_.Path("in/" + name)) == bytes, "a changed file");
        }
    }

  private:
    std::size_t Count(std::string_view name) const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(outer_.Path(name)), {}));
    }

    TemporaryFolder outer_;
    std::map<std::string, std::string> kept_;  // what never changes, by name
};

class SmallPlatform : public ScriptedPlatform {
  public:
    Platform Services() {
        const Platform all = ScriptedPlatform::Services();
        return {mainForm_,   all.dialogs, all.clipboard,     all.pointer,
                all.popups,  all.loop,    all.browser,       all.timers,
                all.printer, all.locks,   all.programFolder, all.dataFolder};
    }

  private:
    SmallMainForm mainForm_;
};

// A program that has just started.
class Program {
  public:
    Program() {
        RekisteroiKuvaajat();
        main.Kaynnista();
    }
    ~Program() {
        PalautaAlkutila();  // windows go while the platform is still there
        PoistaArvioijat();
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

  private:
    SmallPlatform platform_;

  public:
    PaaIkkuna main{platform_.Services()};
};

void CheckSession(bool loaded) {
    Require(!Loading, "still loading");
    Require(CurrentFile == 0 || Tiedostot(CurrentFile).Valid, "a current file that is none");
    for (const Ikkuna& row : Ikkunat) {
        Require(row.Used == (row.Window != nullptr), "a window's slot without window");
        Require(loaded || !row.Used, "a window of a sheet that was not loaded");
        Require(!row.Used || row.FileIndex == 0 ||
                    (Tiedostot.Holds(row.FileIndex) && Tiedostot(row.FileIndex).Valid),
                "a window on no file");
    }
    for (const Ikkuna& row : IkkunatStat) {
        Require(row.Used == (row.Window != nullptr), "a statistics window's slot without window");
    }
    for (const Populaatio& row : Populaatiot) {
        Require(row.Corners >= 0 && row.Corners <= kMaxCorners, "corners without room");
        Require(loaded || !row.Defined, "a population of a sheet that was not loaded");
    }
}

// The session as a sheet, without the date in front.
std::string Saved(PaaIkkuna& main) {
    const std::string text = NakymaTekstina(main, NakymaLaji::kSheet);
    return text.substr(text.find("# Populations"));
}

// What a sheet could bring into the session can also be saved and brought back.
void CheckSaving(PaaIkkuna& main) {
    static const TemporaryFolder folder;
    const std::string before = Saved(main);
    const std::string path =
        folder.Write("saved.tessarin", NakymaTekstina(main, NakymaLaji::kSheet));
    Require(LataaNakyma(main, path), "a saved sheet that cannot be loaded");
    Require(Saved(main) == before, "a saved sheet that loads as another session");
    CheckSession(true);
}

}  // namespace
}  // namespace tessarin

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace tessarin;
    static SheetFolder folder;
    const std::string path = folder.Put(std::string(data, data + size));
    Program program;
    const bool loaded = LataaNakyma(program.main, path);
    CheckSession(loaded);
    folder.Check(loaded);
    if (loaded) {
        CheckSaving(program.main);
        folder.Check(loaded);
    }
    return 0;
}
