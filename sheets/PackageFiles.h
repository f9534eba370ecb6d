// The data files that a package carries behind its sheet: into it, and out again.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "core/SafeFile.h"
#include "sheets/PackageContents.h"

namespace tessarin {

/// A file that goes into a package. Its bytes stand behind those of the files before it.
struct PackageFile {
    int16_t slot = 0;
    std::string path;  ///< where it is now
    std::string name;  ///< what it is called in the package
    int64_t length = 0;
};

/// The loaded files in slot order. Files of one name from different folders get different names.
std::vector<PackageFile> PakettiTiedostot();

/// A name that is not among those taken, and is from here on: where need be, a number goes in front
/// of its ending.
std::string FreshName(const std::string& name, std::set<std::string>& taken);

/// Writes the line that ends the sheet and the bytes of all loaded files. Returns "" or, for a
/// file that can no longer be read as it was, what to tell the user.
std::string KirjoitaPaketti(SafeFile& out);

/// Takes one file out of a package and writes it beside the package, unless a file of that name
/// is there already: nothing is ever overwritten. Gives its path, or a message for the user when
/// name or length make no sense, when it cannot be written, or when the file that is there has
/// other contents.
struct Purkutulos {
    std::string path;     ///< empty when there is no such file now
    std::string message;  ///< empty when all is well
};
Purkutulos PuraTiedosto(const std::string& package, const PackedFile& file);

}  // namespace tessarin
