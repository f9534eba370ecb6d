// Texts of the expression language as characters: places, letter case, codes, and searching. All
// texts are valid UTF-8.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tessarin::expression {

inline constexpr std::size_t kNowhere = std::string_view::npos;

/// ASCII only, whatever the locale.
constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
constexpr bool IsLetter(char c) {
    return Lower(c) >= 'a' && Lower(c) <= 'z';
}

/// True if `word` is `lower` in any letter case. `lower` is in lower case.
bool SameWord(std::string_view word, std::string_view lower);

/// The byte at which the character `count` characters behind byte `from` starts; the size of the
/// text if it has no such character.
std::size_t Skip(std::string_view text, std::size_t from, std::size_t count);

/// The number of the first character of a text that is not empty.
uint32_t FirstCode(std::string_view text);

/// Writes a character, at most U+10FFFF, behind `text`.
void AppendCode(std::string& text, uint32_t code);

/// Letters of the Latin, Greek and Cyrillic alphabets in the other case. The text keeps its length
/// in bytes, so places in it stay what they are.
std::string LowerCase(std::string_view text);
std::string UpperCase(std::string_view text);

/// The first place of `find` at or behind byte `from`, or the last one in the text; `kNowhere` if
/// there is none. Takes time in the order of both lengths, whatever stands in them. `find` is not
/// empty.
std::size_t FindFirst(std::string_view text, std::string_view find, std::size_t from);
std::size_t FindLast(std::string_view text, std::string_view find);

}  // namespace tessarin::expression
