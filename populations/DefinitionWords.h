// The words of a definition: where they stand in its text, and which of them mean the same.
//
// Blanks and parentheses stand between words. Upper and lower case are the same letter.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tessarin {

/// `Pienet` means small letters: `text` with the capitals of ASCII and the Latin (of western
/// Europe), Greek and Cyrillic ones of UTF-8 in lower case. No byte changes its place.
std::string Pienet(std::string_view text);

/// `OnkoAvainsana` means is it a keyword: "and", "or" or "not", in lower case.
bool OnkoAvainsana(std::string_view word);

/// `VaihdaSanat` means exchange words: `expression` with every word that is `from`, in any case,
/// replaced by `to`. All else stays as it was typed, keywords too: a population that has the name
/// of one cannot be meant by it.
std::string VaihdaSanat(std::string_view expression, std::string_view from, std::string_view to);

/// Runs through the words of a text and what stands between them.
class WordScanner {
  public:
    explicit WordScanner(std::string_view text) : text_(text) {}

    /// What stands in front of the next word: blanks and parentheses, perhaps nothing.
    std::string_view Gap();
    /// The next word; empty at the end of the text.
    std::string_view Word();

  private:
    std::string_view Take(std::size_t end);

    std::string_view text_;
};

}  // namespace tessarin
