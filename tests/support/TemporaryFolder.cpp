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
    // Any user may look into it: tests that run as root become somebody else.
    std::filesystem::permissions(path_, static_cast<std::filesystem::perms>(0755));
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryFolder::Write(std::string_view name, std::string_view bytes) const {
    std::ofstream(Path(name), std::ios::binary) << bytes;
    return Path(name);
}

}  // namespace tessarin
