// Stepping windows through the data files of their folders.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace tessarin {

class PaaIkkuna;

/// Opens the first data file of a folder in that window. False when there is none or it was
/// refused; the window then stays as it is.
bool EnsimmainenTiedostoHakemisto(PaaIkkuna& main, int16_t window, const std::string& folder);

/// `SeuraavaTiedosto` means next file: opens in that window the file behind its own in its folder,
/// or the first when its own is not in the folder's list. False, the window staying as it is, at
/// the end of the list (there is no way around), in a folder of one file, or when refused.
bool SeuraavaTiedosto(PaaIkkuna& main, int16_t window);
/// `EdellinenTiedosto` means previous file: the same, backwards.
bool EdellinenTiedosto(PaaIkkuna& main, int16_t window);

/// `KansioPaikka` means place in a folder: where a window's file stands among the data files of
/// its folder, counted from 1; 0 when it is not there.
struct KansioPaikka {
    std::ptrdiff_t number = 0;
    std::ptrdiff_t files = 0;  ///< how many there are
};
/// All 0 for a window without a file.
KansioPaikka AnnaKansioPaikka(int16_t window);

/// "Next file" and "Previous file": every selected window steps from its own file in its own
/// folder.
void FileNextFile(PaaIkkuna& main);
void FilePreviousFile(PaaIkkuna& main);

}  // namespace tessarin
