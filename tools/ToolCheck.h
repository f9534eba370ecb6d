// What the language does not know in a tool that is being written. A run passes over it in silence.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tessarin {

/// `TuntemattomatRivit` means unknown rows: a sentence for each of the first `most` of them, such
/// as "Row 7: `w.1.axsis.x` is no command". A row that a condition holds back in every run, such
/// as those behind "if.true:no", may say anything.
std::vector<std::string> TuntemattomatRivit(const std::string& text, std::size_t most);

}  // namespace tessarin
