#include "populations/DefinitionWords.h"

#include <algorithm>
#include <array>

namespace tessarin {
namespace {

constexpr std::string_view kBetweenWords = " ()";
constexpr std::array<std::string_view, 3> kKeywords = {"and", "or", "not"};

// Capitals whose small letters lie at one distance. All of them take two bytes in UTF-8.
struct Capitals {
    unsigned first;
    unsigned last;
    unsigned distance;
};
constexpr std::array<Capitals, 6> kCapitals = {{
    {0xc0, 0xd6, 0x20},    // Latin; the multiplication sign stands in the gap
    {0xd8, 0xde, 0x20},    //
    {0x391, 0x3a1, 0x20},  // Greek; no letter stands in the gap
    {0x3a3, 0x3ab, 0x20},  //
    {0x400, 0x40f, 0x50},  // Cyrillic
    {0x410, 0x42f, 0x20},  //
}};

unsigned SmallLetter(unsigned letter) {
    for (const Capitals& capitals : kCapitals) {
        if (letter >= capitals.first && letter <= capitals.last) {
            return letter + capitals.distance;
        }
    }
    return letter;
}

}  // namespace

std::string Pienet(std::string_view text) {
    std::string small(text);
    for (std::size_t i = 0; i < small.size(); ++i) {
        const auto byte = static_cast<unsigned char>(small[i]);
        if (byte >= 'A' && byte <= 'Z') {
            small[i] = static_cast<char>(byte + ('a' - 'A'));
        } else if (byte >= 0xc2 && byte <= 0xdf && i + 1 < small.size()) {
            const auto next = static_cast<unsigned char>(small[i + 1]);
            if ((next & 0xc0U) == 0x80U) {
                const unsigned letter = SmallLetter((byte & 0x1fU) << 6U | (next & 0x3fU));
                small[i] = static_cast<char>(0xc0U | letter >> 6U);
                small[++i] = static_cast<char>(0x80U | (letter & 0x3fU));
            }
        }
    }
    return small;
}

bool OnkoAvainsana(std::string_view word) {
    return std::ranges::find(kKeywords, word) != kKeywords.end();
}

std::string VaihdaSanat(std::string_view expression, std::string_view from, std::string_view to) {
    const std::string wanted = Pienet(from);
    std::string changed;
    WordScanner scanner(expression);
    while (true) {
        changed += scanner.Gap();
        const std::string_view word = scanner.Word();
        if (word.empty()) {
            return changed;
        }
        const std::string small = Pienet(word);
        changed += small == wanted && !OnkoAvainsana(small) ? to : word;
    }
}

std::string_view WordScanner::Gap() {
    return Take(text_.find_first_not_of(kBetweenWords));
}

std::string_view WordScanner::Word() {
    return Take(text_.find_first_of(kBetweenWords));
}

std::string_view WordScanner::Take(std::size_t end) {
    const std::string_view taken = text_.substr(0, end);
    text_.remove_prefix(taken.size());
    return taken;
}

}  // namespace tessarin
