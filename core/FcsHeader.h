// The fixed header at the start of an FCS file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tessarin {

/// As the file gives it; all offsets are bytes from the start of the file.
///
///     0        6    10       18       26        34       42
///     | version |    | text   | text   | data    | data   |
///     | FCS3.0  |    | begin  | end    | begin   | end    |
struct FcsHeader {
    std::string version;
    int32_t textBegin = 0;
    int32_t textEnd = 0;
    std::optional<int32_t> dataBegin;  // nothing when blank or 0: the header itself stands there
    int32_t dataEnd = 0;
};

inline constexpr std::size_t kVersionLength = 6;
inline constexpr std::size_t kHeaderLength = 42;

/// True for the first six characters of a file that can be read.
bool IsReadableVersion(std::string_view version);

/// Takes the header apart. Nothing when `bytes` is too short, or the version is not one that can
/// be read, or the place of TEXT is no number.
std::optional<FcsHeader> TakeHeader(std::string_view bytes);

/// Why `TakeHeader` gives nothing for them, as a phrase for the user. REQUIRES: it does.
std::string WhyNoHeader(std::string_view bytes);

}  // namespace tessarin
