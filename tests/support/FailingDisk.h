// A disk that fails in the middle of a file.
#pragma once

#include <algorithm>
#include <cerrno>
#include <memory>
#include <sstream>
#include <string>
#include <system_error>

#include "core/InputFile.h"

namespace tessarin {

/// Gives its bytes, and an input/output error in place of what would stand behind them.
class FailingDisk : public std::stringbuf {
  public:
    explicit FailingDisk(const std::string& bytes)
        : std::stringbuf(bytes, std::ios::in), length_(static_cast<off_type>(bytes.size())) {}

  protected:
    int_type underflow() override {
        const int_type next = std::stringbuf::underflow();
        if (next == traits_type::eof()) {
            throw std::ios_base::failure("read", std::error_code(EIO, std::generic_category()));
        }
        return next;
    }
    // A disk can be asked for any place; reading there is what fails.
    pos_type seekpos(pos_type place, std::ios_base::openmode mode) override {
        return std::stringbuf::seekpos(std::min<off_type>(place, length_), mode);
    }

  private:
    off_type length_;
};

/// A file of these bytes of which the disk gives only the first `good`.
inline std::unique_ptr<InputFile> BadFile(const std::string& bytes, std::size_t good) {
    return std::make_unique<InputFile>(std::make_unique<FailingDisk>(bytes.substr(0, good)),
                                       bytes.size());
}

inline constexpr const char* kReadError = "the file could not be read: Input/output error";

}  // namespace tessarin
