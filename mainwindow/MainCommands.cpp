// What the main window itself can do, as one table.
#include <algorithm>

#include "core/Muuttujat.h"
#include "mainwindow/Commands.h"
#include "mainwindow/Exit.h"
#include "mainwindow/FileLoading.h"
#include "mainwindow/FileNavigation.h"
#include "mainwindow/FileSaving.h"
#include "mainwindow/LimitDialogs.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"

namespace tessarin {
namespace {

// There is a file to step from.
bool CanStep(const PaaIkkuna& /*main*/) {
    return std::any_of(Ikkunat.begin(), Ikkunat.end(), [](const Ikkuna& window) {
        return window.Used && window.Selected && window.FileIndex != 0;
    });
}

bool CanSaveFcs(const PaaIkkuna& /*main*/) {
    return Ikkunat.Holds(ActiveWindow) && Ikkunat(ActiveWindow).FileIndex != 0;
}

}  // namespace

void LisaaOmatKomennot(Komennot& commands) {
    for (Komento& command : std::vector<Komento>{
             {"FileOpenFCS", [](PaaIkkuna& main) { FileOpenFCS(main); }},
             {"FileOpenTXT", FileOpenTXT},
             {"FileNextFile", FileNextFile, CanStep},
             {"FilePreviousFile", FilePreviousFile, CanStep},
             {"FileSaveFCS", FileSaveFCS, CanSaveFcs},
             {"FileSaveFCSEiKysymysta", FileSaveFCSEiKysymysta, CanSaveFcs},
             {"FileOpenView", [](PaaIkkuna& main) { main.OpenView(); }},
             {"FileSaveView", [](PaaIkkuna& main) { main.TalletaNakyma("Sheet"); }},
             {"MenuSaveAnalysisPackage", [](PaaIkkuna& main) { main.TalletaNakyma("Paketti"); }},
             {"FileExit", [](PaaIkkuna& main) { FileExit(main); }},
             {"CopyImages", [](PaaIkkuna& main) { main.CopyImages(); }},
             {"SelectAll", [](PaaIkkuna&) { ValitseKaikki(); }},
             {"AsetaFastDrawLimit",
              [](PaaIkkuna& main) { AsetaFastDrawLimit(main.Services().dialogs); }},
             {"AsetaLadattavienPisteidenMaara",
              [](PaaIkkuna& main) { AsetaLadattavienPisteidenMaara(main.Services().dialogs); }},
             {"KaytaNegAbsJuttua", [](PaaIkkuna& main) { main.ToggleBumper(); }},
             {"AvaaHelp", [](PaaIkkuna& main) { main.ShowHelp(); }},
             {"AvaaAboutLaatikko", [](PaaIkkuna& main) { main.ShowAbout(); }},
         }) {
        commands.Lisaa(std::move(command));
    }
}

}  // namespace tessarin
