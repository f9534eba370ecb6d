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

/// How sure a file must be. `kFlushed` waits until the disk has it, so that it outlives a loss of
/// power; `kQuick` does not, and is for what is written again at the next step; nor does it look
/// for what a save that was killed has left.
enum class WriteCare { kFlushed, kQuick };

/// Writes a file in pieces: they go to a new file beside it (see `TemporaryName`), which takes its
/// place once it is whole. Until then, and when anything fails, the file at the path is as it was;
/// no other file is touched. The new file has the old one's rights from its first byte.
class SafeFile {
  public:
    /// A file at `path` must be an ordinary one that may be written to. A link is followed.
    explicit SafeFile(const std::string& path, WriteCare care = WriteCare::kFlushed);
    /// Leaves nothing behind beside the file.
    ~SafeFile();
    SafeFile(const SafeFile&) = delete;
    SafeFile& operator=(const SafeFile&) = delete;

    void Write(std::string_view bytes);

    /// Puts what was written into place, and tells whether that and all before it went well.
    /// REQUIRES: not called before.
    WriteResult Commit();

    /// Why it could not be written, such as "No space left on device"; empty while all is well.
    const std::string& Reason() const { return reason_; }

  private:
    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    void Begin(bool replaces);
    bool TakeRights(int file) const;
    bool Flush();
    void FlushFolder() const;
    void Fail();

    std::string path_;
    std::string folder_;
    std::string beside_;
    WriteCare care_;
    std::unique_ptr<std::FILE, Close> out_;
    bool begun_ = false;  // the file beside is ours to remove
    WriteResult result_ = WriteResult::kDone;
    std::string reason_;
};

/// Writes all of a file at once. Gives the system's reason for which it could not be done; empty
/// for success.
std::string WriteWhole(const std::string& path, std::string_view bytes);

}  // namespace tessarin
