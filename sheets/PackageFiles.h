// The data files that a package carries behind its sheet.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/SafeFile.h"

namespace tessarin {

/// A file of a package. Its bytes stand behind those of the files before it.
struct PackageFile {
    int16_t slot = 0;
    std::string path;  ///< where it is now
    std::string name;  ///< what it is called in the package
    int64_t length = 0;
};

/// The loaded files in slot order. Files of one name from different folders get different names.
std::vector<PackageFile> PakettiTiedostot();

/// Writes the line that ends the sheet and the bytes of all loaded files. Returns "" or, for a
/// file that can no longer be read as it was, what to tell the user.
std::string KirjoitaPaketti(SafeFile& out);

/// Takes one file out of a package and writes it beside the package, unless a file of that name
/// is there already: nothing is ever overwritten. `begin` is the place of its first byte in the
/// package. Gives its path, or a message for the user when name or length make no sense, when it
/// cannot be written, or when the file that is there has other contents.
struct Purkutulos {
    std::string path;     ///< empty when there is no such file now
    std::string message;  ///< empty when all is well
};
Purkutulos PuraTiedosto(const std::string& package, const std::string& name, int64_t begin,
                        int64_t length);

}  // namespace tessarin
