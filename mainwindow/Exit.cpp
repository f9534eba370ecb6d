#include "mainwindow/Exit.h"

#include "core/Muuttujat.h"
#include "mainwindow/PaaIkkuna.h"
#include "mainwindow/WindowList.h"

namespace tessarin {
namespace {

void ReleaseEvents() {
    for (Tiedosto& file : Tiedostot) {
        file.Valid = false;  // nobody reads tables that are gone
        file.Data.Vapauta();
        file.Membership.Vapauta();
    }
}

void UnloadAll() {
    for (int16_t id = 1; id <= MaxWindows; ++id) {
        if (const auto window = IkkunaPaikassa(id)) {
            window->UnloadWindow();
        }
    }
}

}  // namespace

bool FileExit(PaaIkkuna& main) {
    if (Closing) {
        return true;
    }
    if (!main.Services().dialogs.Ask("Do you really want to exit? All unsaved data will be lost.",
                                     "Exit the program", QuestionButtons::kOkCancel,
                                     SafeAnswer::kNo)) {
        return false;
    }
    Closing = true;
    ReleaseEvents();
    UnloadAll();
    if (ViewStore* views = main.Kumppanit().views) {
        views->PoistaAutosave();
    }
    main.Services().loop.Quit(0);
    return true;
}

}  // namespace tessarin
