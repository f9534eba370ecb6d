// A folder for the files of one test.
#pragma once

#include <string>
#include <string_view>

namespace tessarin {

/// Makes an empty folder of its own, and removes it with all that lies in it.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    /// The place of a file in it; ends in the separator for an empty name.
    std::string Path(std::string_view name = "") const { return path_ + "/" + std::string(name); }
    /// Writes a file, replacing one of that name, and returns its place.
    std::string Write(std::string_view name, std::string_view bytes) const;

  private:
    std::string path_;
};

}  // namespace tessarin
