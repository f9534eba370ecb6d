// The commands that write a window's data to disk.
#pragma once

#include <string>

#include "core/Tiedosto.h"

namespace tessarin {

class PaaIkkuna;

/// Why the file may not be written to that path, for the user; empty when it may. A file of which
/// only the first events are loaded is not written over itself, as the others would be lost.
std::string TallennuksenEste(const Tiedosto& file, const std::string& path);

/// Tells that events were left out of a file just saved, because the reader had made them up; says
/// nothing of an ordinary file.
void HuomautaTallennuksesta(PaaIkkuna& main, const Tiedosto& file);

/// "Save FCS as...": asks where and writes the file of the active window there.
void FileSaveFCS(PaaIkkuna& main);

/// "Save FCS": overwrites the file of the active window, without asking, if this program wrote it
/// and all of it is loaded. `EiKysymysta` means no question.
void FileSaveFCSEiKysymysta(PaaIkkuna& main);

}  // namespace tessarin
