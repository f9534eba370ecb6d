// How a file comes into the session: which slot it takes and which window shows it.
#pragma once

#include <cstdint>
#include <string>

namespace tessarin {

class PaaIkkuna;

/// `LukuTapa` means way of reading: as a list-mode file or as a tabbed text table.
enum class LukuTapa { kFcs, kTxt };

/// By the file's ending: .txt, in any case, is a text table.
LukuTapa TavallinenLukuTapa(const std::string& path);

/// Whether the file's ending, in any case, is that of an analysis sheet: .tessarin.
bool OnkoNakyma(const std::string& path);

/// `TiedostonLukuToimenPiteet` means steps of reading a file. A file already loaded from that
/// path is shared, any other is read into the lowest free slot; populations then get their
/// members for it. With `window` not 0 that window shows the file. With `slot` not 0 the file is
/// read into that slot, replacing what is there, and populations are left as they are.
///
/// True when a window was given the file. A refused file and a full table are told to the user,
/// and nothing changes; why a file is refused stands in the status bar.
bool TiedostonLukuToimenPiteet(PaaIkkuna& main, const std::string& path, int16_t window,
                               int16_t slot, LukuTapa way = LukuTapa::kFcs);

/// Opens a file in every selected window, or in a new dot plot when none is selected.
void AvaaValittuihin(PaaIkkuna& main, const std::string& path, LukuTapa way);

/// Opens a file in a new dot plot at the lowest free slot. With no free slot nothing is opened;
/// a refused file leaves no window behind.
void AvaaUuteenIkkunaan(PaaIkkuna& main, const std::string& path, LukuTapa way);

/// "Open FCS...": asks for a file and opens it so.
void FileOpenFCS(PaaIkkuna& main);
/// "Open TXT file...": the same for a text table, which also goes to the clipboard as text.
void FileOpenTXT(PaaIkkuna& main);

}  // namespace tessarin
