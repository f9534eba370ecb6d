// What saves have left behind in a folder.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core/TemporaryName.h"

namespace tessarin {

/// The temporary files that lie in it.
inline std::vector<std::string> Leftovers(const std::string& folder) {
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (IsTemporaryName(entry.path().filename().string())) {
            paths.push_back(entry.path().string());
        }
    }
    return paths;
}

}  // namespace tessarin
