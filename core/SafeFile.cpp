#include "core/SafeFile.h"

#include <cerrno>
#include <filesystem>
#include <fstream>

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
    errno = 0;
    if (MayBeReplaced(path_)) {
        Begin();
    }
    failure_ = LastFailure();
}

// A file of the first name that is free: what stands beside the target is somebody else's.
void SafeFile::Begin() {
    constexpr int kTries = 1000;
    for (int number = 1; number <= kTries && out_ == nullptr; ++number) {
        beside_ = path_ + (number == 1 ? "" : "-" + std::to_string(number)) + ".part";
        errno = 0;
        out_.reset(std::fopen(beside_.c_str(), "wbx"));
        if (out_ == nullptr && errno != EEXIST) {
            return;
        }
    }
    begun_ = out_ != nullptr;
}

SafeFile::~SafeFile() {
    out_.reset();
    if (begun_) {
        std::error_code ignored;
        fs::remove(beside_, ignored);
    }
}

void SafeFile::Write(std::string_view bytes) {
    if (out_ != nullptr) {
        failed_ |= std::fwrite(bytes.data(), 1, bytes.size(), out_.get()) != bytes.size();
    }
}

WriteResult SafeFile::Commit() {
    if (!begun_) {
        return failure_;
    }
    failed_ |= std::fclose(out_.release()) != 0;
    if (failed_) {
        return WriteResult::kFailed;
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
