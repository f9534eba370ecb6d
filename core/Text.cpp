#include "core/Text.h"

#include <array>
#include <cstdint>

namespace tessarin {
namespace {

// Windows-1252 for the bytes 0x80 to 0x9f; the five that it leaves free keep their own number.
constexpr std::array<uint16_t, 32> kWindows1252 = {
    0x20ac, 0x0081, 0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008d, 0x017d, 0x008f, 0x0090, 0x2018, 0x2019, 0x201c, 0x201d, 0x2022,
    0x2013, 0x2014, 0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0x009d, 0x017e, 0x0178};

bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xc0U) == 0x80U;
}

// How many bytes of valid UTF-8 stand at the start of `text`; 0 when its first byte is none.
std::size_t ValidSequence(std::string_view text) {
    const auto first = static_cast<unsigned char>(text[0]);
    if (first < 0x80) {
        return 1;
    }
    std::size_t length = 0;
    if (first >= 0xc2 && first <= 0xdf) {
        length = 2;
    } else if (first >= 0xe0 && first <= 0xef) {
        length = 3;
    } else if (first >= 0xf0 && first <= 0xf4) {
        length = 4;
    }
    if (length == 0 || text.size() < length) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if (!IsContinuation(text[i])) {
            return 0;
        }
    }
    // Overlong forms, surrogates and numbers past the last character are not valid.
    const auto second = static_cast<unsigned char>(text[1]);
    if ((first == 0xe0 && second < 0xa0) || (first == 0xed && second > 0x9f) ||
        (first == 0xf0 && second < 0x90) || (first == 0xf4 && second > 0x8f)) {
        return 0;
    }
    return length;
}

void AppendWindows1252(std::string& out, unsigned char byte) {
    const unsigned code =
        byte >= 0x80 && byte <= 0x9f ? kWindows1252[byte - 0x80U] : unsigned{byte};
    if (code >= 0x800) {
        out += static_cast<char>(0xe0U | (code >> 12U));
        out += static_cast<char>(0x80U | ((code >> 6U) & 0x3fU));
    } else {
        out += static_cast<char>(0xc0U | (code >> 6U));
    }
    out += static_cast<char>(0x80U | (code & 0x3fU));
}

}  // namespace

std::string KorvaaTeksti(std::string_view text, std::string_view find,
                         std::string_view replacement) {
    if (find.empty()) {
        return std::string(text);
    }
    std::string out;
    std::size_t from = 0;
    for (std::size_t at = text.find(find); at != std::string_view::npos;
         at = text.find(find, from)) {
        out.append(text, from, at - from);
        out.append(replacement);
        from = at + find.size();
    }
    out.append(text, from);
    return out;
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> pieces;
    std::size_t from = 0;
    for (std::size_t at = text.find(separator); at != std::string_view::npos;
         at = text.find(separator, from)) {
        pieces.push_back(text.substr(from, at - from));
        from = at + 1;
    }
    pieces.push_back(text.substr(from));
    return pieces;
}

std::string_view TrimBlanks(std::string_view text) {
    constexpr std::string_view blanks(" \t\r\n\0", 5);
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string DecodeText(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size());
    while (!bytes.empty()) {
        const std::size_t valid = ValidSequence(bytes);
        if (valid == 0) {
            AppendWindows1252(out, static_cast<unsigned char>(bytes[0]));
            bytes.remove_prefix(1);
        } else {
            out.append(bytes, 0, valid);
            bytes.remove_prefix(valid);
        }
    }
    return out;
}

std::size_t Length(std::string_view text) {
    std::size_t length = 0;
    for (const char byte : text) {
        length += IsContinuation(byte) ? 0 : 1;
    }
    return length;
}

PathParts SplitPath(std::string_view path) {
    std::size_t cut = path.rfind('/');
    if (cut == std::string_view::npos) {
        cut = path.rfind('\\');
    }
    if (cut == std::string_view::npos) {
        return {"", std::string(path)};
    }
    return {std::string(path.substr(0, cut + 1)), std::string(path.substr(cut + 1))};
}

std::string Shortened(std::string_view text, int characters) {
    if (characters <= 0) {
        return "";
    }
    if (Length(text) <= static_cast<std::size_t>(characters)) {
        return std::string(text);
    }
    std::size_t end = 0;
    for (int kept = 1; kept < characters; ++kept) {
        do {
            ++end;
        } while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xc0U) == 0x80U);
    }
    return std::string(text.substr(0, end)) + "\u2026";
}

}  // namespace tessarin
