// Asks the user where to save something.
#pragma once

#include <string>

#include "platform/Dialogs.h"

namespace tessarin {

/// `KysyTallennuspaikka` means ask for the place to save: shows the save dialog, and asks again
/// when a file is there. Empty when the user thinks better of it.
std::string KysyTallennuspaikka(Dialogs& dialogs, const FileQuestion& question);

/// `SaakoKorvata` means may it be replaced: asks when a file is at that place.
bool SaakoKorvata(Dialogs& dialogs, const std::string& path);

}  // namespace tessarin
