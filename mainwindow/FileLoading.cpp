#include "mainwindow/FileLoading.h"

#include <algorithm>
#include <filesystem>
#include <new>
#include <utility>
#include <vector>

#include "core/FCSReader.h"
#include "core/Kompensaatio.h"
#include "core/Muuttujat.h"
#include "core/PopulationEvaluation.h"
#include "core/TXTReader.h"
#include "core/Text.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"

namespace tessarin {
namespace {

// The slot of a file that is loaded already; 0 when it is not.
int16_t LoadedSlot(const std::string& path, int32_t fingerprint) {
    const int32_t kept = std::max(1, fingerprint);  // 0 marks a free slot
    for (int16_t slot = 1; slot <= MaxFiles; ++slot) {
        const Tiedosto& file = Tiedostot(slot);
        if (file.Fingerprint == kept && file.Path() == path) {
            return slot;
        }
    }
    return 0;
}

int16_t FreeSlot() {
    for (int16_t slot = 1; slot <= MaxFiles; ++slot) {
        if (Tiedostot(slot).Fingerprint == 0) {
            return slot;
        }
    }
    return 0;
}

void CopyTable(Clipboard& clipboard, const Tiedosto& file) {
    clipboard.Clear();
    try {
        clipboard.SetText(TaulukkoTekstina(file));
    } catch (const std::bad_alloc&) {
        clipboard.Clear();  // the table is loaded all the same
    }
}

// Reads a text table. While the user opens it by hand it also goes to the clipboard, and cells
// that were no numbers are told; a sheet that names it has been through that.
Tiedosto ReadTable(PaaIkkuna& main, const std::string& path) {
    TxtTulos read = LueTXT(path);
    if (Loading) {
        return std::move(read.file);
    }
    if (read.file.Valid) {
        CopyTable(main.Services().clipboard, read.file);
    }
    if (read.badCells > 0) {
        main.Services().dialogs.Message(std::to_string(read.badCells) + " cells of " +
                                            read.file.FileName +
                                            " were missing or no numbers and were read as 0.",
                                        "Open Tabbed TXT file");
    }
    return std::move(read.file);
}

// Compensation needs memory too; a file that cannot have it is refused like one too large to read.
void CompensateOrRefuse(Tiedosto& file) {
    try {
        LaskeKompensaatio(file);
    } catch (const std::bad_alloc&) {
        file = Tiedosto();
        file.OutOfMemory = true;
        file.Refusal = "there is not enough memory";
    }
}

// The message is the same for every file that is no good; the status bar says what is wrong.
void TellRefusal(PaaIkkuna& main, const std::string& path, const Tiedosto& file) {
    main.Services().dialogs.Message(file.OutOfMemory ? "There is not enough memory to load the file"
                                                     : "The file was not valid flow cytometry file",
                                    "Load error");
    main.Huomauta(SplitPath(path).name + ": " + file.Refusal);
}

// Reads into a slot; `fingerprint` is the file's or, when nobody knows it yet, 0. On refusal the
// slot keeps what it holds and the user is told.
bool ReadInto(PaaIkkuna& main, const std::string& path, int32_t fingerprint, int16_t slot,
              LukuTapa way) {
    Tiedosto file = way == LukuTapa::kTxt ? ReadTable(main, path) : LueFCS(path, fingerprint);
    if (file.Valid) {
        CompensateOrRefuse(file);
    }
    if (!file.Valid) {
        TellRefusal(main, path, file);
        return false;
    }
    Tiedostot(slot) = std::move(file);
    return true;
}

// The slot that holds the file now, read if need be; 0 when it could not be had.
int16_t FindOrRead(PaaIkkuna& main, const std::string& path, LukuTapa way) {
    const int32_t fingerprint = TiedostonSormenjalki(path);
    if (const int16_t loaded = LoadedSlot(path, fingerprint)) {
        return loaded;
    }
    const int16_t slot = FreeSlot();
    if (slot == 0) {
        main.Services().dialogs.Message("Loading failed: There can be only " +
                                            std::to_string(MaxFiles) + " files open at a time.",
                                        "Too many files open");
        return 0;
    }
    if (!ReadInto(main, path, fingerprint, slot, way)) {
        return 0;
    }
    TarkistaPopulaatiot();
    return slot;
}

bool GiveToWindow(PaaIkkuna& main, int16_t window, int16_t slot) {
    const auto target = IkkunaPaikassa(window);
    if (target == nullptr) {
        return false;
    }
    Ikkunat(window).FileIndex = slot;
    target->LatauksenJalkeen();
    target->Piirra();
    main.PaivitaKomennot();
    return true;
}

// In small letters.
std::string Ending(const std::string& path) {
    std::string ending = std::filesystem::path(path).extension().string();
    for (char& letter : ending) {
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    }
    return ending;
}

// Files left without a window go, whatever came of the opening.
void EndOpening(PaaIkkuna& main) {
    VapautaKayttamattomat();
    main.TalletaNakyma("Autosave");
}

std::vector<int16_t> SelectedWindows() {
    std::vector<int16_t> selected;
    for (int16_t id = 1; id <= MaxWindows; ++id) {
        if (Ikkunat(id).Used && Ikkunat(id).Selected) {
            selected.push_back(id);
        }
    }
    return selected;
}

void Open(PaaIkkuna& main, FileQuestion question, LukuTapa way) {
    question.folder = main.AktiivinenKansio();
    const std::string path = main.Services().dialogs.OpenFile(question);
    if (path.empty()) {
        EndOpening(main);
    } else {
        AvaaValittuihin(main, path, way);
    }
}

}  // namespace

bool TiedostonLukuToimenPiteet(PaaIkkuna& main, const std::string& path, int16_t window,
                               int16_t slot, LukuTapa way) {
    int16_t taken = slot;
    if (slot == 0) {
        taken = FindOrRead(main, path, way);
    } else if (!ReadInto(main, path, 0, slot, way)) {
        taken = 0;
    }
    if (taken == 0) {
        return false;
    }
    main.HuomautaTiedostosta(taken);
    const bool shown = window != 0 && GiveToWindow(main, window, taken);
    CurrentFile = taken;
    return shown;
}

void AvaaUuteenIkkunaan(PaaIkkuna& main, const std::string& path, LukuTapa way) {
    // The file comes first, so that a refused one leaves no empty window.
    const int16_t id = VapaaIkkunaPaikka();
    const int16_t slot = id == 0 ? int16_t{0} : FindOrRead(main, path, way);
    if (slot != 0) {
        main.HuomautaTiedostosta(slot);
        CurrentFile = slot;  // which the new window shows by itself
        LuoIkkunaPaikkaan(main, "DotPlot", id);
    }
    EndOpening(main);
}

void AvaaValittuihin(PaaIkkuna& main, const std::string& path, LukuTapa way) {
    const std::vector<int16_t> selected = SelectedWindows();
    if (selected.empty()) {
        AvaaUuteenIkkunaan(main, path, way);
        return;
    }
    for (const int16_t id : selected) {
        // What is refused once is refused again; one message is enough.
        if (!TiedostonLukuToimenPiteet(main, path, id, 0, way)) {
            break;
        }
    }
    EndOpening(main);
}

LukuTapa TavallinenLukuTapa(const std::string& path) {
    return Ending(path) == ".txt" ? LukuTapa::kTxt : LukuTapa::kFcs;
}

bool OnkoNakyma(const std::string& path) {
    return Ending(path) == ".tessarin";
}

void FileOpenFCS(PaaIkkuna& main) {
    Open(main, {"Open FCS file", "FCS files (*.*)|*.*"}, LukuTapa::kFcs);
}

void FileOpenTXT(PaaIkkuna& main) {
    Open(main, {"Open Tabbed TXT file", "Tabbed TXT files (*.txt)|*.txt"}, LukuTapa::kTxt);
}

}  // namespace tessarin
