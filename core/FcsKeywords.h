// Searching the TEXT segment of an FCS file for keywords, without a keyword table.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin {

/// Stands between keywords and values once TEXT is normalised.
inline constexpr char kDelimiter = 12;

/// `HaeAvainsana` means fetch a keyword: the value behind the first place in `text` where
/// `pattern` and the delimiter stand.
///
/// The value is the shortest text of at least one character, line feeds excluded, before the next
/// delimiter; its first character may itself be a delimiter. A pattern is literal text in which
/// a backslash takes the character behind it as it is, but for "\S", which stands for any
/// character that is no white space. Empty when nothing matches.
std::string_view HaeAvainsana(std::string_view pattern, std::string_view text);

/// The keywords that stand once for each channel, found in one pass over TEXT, so that a long
/// TEXT with many channels costs no more than its length.
class ChannelKeywords {
  public:
    enum class Kind { kName, kRange, kBits, kLog, kDisplay };

    /// `text` must outlive the object. REQUIRES: channels >= 0.
    ChannelKeywords(std::string_view text, int channels);

    /// What `HaeAvainsana` gives for "\$P" n "N", "R" or "B", or for "P" n "E" or "DISPLAY".
    /// REQUIRES: channel is 1..channels.
    std::string_view Value(Kind kind, int channel) const;

  private:
    static constexpr std::size_t kKinds = 5;
    void Note(std::string_view text, std::size_t delimiter);

    int channels_;
    std::array<std::vector<std::string_view>, kKinds> values_;  // [kind][channel - 1]
};

}  // namespace tessarin
