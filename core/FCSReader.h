// Reads list-mode files of the FCS 2.0 and 3.0 standards.
//
// The reader is lenient: it asks TEXT for the few keywords that it needs and takes what is there.
// What it could not take as it stands is told in `Tiedosto::Oddities`.
#pragma once

#include <cstdint>
#include <string>

#include "core/Tiedosto.h"

namespace tessarin {

class InputFile;

/// `OnkoFcs` means is it FCS: True when the file begins with "FCS3.0" or "FCS2.0". Reads six
/// bytes. False for anything that is not a regular file or cannot be read.
bool OnkoFcs(const std::string& path);

/// `TiedostonSormenjalki` means fingerprint of a file: a sum over its first 80000 bytes. Two
/// files with the same path and fingerprint count as one. 0 when the file cannot be read.
int32_t TiedostonSormenjalki(const std::string& path);

/// `LueFCS` means read FCS.
///
/// `fingerprint` is that of the file when the caller knows it, else 0.
/// Success: `Valid` is True; `RawData` and `Data` hold the same values, log channels converted to
/// linear ones, and compensation is prepared but not applied; `Membership` is all 0.
/// Failure: `Valid` is False, `Refusal` says why, and the rest of the record is empty but for
/// `OutOfMemory`. A file is refused when it cannot be read, its version is another, a count or
/// range that it needs is missing or no number, or its tables cannot be had in memory. At most
/// `MaxLoadedEvents` events are read.
/// A file that promises more events than it holds gives them all: those that are not whole repeat
/// its last bytes. Where their tables would be large for the size of the file it gives only what is
/// there. `WholeEvents` counts that in either case.
Tiedosto LueFCS(const std::string& path, int32_t fingerprint = 0);

/// The same for a file that somebody has opened, or could not open.
Tiedosto LueFCS(InputFile& source, const std::string& path, int32_t fingerprint = 0);

/// `LisaaKanava` means add a channel: one more behind the last of a loaded file, its values and
/// compensation factors 0 and its name empty. False, with the file as it was, when there is no
/// memory for it. REQUIRES: the file in the slot is `Valid`.
bool LisaaKanava(int16_t slot);

}  // namespace tessarin
