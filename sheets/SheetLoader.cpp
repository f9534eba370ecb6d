#include "sheets/SheetLoader.h"

#include <filesystem>
#include <map>
#include <new>
#include <set>
#include <utility>

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
#include "sheets/PackageFiles.h"
#include "sheets/PopulationKeys.h"
#include "sheets/SheetKeys.h"
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
    SheetLoader(PaaIkkuna& main, const SheetFile& sheet)
        : main_(main), sheet_(sheet), content_(sheet.content) {}

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

    /// What was left out because nothing here knows it; empty for nothing.
    std::string LeftOut() const {
        std::string kinds;
        for (const std::string& kind : unknown_) {
            kinds += (kinds.empty() ? "" : ", ") + kind;
        }
        return kinds.empty() ? ""
                             : "Windows of kinds that are not known here were left out: " + kinds;
    }

  private:
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
        const std::string written(line.rest);
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
        const int slot = line.Number(2);
        if (line.KeyFrom(3) == "name") {
            names_[slot] = line.rest;
        } else if (line.KeyFrom(3) == "length") {
            const double told = SheetNumber(line.value).value_or(-1);
            const bool possible = told >= 0 && told <= static_cast<double>(kLongest);
            const int64_t length = possible ? static_cast<int64_t>(told) : -1;
            const Purkutulos taken = PuraTiedosto(sheet_.path, names_[slot], content_, length);
            const bool sound = length >= 0 && length <= kLongest - content_;
            content_ = sound ? content_ + length : kLongest;
            if (!taken.message.empty()) {
                Tell(taken.message);
            }
            if (!taken.path.empty() && Tiedostot.Holds(slot)) {
                LoadInto(taken.path, static_cast<int16_t>(slot));
            }
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

    static constexpr int64_t kLongest = INT64_MAX / 2;

    PaaIkkuna& main_;
    const SheetFile& sheet_;
    int64_t content_;                   // where the next file of a package begins
    std::map<int, std::string> names_;  // of a package's files, by slot
    int window_ = 0;                    // number of the window met last
    std::set<std::string> unknown_;
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
    SheetLoader loader(main, sheet);
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
    if (!loader.LeftOut().empty()) {
        main.Huomauta(loader.LeftOut());
    }
    main.PiirraKaikki();
    return true;
}

}  // namespace tessarin
