#include "sheets/SheetLoader.h"

#include <filesystem>
#include <new>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "core/BusyPointer.h"
#include "core/FCSReader.h"
#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "core/PopulationEvaluation.h"
#include "core/RegionMuuttujat.h"
#include "core/Text.h"
#include "mainwindow/FileLoading.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"
#include "mainwindow/WindowRegistry.h"
#include "sheets/PackageContents.h"
#include "sheets/PackageFiles.h"
#include "sheets/PopulationKeys.h"
#include "sheets/SheetKeys.h"
#include "sheets/SheetPath.h"
#include "sheets/SheetSections.h"
#include "sheets/SheetText.h"

namespace tessarin {
namespace {

// `Loading` for as long as it lives, whatever ends the work.
class LoadingFlag {
  public:
    LoadingFlag() { Loading = true; }
    ~LoadingFlag() { Loading = false; }
    LoadingFlag(const LoadingFlag&) = delete;
    LoadingFlag& operator=(const LoadingFlag&) = delete;
};

void EmptySession() {
    for (Populaatio& row : Populaatiot) {
        row.Defined = false;
    }
    PalautaEleet();
    for (int16_t slot = 1; slot <= MaxFiles; ++slot) {
        VapautaTiedosto(slot);
    }
    CurrentFile = 0;
    for (int16_t id = 1; id <= MaxWindows; ++id) {
        if (const auto window = IkkunaPaikassa(id)) {
            window->Lomake().Hide();
            window->UnloadWindow();
        }
    }
    ActiveWindow = 0;
}

class SheetLoader {
  public:
    /// `packed` are the files that the sheet carries, if it is a package.
    SheetLoader(PaaIkkuna& main, const SheetFile& sheet, std::vector<PackedFile> packed)
        : main_(main), sheet_(sheet), packed_(std::move(packed)) {}

    void Load() {
        for (const std::string& text : sheet_.lines) {
            const SheetLine line(text);
            const std::string_view first = line.Field(1);
            if (first == "population") {
                TakePopulation(line);
            } else if (first == "definition") {
                TakeDefinition(line);
            } else if (first == "file") {
                sheet_.package ? TakePacked(line) : TakePath(line);
            } else if (first == "window") {
                TakeWindow(line, text);
                main_.Services().loop.Yield();
            } else if (SheetSection* section = EtsiOsa(main_.Kumppanit(), first)) {
                TakeSection(*section, line, text);
            }
        }
    }

    /// What came otherwise than the sheet has it; empty for nothing.
    std::string Remark() const {
        const std::string kinds =
            Joined(unknown_, "Windows of kinds that are not known here were left out: ");
        const std::string names = Joined(renamed_, "Files of the package have other names here: ");
        return kinds.empty() || names.empty() ? kinds + names : kinds + "; " + names;
    }

  private:
    // Nothing for nothing, else the phrase in front of all of the list.
    static std::string Joined(const std::set<std::string>& list, const std::string& phrase) {
        std::string text;
        for (const std::string& item : list) {
            text += (text.empty() ? phrase : ", ") + item;
        }
        return text;
    }

    // A slot named for the first time starts afresh; its colour stays.
    void Define(int16_t slot) {
        Populaatio& row = Populaatiot(slot);
        if (!row.Defined) {
            const Rgb color = row.Color();
            row = Populaatio();
            row.Red = color.red;
            row.Green = color.green;
            row.Blue = color.blue;
            row.Defined = true;
        }
    }

    void TakePopulation(const SheetLine& line) {
        const int slot = line.Number(2);
        if (slot >= 1 && slot <= MaxPopulations) {
            Define(static_cast<int16_t>(slot));
            Populaatioavaimet(static_cast<int16_t>(slot)).Take(line.KeyFrom(3), line.value);
        }
    }

    void TakeDefinition(const SheetLine& line) {
        const int slot = line.Number(2);
        if (slot > MaxPopulations && slot <= kPopulationSlots) {
            Define(static_cast<int16_t>(slot));
            Populaatioavaimet(static_cast<int16_t>(slot)).Take(line.KeyFrom(3), line.value);
        }
    }

    void Tell(const std::string& message) {
        main_.Services().dialogs.Message(message, "Load error");
    }

    void TakePath(const SheetLine& line) {
        const int slot = line.Number(2);
        if (!Tiedostot.Holds(slot) || line.KeyFrom(3) != "path" || line.rest.empty()) {
            return;
        }
        const std::string written = PathFromLine(line.rest);
        std::error_code error;
        std::string path = written;
        if (!std::filesystem::exists(path, error)) {
            path = KorvaaTeksti(written, "\\", "/");
        }
        if (std::filesystem::exists(path, error)) {
            LoadInto(path, static_cast<int16_t>(slot));
        } else {
            main_.Services().dialogs.Message(
                "The file '" + written + "'\nwas not in its original location.", "");
        }
    }

    void TakePacked(const SheetLine& line) {
        if (line.KeyFrom(3) != "length" || next_ == packed_.size()) {
            return;
        }
        const PackedFile& file = packed_[next_++];
        const Purkutulos taken = PuraTiedosto(sheet_.path, file);
        if (!taken.message.empty()) {
            Tell(taken.message);
        }
        if (!taken.path.empty() && file.target != file.name) {
            renamed_.insert("'" + file.name + "' is '" + file.target + "'");
        }
        if (!taken.path.empty() && Tiedostot.Holds(file.slot)) {
            LoadInto(taken.path, static_cast<int16_t>(file.slot));
        }
    }

    void LoadInto(const std::string& path, int16_t slot) {
        // A sheet does not tell text tables from other files.
        const LukuTapa way = OnkoFcs(path) ? LukuTapa::kFcs : TavallinenLukuTapa(path);
        TiedostonLukuToimenPiteet(main_, path, 0, slot, way);
    }

    void TakeWindow(const SheetLine& line, const std::string& text) {
        const int id = line.Number(2);
        if (id != window_) {
            window_ = id;
            if (Ikkunat.Holds(id) && !Ikkunat(id).Used && line.KeyFrom(3) == "type") {
                MakeWindow(static_cast<int16_t>(id), line.value);
            }
        } else if (Ikkunat.Holds(id)) {
            if (const auto window = IkkunaPaikassa(static_cast<int16_t>(id))) {
                window->LoadInfo(text);
            }
        }
    }

    void MakeWindow(int16_t id, std::string_view type) {
        if (EtsiLaji(type) == nullptr) {
            unknown_.insert(std::string(type));
            return;
        }
        // It shows what its own lines say, not the file that came last.
        const int16_t file = std::exchange(CurrentFile, int16_t{0});
        LuoIkkunaPaikkaan(main_, type, id);
        CurrentFile = file;
    }

    static void TakeSection(SheetSection& section, const SheetLine& line, const std::string& text) {
        if (line.KeyFrom(2) != "visible") {
            section.LoadInfo(text);
        } else if (line.value == "1" || line.value == "0") {
            section.AsetaNakyvyys(line.value == "1");
        }
    }

    PaaIkkuna& main_;
    const SheetFile& sheet_;
    std::vector<PackedFile> packed_;
    std::size_t next_ = 0;  // of those
    int window_ = 0;        // number of the window met last
    std::set<std::string> unknown_;
    std::set<std::string> renamed_;
};

void SelectOne() {
    PoistaValinnat();
    for (int16_t id = MaxWindows; id >= 1; --id) {
        if (Ikkunat(id).Used && Ikkunat(id).Selectable) {
            Ikkunat(id).Selected = true;
            ActiveWindow = id;  // commands that go to the active window go to this one
            PaivitaKehysOtsikko(id);
            return;
        }
    }
}

// The files that a package carries; nothing when the user does not want them written as they are.
std::optional<std::vector<PackedFile>> AgreedFiles(Dialogs& dialogs, const SheetFile& sheet) {
    if (!sheet.package) {
        return std::vector<PackedFile>();
    }
    std::vector<PackedFile> files = PakatutTiedostot(sheet);
    const std::string question = PakettiKysymys(sheet, files);
    if (!question.empty() &&
        !dialogs.Ask(question, "Open analysis file", QuestionButtons::kOkCancel, SafeAnswer::kNo)) {
        return std::nullopt;
    }
    return files;
}

}  // namespace

bool LataaNakyma(PaaIkkuna& main, const std::string& path) {
    if (Loading) {
        return false;  // one is being loaded, and lets events run
    }
    const SheetFile sheet = LueNakymatiedosto(path);
    if (!sheet.refusal.empty()) {
        main.Services().dialogs.Message(sheet.refusal, sheet.title);
        return false;
    }
    auto packed = AgreedFiles(main.Services().dialogs, sheet);
    if (!packed) {
        return false;
    }
    SheetLoader loader(main, sheet, std::move(*packed));
    {
        const StatusRemarks::Opening opening(main.Huomautukset());
        const BusyPointer busy;
        const LoadingFlag loading;
        EmptySession();
        try {
            loader.Load();
        } catch (const std::bad_alloc&) {
            main.Services().dialogs.Message("There is not enough memory for all of the sheet",
                                            "Load error");
        }
        for (int16_t id = 1; id <= MaxWindows; ++id) {
            if (const auto window = IkkunaPaikassa(id)) {
                window->LatauksenJalkeen();
                main.Services().loop.Yield();
            }
        }
        SelectOne();
        main.Paneeli().PaivitaRegionLista();
        TarkistaPopulaatiot();
        main.PiirraKaikki();
    }
    for (SheetSection* section : main.Kumppanit().sections) {
        section->SheetLoaded();
    }
    if (!loader.Remark().empty()) {
        main.Huomauta(loader.Remark());
    }
    main.PiirraKaikki();
    return true;
}

}  // namespace tessarin
