// The lines of a sheet file as text, checked before the session is touched.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tessarin {

/// A sheet as it stands in its file.
struct SheetFile {
    std::string path;
    std::vector<std::string> lines;  ///< lines with a colon in order, no comments
    bool package = false;
    int64_t content = 0;  ///< place of the first byte of a package's files

    /// Why it cannot be loaded, for the user; empty when it can.
    std::string refusal;
    std::string title;  ///< of the message
};

/// Reads up to the line "content:". Lines end in LF, CR LF or CR; text is UTF-8 or Windows-1252.
SheetFile LueNakymatiedosto(const std::string& path);

}  // namespace tessarin
