#include "core/InputFile.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

namespace tessarin {

namespace fs = std::filesystem;

std::string FileObstacle(const std::string& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::status_known(status) || !fs::exists(status)) {
        return error.message();
    }
    if (fs::is_directory(status)) {
        return "it is a folder";
    }
    return fs::is_regular_file(status) ? "" : "it is no regular file";
}

InputFile::InputFile(const std::string& path) : refusal_(FileObstacle(path)) {
    if (!refusal_.empty()) {
        return;
    }
    auto file = std::make_unique<std::filebuf>();
    errno = 0;
    if (file->open(path, std::ios::in | std::ios::binary) == nullptr) {
        refusal_ = std::generic_category().message(errno);
        return;
    }
    std::error_code error;
    const uint64_t size = fs::file_size(path, error);
    if (error) {
        refusal_ = error.message();
        return;
    }
    Take(std::move(file), size);
}

InputFile::InputFile(std::unique_ptr<std::streambuf> bytes, uint64_t size) {
    Take(std::move(bytes), size);
}

void InputFile::Take(std::unique_ptr<std::streambuf> bytes, uint64_t size) {
    bytes_ = std::move(bytes);
    size_ = size;
    in_.rdbuf(bytes_.get());
    in_.exceptions(std::ios::badbit);  // which a failed read sets, and an end does not
}

void InputFile::GoTo(uint64_t offset) {
    in_.clear();
    in_.seekg(static_cast<std::streamoff>(offset));
}

std::string InputFile::Read(uint64_t offset, uint64_t count) {
    std::string bytes;
    if (offset < size_) {
        bytes.resize(std::min(count, size_ - offset));
        GoTo(offset);
        in_.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        bytes.resize(static_cast<std::size_t>(in_.gcount()));
    }
    return bytes;
}

std::string ReadFailure(const std::ios_base::failure& failure) {
    return "the file could not be read: " + failure.code().message();
}

WholeFile ReadWhole(InputFile& file, uint64_t most) {
    if (!file.IsOpen()) {
        return {"", file.Refusal()};
    }
    if (file.Size() > most) {
        return {"", "it is larger than " + std::to_string(most >> 20U) + " MB"};
    }
    try {
        return {file.Read(0, file.Size()), ""};
    } catch (const std::ios_base::failure& failure) {
        return {"", ReadFailure(failure)};
    }
}

}  // namespace tessarin
