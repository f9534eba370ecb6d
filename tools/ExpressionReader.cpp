#include "tools/ExpressionReader.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <utility>

#include "tools/ExpressionCharacters.h"
#include "tools/ExpressionFault.h"

namespace tessarin::expression {
namespace {

struct Spelling {
    std::string_view text;
    Operator op;
};

// Those of two signs stand before those that are their start.
constexpr std::array<Spelling, 15> kSigns = {{
    {"+", Operator::Add},
    {"-", Operator::Subtract},
    {"*", Operator::Multiply},
    {"/", Operator::Divide},
    {"\\", Operator::WholeDivide},
    {"^", Operator::Power},
    {"&", Operator::Join},
    {"<>", Operator::Different},
    {"<=", Operator::LessOrEqual},
    {"=<", Operator::LessOrEqual},
    {">=", Operator::GreaterOrEqual},
    {"=>", Operator::GreaterOrEqual},
    {"<", Operator::Less},
    {">", Operator::Greater},
    {"=", Operator::Equal},
}};

constexpr std::array<Spelling, 6> kWords = {{
    {"mod", Operator::Mod},
    {"and", Operator::And},
    {"or", Operator::Or},
    {"xor", Operator::Xor},
    {"eqv", Operator::Eqv},
    {"imp", Operator::Imp},
}};

std::size_t CountDigits(std::string_view text, std::size_t from) {
    std::size_t end = from;
    while (end < text.size() && IsDigit(text[end])) {
        ++end;
    }
    return end - from;
}

// The length of the exponent at `from`, E+12 for example; 0 if none stands there.
std::size_t ExponentLength(std::string_view text, std::size_t from) {
    if (from >= text.size() || Lower(text[from]) != 'e') {
        return 0;
    }
    std::size_t length = 1;
    if (from + 1 < text.size() && (text[from + 1] == '+' || text[from + 1] == '-')) {
        ++length;
    }
    const std::size_t digits = CountDigits(text, from + length);
    return digits == 0 ? 0 : length + digits;
}

std::size_t WordLength(std::string_view text) {
    std::size_t length = 0;
    while (length < text.size() &&
           (IsLetter(text[length]) ||
            (length > 0 && (IsDigit(text[length]) || text[length] == '_')))) {
        ++length;
    }
    return length;
}

}  // namespace

void Reader::SkipBlanks() {
    while (!rest_.empty() && (rest_.front() == ' ' || rest_.front() == '\t')) {
        rest_.remove_prefix(1);
    }
}

bool Reader::AtEnd() {
    SkipBlanks();
    return rest_.empty();
}

bool Reader::Take(char c) {
    SkipBlanks();
    const bool there = rest_.starts_with(c);
    rest_.remove_prefix(there ? 1 : 0);
    return there;
}

Operator Reader::TakeOperator() {
    SkipBlanks();
    if (AtWord()) {
        const std::string_view word = rest_.substr(0, WordLength(rest_));
        for (const Spelling& spelling : kWords) {
            if (SameWord(word, spelling.text)) {
                rest_.remove_prefix(word.size());
                return spelling.op;
            }
        }
        return Operator::None;
    }
    for (const Spelling& spelling : kSigns) {
        if (rest_.starts_with(spelling.text)) {
            rest_.remove_prefix(spelling.text.size());
            return spelling.op;
        }
    }
    return Operator::None;
}

bool Reader::AtWord() {
    SkipBlanks();
    return !rest_.empty() && IsLetter(rest_.front());
}

std::string_view Reader::TakeWord() {
    const std::string_view word = rest_.substr(0, WordLength(rest_));
    rest_.remove_prefix(word.size());
    return word;
}

Value Reader::TakeLiteral() {
    SkipBlanks();
    if (rest_.starts_with('"')) {
        return TakeText();
    }
    if (StartsBits(rest_)) {
        const auto bits = TakeBits(rest_);
        if (!bits) {
            Fail(ExpressionFault::Syntax);
        }
        return *bits;
    }
    return TakeNumber();
}

Value Reader::TakeText() {
    std::string text;
    for (;;) {
        rest_.remove_prefix(1);
        const std::size_t end = rest_.find('"');
        if (end == kNowhere) {
            Fail(ExpressionFault::Syntax);
        }
        text += rest_.substr(0, end);
        rest_.remove_prefix(end + 1);
        if (!rest_.starts_with('"')) {
            return MakeText(std::move(text));
        }
        text += '"';
    }
}

Value Reader::TakeNumber() {
    std::size_t length = CountDigits(rest_, 0);
    std::size_t digits = length;
    bool whole = true;
    if (length < rest_.size() && rest_[length] == '.') {
        whole = false;
        const std::size_t decimals = CountDigits(rest_, length + 1);
        digits += decimals;
        length += 1 + decimals;
    }
    if (digits == 0) {
        Fail(ExpressionFault::Syntax);
    }
    const std::size_t exponent = ExponentLength(rest_, length);
    length += exponent;
    double number = 0;
    const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + length, number);
    if (error != std::errc()) {
        Fail(ExpressionFault::Overflow);
    }
    rest_.remove_prefix(length);
    return MakeNumber(number, whole && exponent == 0 ? ValueType::Integer : ValueType::Double);
}

}  // namespace tessarin::expression
