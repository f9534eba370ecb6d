// Header and TEXT of the files that the program writes, and the way back from such a TEXT.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/Tiedosto.h"

namespace tessarin {

/// The part of TEXT that tells of the file: from the delimiter before $CYT to the one behind the
/// last value.
///
/// A backslash, the delimiter, is doubled inside a value, and an empty value leaves two delimiters
/// in a row. Three things cannot stand in a value, because searches for keywords stop at them or
/// find them: a line feed becomes a carriage return, the character 12 a blank, and a value that
/// ends like a keyword ("$COM" as the name of a channel) gets a blank behind it. A value that
/// begins with the character 12 is none: the reader takes an empty one for that, and it is written
/// as the empty one that it was.
std::string WrittenKeywords(const Tiedosto& file);

/// Everything that stands before DATA, with room for `keywords` behind the places of the segments:
///
///     0        256              3000
///     | header | TEXT, blanks   | DATA
///
/// A TEXT that does not fit moves DATA back. Where the end of DATA has more than eight digits, the
/// header says 0 for both its ends, and $BEGINDATA and $ENDDATA alone tell. Nothing when TEXT
/// itself would end beyond eight digits.
std::optional<std::string> BytesBeforeData(std::string_view keywords, uint64_t dataBytes);

/// True for a TEXT that this program wrote.
bool IsOwnText(std::string_view bytes);

/// Such a TEXT with `kDelimiter` between keywords and values. Backslashes inside values are single
/// again, and keywords without a value are left out, so that they are not found.
std::string TakeOwnText(std::string_view bytes);

}  // namespace tessarin
