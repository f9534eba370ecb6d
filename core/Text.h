// Helpers for text that nothing else in the standard library gives.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin {

/// `KorvaaTeksti` means replace text: all occurrences of `find`, case-sensitive, from the left,
/// without looking again at what was put in. An empty `find` changes nothing.
std::string KorvaaTeksti(std::string_view text, std::string_view find,
                         std::string_view replacement);

/// Cuts at every `separator`; n separators give n + 1 pieces, some of them perhaps empty.
std::vector<std::string_view> Split(std::string_view text, char separator);

/// Without blanks, tabs, line ends and NUL bytes at both ends.
std::string_view TrimBlanks(std::string_view text);

/// Bytes from outside as UTF-8: valid UTF-8 stays, any other byte is read as Windows-1252.
std::string DecodeText(std::string_view bytes);

/// The length of a UTF-8 text in characters.
std::size_t Length(std::string_view text);

/// Folder (ending in its separator, or empty) and name of a path. A backslash separates too, so
/// that paths written on other systems are understood, unless a slash stands in the path.
struct PathParts {
    std::string folder;
    std::string name;
};
PathParts SplitPath(std::string_view path);

/// UTF-8 text of at most `characters` characters: a longer one loses its end for an ellipsis.
/// Empty when there is room for none.
std::string Shortened(std::string_view text, int characters);

}  // namespace tessarin
