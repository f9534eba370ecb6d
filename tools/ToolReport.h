// The report of a tool: a text file that is continued.
#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace tessarin {

/// A report is written line by line through a buffer, so what cannot be written may show only at
/// a later line or when the report is closed. The first failure is the one that is told; the
/// report is dropped with it.
class ToolReport {
  public:
    /// Opens the text file at that path to continue it, or makes it; closes the one before. Throws
    /// ToolFault when one of both fails, and for a path that is none for a report: see
    /// `ReportObstacle`.
    void Open(const std::string& path);
    /// Throws ToolFault when no report is open, or it cannot be written.
    void Write(std::string_view text);
    /// Throws ToolFault when what was still in the buffer cannot be written. Without an open
    /// report there is nothing to close.
    void Close();

  private:
    struct CloseFile {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    [[noreturn]] void Fail();

    std::string path_;
    std::unique_ptr<std::FILE, CloseFile> out_;
};

}  // namespace tessarin
