#include "tests/support/TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace tessarin {

TemporaryFolder::TemporaryFolder() {
    path_ = (std::filesystem::temp_directory_path() / "tessarin-XXXXXX").string();
    if (mkdtemp(path_.data()) == nullptr) {
        throw std::runtime_error("no temporary folder could be made");
    }
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryFolder::Path(std::string_view name) const {
    return path_ + "/" + std::string(name);
}

std::string TemporaryFolder::Write(std::string_view name, std::string_view bytes) const {
    std::string path = Path(name);
    std::ofstream out(path, std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) {
        throw std::runtime_error("no test file could be written");
    }
    return path;
}

}  // namespace tessarin
