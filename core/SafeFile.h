// Writing a file so that a crash or a full disk never destroys the old one.
#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace tessarin {

/// What came of writing a file: it is there, the system did not permit it, or something else
/// failed (the disk is full, the folder is gone).
enum class WriteResult { kDone, kDenied, kFailed };

/// Writes a file in pieces: they go to a new file beside it, which takes its place once it is
/// whole. Until then, and when anything fails, the file at the path is as it was; no other file is
/// touched.
class SafeFile {
  public:
    /// A file at `path` must be an ordinary one that may be written to. A link is followed.
    explicit SafeFile(const std::string& path);
    /// Leaves nothing behind beside the file.
    ~SafeFile();
    SafeFile(const SafeFile&) = delete;
    SafeFile& operator=(const SafeFile&) = delete;

    void Write(std::string_view bytes);

    /// Puts what was written into place, and tells whether that and all before it went well.
    /// REQUIRES: not called before.
    WriteResult Commit();

  private:
    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    void Begin();

    std::string path_;
    std::string beside_;
    std::unique_ptr<std::FILE, Close> out_;
    bool begun_ = false;                          // the file beside is ours to remove
    bool failed_ = false;                         // a piece was not written whole
    WriteResult failure_ = WriteResult::kFailed;  // of beginning
};

/// Writes all of a file at once. False when that could not be done.
bool WriteWhole(const std::string& path, std::string_view bytes);

}  // namespace tessarin
