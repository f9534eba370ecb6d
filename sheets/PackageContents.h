// What a package says of the files that it carries, looked through before any of them is written.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "sheets/SheetText.h"

namespace tessarin {

/// A file of a package as its lines tell of it.
struct PackedFile {
    int slot = 0;
    std::string name;    ///< in the package
    std::string target;  ///< what it is called beside the package; empty when it cannot be had
    int64_t begin = 0;   ///< place of its first byte in the package
    int64_t length = 0;  ///< -1 for a length that makes no sense

    /// What of that name stands beside the package already.
    enum class Beside { kNothing, kSame, kOther };
    Beside beside = Beside::kNothing;
};

/// The files of a package in the order of their length lines, which is that of their bytes.
///
/// A name that leads elsewhere comes down to its last part, and one that begins with a dot loses
/// that: such files could be settings of the user's system, which act by being there.
std::vector<PackedFile> PakatutTiedostot(const SheetFile& sheet);

/// What the user should agree to before the files are written: names that are changed, other files
/// that stand there, or more of them than a session could use. Empty for an ordinary package.
std::string PakettiKysymys(const SheetFile& sheet, const std::vector<PackedFile>& files);

/// Whether a file at `path` holds the very bytes of the package's.
bool OnSamaTiedosto(const std::string& package, const PackedFile& file, const std::string& path);

}  // namespace tessarin
