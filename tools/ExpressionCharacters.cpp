#include "tools/ExpressionCharacters.h"

#include <algorithm>
#include <array>
#include <vector>

namespace tessarin::expression {
namespace {

// Lower-case letters that stand `distance` behind their upper-case ones. All letters from `first`
// to `last` where `step` is 1; every other one, in pairs with the upper-case ones, where it is 2.
struct Letters {
    uint32_t first;
    uint32_t last;
    int32_t distance;
    uint32_t step;
};

// In no pair do the two take different numbers of bytes; letters without such a partner stay.
constexpr std::array<Letters, 17> kLetters = {{
    {0x0061, 0x007a, 32, 1},
    {0x00e0, 0x00f6, 32, 1},
    {0x00f8, 0x00fe, 32, 1},
    {0x00ff, 0x00ff, -121, 1},
    {0x0101, 0x012f, 1, 2},
    {0x0133, 0x0137, 1, 2},
    {0x013a, 0x0148, 1, 2},
    {0x014b, 0x0177, 1, 2},
    {0x017a, 0x017e, 1, 2},
    {0x03ac, 0x03ac, 38, 1},
    {0x03ad, 0x03af, 37, 1},
    {0x03b1, 0x03c1, 32, 1},
    {0x03c3, 0x03cb, 32, 1},
    {0x03cc, 0x03cc, 64, 1},
    {0x03cd, 0x03ce, 63, 1},
    {0x0430, 0x044f, 32, 1},
    {0x0450, 0x045f, 80, 1},
}};

bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xc0U) == 0x80U;
}

uint32_t LowerCode(uint32_t code) {
    for (const Letters& letters : kLetters) {
        const uint32_t lower = code + static_cast<uint32_t>(letters.distance);
        if (lower >= letters.first && lower <= letters.last &&
            (lower - letters.first) % letters.step == 0) {
            return lower;
        }
    }
    return code;
}

uint32_t UpperCode(uint32_t code) {
    for (const Letters& letters : kLetters) {
        if (code >= letters.first && code <= letters.last &&
            (code - letters.first) % letters.step == 0) {
            return code - static_cast<uint32_t>(letters.distance);
        }
    }
    return code;
}

std::string Mapped(std::string_view text, uint32_t (*map)(uint32_t)) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = Skip(text, at, 1);
        const std::string_view character = text.substr(at, end - at);
        const uint32_t code = FirstCode(character);
        const uint32_t mapped = map(code);
        if (mapped == code) {
            out += character;
        } else {
            AppendCode(out, mapped);
        }
        at = end;
    }
    return out;
}

// The search by Knuth, Morris and Pratt: it never steps back in the text.
class Search {
  public:
    explicit Search(std::string_view find) : find_(find), borders_(find.size(), 0) {
        for (std::size_t i = 1; i < find.size(); ++i) {
            borders_[i] = Matched(borders_[i - 1], find[i]);
        }
    }

    // The next place, which may overlap the one before, when `at` bytes of `text` are searched.
    // The text is the same at each call.
    std::size_t Next(std::string_view text, std::size_t& at) {
        while (at < text.size()) {
            if (matched_ == find_.size()) {
                matched_ = borders_[matched_ - 1];
            }
            matched_ = Matched(matched_, text[at]);
            ++at;
            if (matched_ == find_.size()) {
                return at - find_.size();
            }
        }
        return kNowhere;
    }

  private:
    // How many bytes of `find_` match when `byte` follows `matched` matching ones.
    std::size_t Matched(std::size_t matched, char byte) const {
        while (matched > 0 && find_[matched] != byte) {
            matched = borders_[matched - 1];
        }
        return find_[matched] == byte ? matched + 1 : 0;
    }

    std::string_view find_;
    std::vector<std::size_t> borders_;  // of each front part: its longest front that ends it too
    std::size_t matched_ = 0;
};

}  // namespace

bool SameWord(std::string_view word, std::string_view lower) {
    return std::equal(word.begin(), word.end(), lower.begin(), lower.end(),
                      [](char a, char b) { return Lower(a) == b; });
}

std::size_t Skip(std::string_view text, std::size_t from, std::size_t count) {
    while (count > 0 && from < text.size()) {
        ++from;
        while (from < text.size() && IsContinuation(text[from])) {
            ++from;
        }
        --count;
    }
    return from;
}

uint32_t FirstCode(std::string_view text) {
    const auto first = static_cast<unsigned char>(text[0]);
    const std::size_t size = Skip(text, 0, 1);
    if (size == 1) {
        return first;
    }
    uint32_t code = first & (0x7fU >> size);
    for (std::size_t i = 1; i < size; ++i) {
        code = (code << 6U) | (static_cast<unsigned char>(text[i]) & 0x3fU);
    }
    return code;
}

void AppendCode(std::string& text, uint32_t code) {
    if (code < 0x80) {
        text += static_cast<char>(code);
        return;
    }
    uint32_t shift = 6;
    if (code < 0x800) {
        text += static_cast<char>(0xc0U | (code >> 6U));
    } else if (code < 0x10000) {
        text += static_cast<char>(0xe0U | (code >> 12U));
        shift = 12;
    } else {
        text += static_cast<char>(0xf0U | (code >> 18U));
        shift = 18;
    }
    while (shift > 0) {
        shift -= 6;
        text += static_cast<char>(0x80U | ((code >> shift) & 0x3fU));
    }
}

std::string LowerCase(std::string_view text) {
    return Mapped(text, LowerCode);
}

std::string UpperCase(std::string_view text) {
    return Mapped(text, UpperCode);
}

std::size_t FindFirst(std::string_view text, std::string_view find, std::size_t from) {
    return Search(find).Next(text, from);
}

std::size_t FindLast(std::string_view text, std::string_view find) {
    Search search(find);
    std::size_t at = 0;
    std::size_t last = kNowhere;
    for (std::size_t place = search.Next(text, at); place != kNowhere;
         place = search.Next(text, at)) {
        last = place;
    }
    return last;
}

}  // namespace tessarin::expression
