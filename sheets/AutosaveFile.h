// Which file this run of the program autosaves to.
#pragma once

#include <string>

#include "platform/Services.h"

namespace tessarin {

/// Chooses a file that no other running program uses: "autosave.tessarin", "autosave-2.tessarin"
/// and so on, first in the program's folder, or in the user's data folder where the former cannot
/// be written to. A file that a run left behind which ended badly comes before a fresh one. It is
/// kept for this run by a lock beside it until the process ends, however it does.
///
/// Empty when there is no such place.
std::string VaraaAutosave(const Platform& platform);

}  // namespace tessarin
