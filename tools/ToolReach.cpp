#include "tools/ToolReach.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "core/InputFile.h"

namespace tessarin {
namespace {

namespace fs = std::filesystem;

std::string Quoted(const fs::path& path) {
    return "'" + path.string() + "'";
}

bool IsHidden(const fs::path& name) {
    return name.string().starts_with('.') && name != "." && name != "..";
}

bool MayBeRun(const fs::path& path) {
    constexpr fs::perms kAnybody =
        fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
    std::error_code error;
    return (fs::status(path, error).permissions() & kAnybody) != fs::perms::none;
}

// Text has no NUL; the two ends of a file are enough to tell.
bool IsText(InputFile& file) {
    constexpr uint64_t kKilobyte = 1024;
    const auto hasNul = [&file](uint64_t place) {
        return file.Read(place, kKilobyte).find('\0') != std::string::npos;
    };
    return !hasNul(0) && !hasNul(file.Size() - std::min(file.Size(), kKilobyte));
}

std::string NoReport(const fs::path& path, InputFile& file) {
    // What a link leads to counts as well as its own name.
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    if (std::ranges::any_of(real, IsHidden)) {
        return Quoted(path) + " is a hidden file";
    }
    if (MayBeRun(real)) {
        return Quoted(path) + " is a program";
    }
    return IsText(file) ? "" : Quoted(path) + " is no text";
}

std::string NoPicture(const fs::path& path, InputFile& file) {
    constexpr std::string_view kBitmap = "BM";
    return file.Read(0, kBitmap.size()) == kBitmap
               ? ""
               : Quoted(path) + " is there already and is no picture in BMP format";
}

// What speaks against the file at that path, if one is there.
std::string Obstacle(const fs::path& path, std::string (*judge)(const fs::path&, InputFile&)) {
    std::error_code error;
    if (!fs::exists(path, error)) {
        // What a link names would be made, or the link itself replaced, wherever that may be.
        return fs::is_symlink(fs::symlink_status(path, error))
                   ? Quoted(path) + " is a link to a file that is not there"
                   : "";
    }
    InputFile file(path.string());
    if (!file.IsOpen()) {
        return Quoted(path) + ": " + file.Refusal();
    }
    try {
        return judge(path, file);
    } catch (const std::ios_base::failure& failure) {
        return Quoted(path) + ": " + ReadFailure(failure);
    }
}

}  // namespace

std::string ReportObstacle(const std::string& path) {
    if (IsHidden(fs::path(path).filename())) {
        return Quoted(path) + " is a hidden file";
    }
    return Obstacle(path, NoReport);
}

std::string PictureObstacle(const std::string& path) {
    return Obstacle(path, NoPicture);
}

}  // namespace tessarin
