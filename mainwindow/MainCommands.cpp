// What the main window itself can do, as one table.
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

void LisaaOmatKomennot(Komennot& commands) {
    for (Komento& command : std::vector<Komento>{
             {"FileOpenFCS", [](PaaIkkuna& main) { FileOpenFCS(main); }},
             {"FileOpenTXT", FileOpenTXT},
             {"FileNextFile", FileNextFile},
             {"FilePreviousFile", FilePreviousFile},
             {"FileSaveFCS", FileSaveFCS},
             {"FileSaveFCSEiKysymysta", FileSaveFCSEiKysymysta},
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
