// Writes the session as an analysis sheet or package.
#pragma once

#include <string>
#include <string_view>

#include "core/SafeFile.h"

namespace tessarin {

class PaaIkkuna;

/// What a sheet holds of the data files: their paths, or in a package the files themselves.
enum class NakymaLaji { kSheet, kPackage };

/// The text of a sheet of the session as it stands, without the files of a package.
std::string NakymaTekstina(const PaaIkkuna& main, NakymaLaji kind);

/// What the user is told when writing fails for no reason of its own.
inline constexpr std::string_view kSavingFailed = "An error occured during the saving!";

/// What came of a save; both texts are for the user and empty for success.
struct Tallennustulos {
    WriteResult result = WriteResult::kDone;
    std::string message;
    std::string reason;  ///< the system's, where it is the system that failed
};

/// `KirjoitaNakyma` means write the view: to a file that is replaced once the new one is whole.
/// A data file that cannot be read again fails a package.
Tallennustulos KirjoitaNakyma(const PaaIkkuna& main, NakymaLaji kind, const std::string& path);

}  // namespace tessarin
