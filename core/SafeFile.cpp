#include "core/SafeFile.h"

#include <cerrno>
#include <filesystem>

namespace tessarin {
namespace {

namespace fs = std::filesystem;

bool MayBeReplaced(const std::string& path) {
    std::error_code error;
    if (!fs::exists(path, error)) {
        return true;
    }
    return fs::is_regular_file(path, error) &&
           std::ofstream(path, std::ios::binary | std::ios::in).is_open();  // keeps its content
}

// Why the system call that just failed did.
WriteResult LastFailure() {
    const std::error_code last(errno, std::generic_category());
    const bool denied = last == std::errc::permission_denied ||
                        last == std::errc::operation_not_permitted ||
                        last == std::errc::read_only_file_system;
    return denied ? WriteResult::kDenied : WriteResult::kFailed;
}

}  // namespace

SafeFile::SafeFile(const std::string& path) {
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    path_ = error ? path : real.string();
    beside_ = path_ + ".part";
    errno = 0;
    if (MayBeReplaced(path_)) {
        out_.open(beside_, std::ios::binary);
        begun_ = out_.is_open();
    }
    failure_ = LastFailure();
}

SafeFile::~SafeFile() {
    if (begun_) {
        out_.close();
        std::error_code ignored;
        fs::remove(beside_, ignored);
    }
}

void SafeFile::Write(std::string_view bytes) {
    out_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

WriteResult SafeFile::Commit() {
    out_.close();
    if (!begun_ || !out_) {
        return begun_ ? WriteResult::kFailed : failure_;
    }
    std::error_code error;
    const fs::file_status old = fs::status(path_, error);
    if (fs::exists(old)) {
        fs::permissions(beside_, old.permissions(), error);
    }
    fs::rename(beside_, path_, error);
    begun_ = static_cast<bool>(error);
    return error ? WriteResult::kFailed : WriteResult::kDone;
}

bool WriteWhole(const std::string& path, std::string_view bytes) {
    SafeFile file(path);
    file.Write(bytes);
    return file.Commit() == WriteResult::kDone;
}

}  // namespace tessarin
