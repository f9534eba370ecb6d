// The two limits that the user sets in the Edit menu.
#pragma once

#include "platform/Dialogs.h"

namespace tessarin {

/// `AsetaFastDrawLimit` means set the fast draw limit. An empty answer, one that is no number
/// and one that leaves nothing above 0 once its fraction is dropped change nothing.
void AsetaFastDrawLimit(Dialogs& dialogs);

/// `AsetaLadattavienPisteidenMaara` means set the number of events to load; the same rules. The
/// new limit applies to files read after it.
void AsetaLadattavienPisteidenMaara(Dialogs& dialogs);

}  // namespace tessarin
