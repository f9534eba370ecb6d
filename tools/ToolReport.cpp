#include "tools/ToolReport.h"

#include <cerrno>
#include <system_error>

#include "tools/ToolReach.h"
#include "tools/ToolValue.h"

namespace tessarin {

void ToolReport::Open(const std::string& path) {
    Close();
    path_ = path;
    if (std::string obstacle = ReportObstacle(path); !obstacle.empty()) {
        throw ToolFault{std::move(obstacle)};
    }
    errno = 0;
    out_.reset(std::fopen(path.c_str(), "ab"));
    if (out_ == nullptr) {
        Fail();
    }
}

void ToolReport::Write(std::string_view text) {
    if (out_ == nullptr) {
        throw ToolFault{"No report is open"};
    }
    errno = 0;
    if (std::fwrite(text.data(), 1, text.size(), out_.get()) != text.size()) {
        Fail();
    }
}

void ToolReport::Close() {
    errno = 0;
    if (out_ != nullptr && std::fclose(out_.release()) != 0) {
        Fail();
    }
}

void ToolReport::Fail() {
    const std::string reason = std::generic_category().message(errno);
    out_.reset();
    throw ToolFault{"The report '" + path_ + "' could not be written: " + reason};
}

}  // namespace tessarin
