// Writing a file so that a crash or a full disk never destroys the old one.
#pragma once

#include <string>
#include <string_view>

namespace tessarin {

/// Writes the bytes to a file beside `path` and renames it once it is whole. False when that could
/// not be done; `path` is then as it was.
bool WriteWhole(const std::string& path, std::string_view bytes);

}  // namespace tessarin
