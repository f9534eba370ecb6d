#include "tests/support/RealData.h"

#include <cstdlib>
#include <filesystem>

namespace tessarin {

std::optional<std::string> RealFile(const std::string& name) {
    const char* named = std::getenv("TESSARIN_DATA");
    const std::filesystem::path folder =
        named != nullptr ? named : TESSARIN_SOURCE_FOLDER "/../shared/data";
    std::error_code error;
    const std::filesystem::path path = folder / name;
    if (!std::filesystem::is_regular_file(path, error)) {
        return std::nullopt;
    }
    return path.string();
}

std::string SourceFile(const std::string& name) {
    return std::string(TESSARIN_SOURCE_FOLDER) + "/" + name;
}

}  // namespace tessarin
