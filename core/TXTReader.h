// Reads tab-separated text tables as if they were list-mode files: a row is an event, a column a
// channel.
#pragma once

#include <cstdint>
#include <string>

#include "core/Tiedosto.h"

namespace tessarin {

class InputFile;

/// What reading a table gave.
struct TxtTulos {
    Tiedosto file;
    int64_t badCells = 0;  ///< cells that were missing or no numbers, and are 0
};

/// `LueTXT` means read TXT.
///
/// The first line holds the titles; when its first is "NAME", "Name" or "name" the first column
/// holds row names. Lines end in CR LF or LF, the last one perhaps in nothing; a byte order mark is
/// passed over; a cell may stand in quotes; a comma stands for the decimal point where the cell is
/// otherwise no number. Cells beyond the titles are left out. At most `MaxLoadedEvents` rows are
/// read. Rows left out and decimal commas are told in `Oddities`.
/// Failure: `file.Valid` is False, and `file.Refusal` says why, for a file that cannot be read, is
/// empty or larger than 2 GB, has no channel or more than 32767, or whose tables cannot be had in
/// memory.
TxtTulos LueTXT(const std::string& path);

/// The same for a file that somebody has opened, or could not open.
TxtTulos LueTXT(InputFile& source, const std::string& path);

/// The table as text for the clipboard: each value and a tab, a line feed after each event. With
/// row names each line begins with its name and a tab, and a line of titles comes first.
std::string TaulukkoTekstina(const Tiedosto& file);

}  // namespace tessarin
