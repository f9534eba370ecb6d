#include "sheets/AutosaveFile.h"

#include <filesystem>
#include <system_error>

#include "core/TemporaryName.h"

namespace tessarin {
namespace {

constexpr int kMost = 99;  // programs at a time

std::string Name(const std::string& folder, int number) {
    return folder + "autosave" + (number == 1 ? "" : "-" + std::to_string(number)) + ".tessarin";
}

// The first free one in the folder, of those that are there or of all.
std::string Take(Locks& locks, const std::string& folder, bool there) {
    for (int number = 1; number <= kMost; ++number) {
        std::string path = Name(folder, number);
        std::error_code error;
        if (std::filesystem::exists(path, error) != there) {
            continue;
        }
        if (locks.Take(path + ".lock")) {
            RemoveOrphans(folder, std::filesystem::path(path).filename().string());
            return path;
        }
        if (!std::filesystem::exists(path + ".lock", error)) {
            return "";  // no file can be made here
        }
    }
    return "";
}

}  // namespace

std::string VaraaAutosave(const Platform& platform) {
    for (const bool there : {true, false}) {
        for (const std::string& folder : {platform.programFolder, platform.dataFolder}) {
            std::string path = folder.empty() ? "" : Take(platform.locks, folder, there);
            if (!path.empty()) {
                return path;
            }
        }
    }
    return "";
}

}  // namespace tessarin
