// Writes a loaded file as a new list-mode file of the FCS 3.0 standard.
#pragma once

#include <cstdint>
#include <string>

namespace tessarin {

/// `KirjoitaFCS` means write FCS: writes the file in the slot, all channels and all events in use
/// that the file really gave (`EventsFromFile`), with its present names, ranges, log flags and
/// compensation. It takes `RawData`, so the file reads back with the same linear values.
///
/// Success: empty; a file at `path` is replaced. The session does not change.
/// Failure: a message for the user; a file at `path` is as it was.
std::string KirjoitaFCS(const std::string& path, int16_t slot);

}  // namespace tessarin
