// The commands that write a window's data to disk.
#pragma once

namespace tessarin {

class PaaIkkuna;

/// "Save FCS as...": asks where and writes the file of the active window there.
void FileSaveFCS(PaaIkkuna& main);

/// "Save FCS": overwrites the file of the active window, without asking, if this program wrote it
/// and all of it is loaded. `EiKysymysta` means no question.
void FileSaveFCSEiKysymysta(PaaIkkuna& main);

}  // namespace tessarin
