// Which data files lie in a folder.
#pragma once

#include <string>
#include <vector>

namespace tessarin {

/// `TeeLista` means make the list: names of the data files in a folder, by name, digits
/// by their value (see `NaturalLess`). Empty for a folder that is empty or cannot be read.
std::vector<std::string> TeeLista(const std::string& folder);

}  // namespace tessarin
