#include "core/FcsKeywords.h"

#include <charconv>
#include <optional>

namespace tessarin {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

bool IsWhiteSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

// A pattern taken apart: what the literal text is, and whether one non-blank stands before it.
struct Pattern {
    bool nonBlankFirst = false;
    std::string literal;
};

Pattern TakeApart(std::string_view pattern) {
    Pattern parts;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const bool escape = pattern[i] == '\\' && i + 1 < pattern.size();
        i += escape ? 1 : 0;
        if (escape && pattern[i] == 'S' && parts.literal.empty()) {
            parts.nonBlankFirst = true;
        } else {
            parts.literal += pattern[i];
        }
    }
    return parts;
}

// The value that begins at `from`, which is behind a delimiter; nothing when it is not ended by
// another delimiter or holds a line feed.
std::optional<std::string_view> ValueAt(std::string_view text, std::size_t from) {
    const std::size_t end = from < text.size() ? text.find(kDelimiter, from + 1) : kNone;
    if (end == kNone) {
        return std::nullopt;
    }
    const std::string_view value = text.substr(from, end - from);
    if (value.find('\n') != kNone) {
        return std::nullopt;
    }
    return value;
}

struct ChannelKeyword {
    std::string_view ending;
    bool dollar;
    ChannelKeywords::Kind kind;
};
constexpr std::array<ChannelKeyword, 5> kChannelKeywords = {{
    {"N", true, ChannelKeywords::Kind::kName},
    {"R", true, ChannelKeywords::Kind::kRange},
    {"B", true, ChannelKeywords::Kind::kBits},
    {"E", false, ChannelKeywords::Kind::kLog},
    {"DISPLAY", false, ChannelKeywords::Kind::kDisplay},
}};

// The channel number between "P" (or "$P") and the end of `text`; 0 when there is none.
int ChannelBefore(std::string_view text, bool dollar) {
    constexpr std::size_t kMostDigits = 5;
    std::size_t first = text.size();
    while (first > 0 && text[first - 1] >= '0' && text[first - 1] <= '9') {
        --first;
    }
    const std::string_view digits = text.substr(first);
    if (digits.empty() || digits.size() > kMostDigits || digits[0] == '0') {
        return 0;
    }
    const std::string_view letters = dollar ? "$P" : "P";
    if (!text.substr(0, first).ends_with(letters)) {
        return 0;
    }
    int channel = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), channel);
    return channel;
}

}  // namespace

std::string_view HaeAvainsana(std::string_view pattern, std::string_view text) {
    const Pattern parts = TakeApart(pattern);
    const std::string needle = parts.literal + kDelimiter;
    for (std::size_t at = text.find(needle); at != kNone; at = text.find(needle, at + 1)) {
        if (parts.nonBlankFirst && (at == 0 || IsWhiteSpace(text[at - 1]))) {
            continue;
        }
        if (const auto value = ValueAt(text, at + needle.size())) {
            return *value;
        }
    }
    return {};
}

ChannelKeywords::ChannelKeywords(std::string_view text, int channels) : channels_(channels) {
    for (auto& values : values_) {
        values.resize(static_cast<std::size_t>(channels));
    }
    for (std::size_t at = text.find(kDelimiter); at != kNone; at = text.find(kDelimiter, at + 1)) {
        Note(text, at);
    }
}

void ChannelKeywords::Note(std::string_view text, std::size_t delimiter) {
    const std::string_view before = text.substr(0, delimiter);
    for (const ChannelKeyword& keyword : kChannelKeywords) {
        if (!before.ends_with(keyword.ending)) {
            continue;
        }
        const int channel =
            ChannelBefore(before.substr(0, before.size() - keyword.ending.size()), keyword.dollar);
        if (channel == 0 || channel > channels_) {
            continue;
        }
        std::string_view& slot =
            values_[static_cast<std::size_t>(keyword.kind)][static_cast<std::size_t>(channel) - 1];
        const auto value = ValueAt(text, delimiter + 1);
        if (slot.empty() && value) {
            slot = *value;
        }
    }
}

std::string_view ChannelKeywords::Value(Kind kind, int channel) const {
    return values_[static_cast<std::size_t>(kind)][static_cast<std::size_t>(channel) - 1];
}

}  // namespace tessarin
