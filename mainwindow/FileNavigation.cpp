#include "mainwindow/FileNavigation.h"

#include <algorithm>

#include "core/Muuttujat.h"
#include "mainwindow/FileLoading.h"
#include "mainwindow/FolderList.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"

namespace tessarin {
namespace {

// Frees what no window shows any more and saves; the end of each step.
bool Finish(PaaIkkuna& main, bool opened) {
    VapautaKayttamattomat();
    main.TalletaNakyma("Autosave");
    return opened;
}

// Where a window's file stands in the list of its folder, from 1; 0 when it is not there.
struct Place {
    std::string folder;
    std::vector<std::string> files;
    std::ptrdiff_t number = 0;

    explicit Place(int16_t window) {
        const Tiedosto& file = Tiedostot(Ikkunat(window).FileIndex);
        folder = file.Folder;
        files = TeeLista(folder);
        const auto found = std::find(files.begin(), files.end(), file.FileName);
        number = found == files.end() ? 0 : found - files.begin() + 1;
    }
};

bool HasFile(int16_t window) {
    return IkkunaPaikassa(window) != nullptr && Ikkunat(window).FileIndex != 0;
}

bool Open(PaaIkkuna& main, int16_t window, const Place& place, std::ptrdiff_t number) {
    const std::string path = place.folder + place.files[static_cast<std::size_t>(number) - 1];
    return TiedostonLukuToimenPiteet(main, path, window, 0);
}

using Step = bool (*)(PaaIkkuna&, int16_t);

// `isLast` tells whether there is nothing behind a place; the user then hears `word`.
template <class IsLast>
void StepSelected(PaaIkkuna& main, Step step, IsLast isLast, const char* word) {
    const StatusRemarks::Opening opening(main.Huomautukset());
    bool atEnd = false;
    for (int16_t window = 1; window <= MaxWindows; ++window) {
        if (HasFile(window) && Ikkunat(window).Selected) {
            atEnd = (!step(main, window) && isLast(Place(window))) || atEnd;
        }
    }
    if (atEnd) {
        main.Huomauta(std::string("This is the ") + word + " data file of its folder.");
    }
}

}  // namespace

bool EnsimmainenTiedostoHakemisto(PaaIkkuna& main, int16_t window, const std::string& folder) {
    const std::vector<std::string> files = TeeLista(folder);
    const bool opened =
        !files.empty() && TiedostonLukuToimenPiteet(main, folder + files[0], window, 0);
    return Finish(main, opened);
}

bool SeuraavaTiedosto(PaaIkkuna& main, int16_t window) {
    if (!HasFile(window)) {
        return false;
    }
    const Place place(window);
    const auto count = static_cast<std::ptrdiff_t>(place.files.size());
    const bool opened =
        count > 1 && place.number < count && Open(main, window, place, place.number + 1);
    return Finish(main, opened);
}

bool EdellinenTiedosto(PaaIkkuna& main, int16_t window) {
    if (!HasFile(window)) {
        return false;
    }
    const Place place(window);
    const bool opened = place.number > 1 && Open(main, window, place, place.number - 1);
    return Finish(main, opened);
}

KansioPaikka AnnaKansioPaikka(int16_t window) {
    if (!HasFile(window)) {
        return {};
    }
    const Place place(window);
    return {place.number, static_cast<std::ptrdiff_t>(place.files.size())};
}

void FileNextFile(PaaIkkuna& main) {
    StepSelected(
        main, SeuraavaTiedosto,
        [](const Place& at) { return at.number == static_cast<std::ptrdiff_t>(at.files.size()); },
        "last");
}

void FilePreviousFile(PaaIkkuna& main) {
    StepSelected(
        main, EdellinenTiedosto, [](const Place& at) { return at.number <= 1; }, "first");
}

}  // namespace tessarin
