#include "core/SafeFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "core/InputFile.h"
#include "core/TemporaryName.h"

namespace tessarin {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kPlainRights = 0777;
constexpr mode_t kAllRights = 07777;

// Whether a file that is there may be written to, with the system's reason in errno.
bool MayBeWritten(const std::string& path) {
    const int file = open(path.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    return file >= 0 && close(file) == 0;
}

bool IsDenied(const std::error_code& error) {
    return error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
           error == std::errc::read_only_file_system;
}

}  // namespace

SafeFile::SafeFile(const std::string& path, WriteCare care) : care_(care) {
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    path_ = error ? path : real.string();
    folder_ = fs::path(path_).parent_path().string();
    if (!fs::exists(path_, error)) {
        Begin(false);
        return;
    }
    const std::string obstacle = FileObstacle(path_);
    if (!obstacle.empty()) {
        result_ = WriteResult::kFailed;
        reason_ = obstacle;
    } else if (MayBeWritten(path_)) {
        Begin(true);
    } else {
        Fail();
    }
}

// The first failure is the one that is told.
void SafeFile::Fail() {
    const std::error_code last(errno, std::generic_category());
    if (result_ == WriteResult::kDone) {
        result_ = IsDenied(last) ? WriteResult::kDenied : WriteResult::kFailed;
        reason_ = last.message();
    }
}

// A file of the first name that is free: what stands beside the target is somebody else's.
void SafeFile::Begin(bool replaces) {
    constexpr int kTries = 1000;
    const std::string target = fs::path(path_).filename().string();
    if (care_ == WriteCare::kFlushed) {  // what is quick does not look through a folder each time
        RemoveOrphans(folder_, target);
    }
    const mode_t rights = replaces ? 0600 : 0666;  // of a new file as the user's mask has it
    int file = -1;
    errno = EEXIST;
    for (int number = 1; number <= kTries && file < 0 && errno == EEXIST; ++number) {
        beside_ = (fs::path(folder_) / TemporaryName(target, number)).string();
        file = open(beside_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, rights);
    }
    begun_ = file >= 0;
    if (!begun_ || !TakeRights(file)) {
        Fail();
    }
    out_.reset(begun_ ? fdopen(file, "wb") : nullptr);
    if (begun_ && out_ == nullptr) {
        Fail();
        close(file);
    }
}

// Those of the file that is replaced, if there is one; its owner too, where that is permitted.
bool SafeFile::TakeRights(int file) const {
    struct stat old {};
    if (stat(path_.c_str(), &old) != 0) {
        return true;
    }
    const bool owned = fchown(file, old.st_uid, old.st_gid) == 0;
    // To run with the rights of an owner is not for another owner.
    const mode_t rights = old.st_mode & (owned ? kAllRights : kPlainRights);
    return fchmod(file, rights) == 0;
}

SafeFile::~SafeFile() {
    out_.reset();
    if (begun_) {
        std::error_code ignored;
        fs::remove(beside_, ignored);
    }
}

void SafeFile::Write(std::string_view bytes) {
    if (out_ != nullptr && result_ == WriteResult::kDone &&
        std::fwrite(bytes.data(), 1, bytes.size(), out_.get()) != bytes.size()) {
        Fail();
    }
}

// The content must be on the disk before its name is, or a loss of power leaves an empty file.
bool SafeFile::Flush() {
    if (std::fflush(out_.get()) != 0) {
        return false;
    }
    // A file system that cannot flush says that the call makes no sense there.
    return care_ == WriteCare::kQuick || fsync(fileno(out_.get())) == 0 || errno == EINVAL;
}

// A folder that cannot be flushed leaves nothing to do: the file is in its place.
void SafeFile::FlushFolder() const {
    const std::string folder = folder_.empty() ? "." : folder_;
    const int opened = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened >= 0) {
        fsync(opened);
        close(opened);
    }
}

WriteResult SafeFile::Commit() {
    if (result_ != WriteResult::kDone) {
        return result_;
    }
    if (!Flush() || std::fclose(out_.release()) != 0 ||
        std::rename(beside_.c_str(), path_.c_str()) != 0) {
        Fail();
        return result_;
    }
    begun_ = false;
    if (care_ == WriteCare::kFlushed) {
        FlushFolder();
    }
    return result_;
}

std::string WriteWhole(const std::string& path, std::string_view bytes) {
    SafeFile file(path);
    file.Write(bytes);
    return file.Commit() == WriteResult::kDone ? "" : file.Reason();
}

}  // namespace tessarin
