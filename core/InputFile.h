// Opening a file by its name for reading: the one check for whatever the program opens so.
#pragma once

#include <cstdint>
#include <istream>
#include <memory>
#include <streambuf>
#include <string>

namespace tessarin {

/// Why a path should not be opened at all, such as "it is a folder" or "No such file or
/// directory"; empty when it names a regular file.
std::string FileObstacle(const std::string& path);

/// A regular file, open for reading. Anything else (a folder, a pipe, a device) is left alone:
/// reading it could wait for ever.
///
/// When the disk fails while the file is read, the read throws std::ios_base::failure; see
/// `ReadFailure`. What comes back short is short because the file ends there.
class InputFile {
  public:
    explicit InputFile(const std::string& path);
    /// Takes `size` bytes that somebody else opened.
    InputFile(std::unique_ptr<std::streambuf> bytes, uint64_t size);
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    bool IsOpen() const { return bytes_ != nullptr; }
    /// Why it is not, such as "Permission denied" or "it is a folder"; empty when it is open.
    const std::string& Refusal() const { return refusal_; }

    // The rest REQUIRES that it is open.

    uint64_t Size() const { return size_; }
    std::istream& Stream() { return in_; }
    void GoTo(uint64_t offset);
    /// Up to `count` bytes from `offset`; fewer when the file ends before.
    std::string Read(uint64_t offset, uint64_t count);

  private:
    void Take(std::unique_ptr<std::streambuf> bytes, uint64_t size);

    std::unique_ptr<std::streambuf> bytes_;
    std::istream in_{nullptr};
    uint64_t size_ = 0;
    std::string refusal_;
};

/// What a failed read comes to for the user, with the system's reason.
std::string ReadFailure(const std::ios_base::failure& failure);

/// All of a file, or why there is nothing of it.
struct WholeFile {
    std::string bytes;
    std::string refusal;  ///< empty for success
};

/// Reads a file of at most `most` bytes at once; one that is not open gives its `Refusal`. Throws
/// std::bad_alloc.
WholeFile ReadWhole(InputFile& file, uint64_t most);

}  // namespace tessarin
