#include "core/SafeFile.h"

#include <filesystem>
#include <fstream>

namespace tessarin {

bool WriteWhole(const std::string& path, std::string_view bytes) {
    const std::string beside = path + ".part";
    std::ofstream out(beside, std::ios::binary);
    out << bytes;
    out.close();
    std::error_code error;
    if (out) {
        std::filesystem::rename(beside, path, error);
    }
    if (!out || error) {
        std::error_code ignored;
        std::filesystem::remove(beside, ignored);
        return false;
    }
    return true;
}

}  // namespace tessarin
