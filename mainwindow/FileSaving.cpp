#include "mainwindow/FileSaving.h"

#include <filesystem>
#include <optional>

#include "core/FCSWriter.h"
#include "core/FcsKeywords.h"
#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/SaveQuestion.h"

namespace tessarin {
namespace {

// The slot of the active window's file; 0 without one.
int16_t ActiveFile() {
    return Ikkunat.Holds(ActiveWindow) ? Ikkunat(ActiveWindow).FileIndex : int16_t{0};
}

void Write(PaaIkkuna& main, const std::string& path, int16_t slot, const std::string& title) {
    const std::string obstacle = TallennuksenEste(Tiedostot(slot), path);
    if (!obstacle.empty()) {
        main.Services().dialogs.Message(obstacle, "File protection");
        return;
    }
    const std::string failure = KirjoitaFCS(path, slot);
    if (!failure.empty()) {
        main.Services().dialogs.Message(failure, title);
    } else {
        HuomautaTallennuksesta(main, Tiedostot(slot));
    }
}

// Whether only the first of its events are in memory: overwriting it would lose the others.
bool IsCutShort(const Tiedosto& file) {
    if (file.WholeEvents) {
        return *file.WholeEvents > file.EventCount;
    }
    const auto total = ParseNumber(HaeAvainsana("\\$TOT", file.Otsikko.Text));
    return total && *total > file.EventCount;
}

}  // namespace

void HuomautaTallennuksesta(PaaIkkuna& main, const Tiedosto& file) {
    const int32_t written = file.EventsFromFile();
    if (written < file.EventCount) {
        main.Huomauta("Only the " + std::to_string(written) + " events that '" + file.FileName +
                      "' holds whole were saved, not the " +
                      std::to_string(file.EventCount - written) + " made up behind them.");
    }
}

std::string TallennuksenEste(const Tiedosto& file, const std::string& path) {
    std::error_code error;
    if (!IsCutShort(file) || !std::filesystem::equivalent(file.Path(), path, error)) {
        return "";
    }
    return "Only the first " + std::to_string(file.EventCount) +
           " events of the file are loaded. To protect the others, please choose "
           "'Save FCS as...' from File menu.";
}

void FileSaveFCS(PaaIkkuna& main) {
    const int16_t slot = ActiveFile();
    if (slot == 0) {
        return;
    }
    const std::string path =
        KysyTallennuspaikka(main.Services().dialogs, {.title = "Save as FCS file",
                                                      .filter = "FCS files (*.*)|*.*",
                                                      .folder = Tiedostot(slot).Folder});
    if (!path.empty()) {
        Write(main, path, slot, "Save as FCS file");
    }
}

void FileSaveFCSEiKysymysta(PaaIkkuna& main) {
    const int16_t slot = ActiveFile();
    if (slot == 0) {
        return;
    }
    const Tiedosto& file = Tiedostot(slot);
    Dialogs& dialogs = main.Services().dialogs;
    if (file.Otsikko.Cytometer.find("Tessarin") == std::string::npos) {
        dialogs.Message(
            "The current FCS file has been created with some other than with Tessarin. To protect "
            "your original data, please choose 'Save FCS as...' from File menu.",
            "File protection");
    } else {
        Write(main, file.Path(), slot, "Save FCS");
    }
}

}  // namespace tessarin
