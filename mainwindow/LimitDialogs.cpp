#include "mainwindow/LimitDialogs.h"

#include <string>

#include "core/Muuttujat.h"
#include "core/Numbers.h"

namespace tessarin {
namespace {

void AskLimit(Dialogs& dialogs, std::string_view prompt, int32_t& limit) {
    const auto answer = ParseNumber(dialogs.Input(prompt, "Set limit", std::to_string(limit)));
    const int32_t value = answer ? ToInt32(*answer) : 0;
    if (value > 0) {
        limit = value;
    }
}

}  // namespace

void AsetaFastDrawLimit(Dialogs& dialogs) {
    AskLimit(dialogs, "Set the fast draw limit", FastDrawLimit);
}

void AsetaLadattavienPisteidenMaara(Dialogs& dialogs) {
    AskLimit(dialogs, "Set the max number of events which will be loaded", MaxLoadedEvents);
}

}  // namespace tessarin
