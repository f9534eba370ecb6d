// Paths and names of files as a line of a sheet can hold them.
#pragma once

#include <string>
#include <string_view>

namespace tessarin {

/// An ordinary path as it is. One that is no UTF-8 or holds a control character, such as a line
/// end, would not come back from a line: it stands as "percent:" and the path with those bytes as
/// a percent sign and two hexadecimal digits. So does a path that itself begins so.
std::string PathToLine(const std::string& path);

/// The path that `PathToLine` was given.
std::string PathFromLine(std::string_view text);

}  // namespace tessarin
