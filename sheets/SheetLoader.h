// Loads an analysis sheet or package into the session.
#pragma once

#include <string>

namespace tessarin {

class PaaIkkuna;

/// `LataaNakyma` means load the view: replaces the session by what the sheet holds. Lines that
/// make no sense are passed over; a file that has gone leaves its windows empty. Every failure is
/// told to the user.
/// A file that is no sheet, cannot be read, or was made by a newer version leaves the session as
/// it is; the result is False then.
bool LataaNakyma(PaaIkkuna& main, const std::string& path);

}  // namespace tessarin
