// The program's one order of names in a folder.
#pragma once

#include <string_view>

namespace tessarin {

/// Whether `a` stands before `b`: by name, digits by their value ("tube 9" before "tube 10"),
/// capitals and small letters of ASCII alike. Names that are the same so far stand by their bytes,
/// so that no two of them are equal.
bool NaturalLess(std::string_view a, std::string_view b);

}  // namespace tessarin
