// The functions of the expression language that work on texts.
#include <algorithm>
#include <array>
#include <utility>

#include "core/Text.h"
#include "tools/ExpressionCharacters.h"
#include "tools/ExpressionFault.h"
#include "tools/ExpressionFunctions.h"

namespace tessarin::expression {
namespace {

Value MakeCount(std::size_t count) {
    return MakeExactly(static_cast<double>(count), ValueType::Long);
}

// The bytes of the first argument from `from` to before `end`.
Value Part(Call& call, std::size_t from, std::size_t end) {
    std::string& text = call.Text(0);
    call.limits.Claim(text.size());
    text.erase(end);
    text.erase(0, from);
    return MakeText(std::move(text));
}

Value Len(Call& call) {
    return MakeCount(Length(call.Text(0)));
}

Value Left(Call& call) {
    const auto length = static_cast<std::size_t>(call.Whole(1, 0));
    return Part(call, 0, Skip(call.Text(0), 0, length));
}

Value Right(Call& call) {
    const auto length = static_cast<std::size_t>(call.Whole(1, 0));
    const std::string& text = call.Text(0);
    const std::size_t all = Length(text);
    return Part(call, all > length ? Skip(text, 0, all - length) : 0, text.size());
}

Value Mid(Call& call) {
    const std::string& text = call.Text(0);
    const auto start = static_cast<std::size_t>(call.Whole(1, 1));
    const std::size_t from = Skip(text, 0, start - 1);
    const std::size_t end = call.Count() > 2
                                ? Skip(text, from, static_cast<std::size_t>(call.Whole(2, 0)))
                                : text.size();
    return Part(call, from, end);
}

template <bool AtLeft, bool AtRight>
Value Trim(Call& call) {
    const std::string& text = call.Text(0);
    const std::size_t first = text.find_first_not_of(' ');
    if (first == kNowhere) {
        return MakeText({});
    }
    return Part(call, AtLeft ? first : 0, AtRight ? text.find_last_not_of(' ') + 1 : text.size());
}

template <std::string (*Map)(std::string_view)>
Value InCase(Call& call) {
    const std::string& text = call.Text(0);
    call.limits.Claim(text.size());
    return MakeText(Map(text));
}

Value StrReverse(Call& call) {
    const std::string& text = call.Text(0);
    call.limits.Claim(text.size());
    std::string out(text.size(), ' ');
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = Skip(text, at, 1);
        text.copy(out.data() + (text.size() - end), end - at, at);
        at = end;
    }
    return MakeText(std::move(out));
}

Value Repeated(Call& call, int32_t times, std::string_view character) {
    const std::size_t length = static_cast<std::size_t>(times) * character.size();
    call.limits.Claim(length);
    std::string out;
    out.reserve(length);
    for (int32_t i = 0; i < times; ++i) {
        out += character;
    }
    return MakeText(std::move(out));
}

Value Space(Call& call) {
    return Repeated(call, call.Whole(0, 0), " ");
}

std::string FromWindows1252(uint32_t code) {
    return DecodeText(std::string(1, static_cast<char>(code)));
}

Value String(Call& call) {
    const int32_t times = call.Whole(0, 0);
    if (call.At(1).type != ValueType::String) {
        const auto code = static_cast<uint32_t>(ToLong(call.At(1)));
        return Repeated(call, times, FromWindows1252(code & 0xffU));
    }
    const std::string& text = call.Text(1);
    if (text.empty()) {
        Fail(ExpressionFault::WrongArgument);
    }
    return Repeated(call, times, std::string_view(text).substr(0, Skip(text, 0, 1)));
}

Value Chr(Call& call) {
    const int32_t code = call.Whole(0, 0);
    if (code > 255) {
        Fail(ExpressionFault::WrongArgument);
    }
    return MakeText(FromWindows1252(static_cast<uint32_t>(code)));
}

uint32_t CodeOfFirst(Call& call) {
    const std::string& text = call.Text(0);
    if (text.empty()) {
        Fail(ExpressionFault::WrongArgument);
    }
    return FirstCode(text);
}

Value Asc(Call& call) {
    const uint32_t code = CodeOfFirst(call);
    if (code < 0x80) {
        return MakeNumber(code, ValueType::Integer);
    }
    for (uint32_t byte = 0x80; byte <= 0xff; ++byte) {
        if (FirstCode(FromWindows1252(byte)) == code) {
            return MakeNumber(byte, ValueType::Integer);
        }
    }
    return MakeNumber('?', ValueType::Integer);
}

// Codes of 16 bits are an Integer, so the upper half of them is negative. Those above need a Long.
Value AscW(Call& call) {
    const uint32_t code = CodeOfFirst(call);
    const bool narrow = code <= 0xffff;
    return MakeNumber(narrow ? static_cast<int16_t>(code) : static_cast<double>(code),
                      ValueType::Integer);
}

Value ChrW(Call& call) {
    int32_t code = call.Whole(0, -32768);
    if (code < 0) {
        code += 0x10000;
    }
    // The surrogates are halves of characters.
    if (code > 0x10ffff || (code >= 0xd800 && code <= 0xdfff)) {
        Fail(ExpressionFault::WrongArgument);
    }
    std::string text;
    AppendCode(text, static_cast<uint32_t>(code));
    return MakeText(std::move(text));
}

// Argument `i` tells whether letters are alike in both cases.
bool IgnoresCase(Call& call, std::size_t i) {
    const int32_t compare = call.Whole(i, 0, 0);
    if (compare > 1) {
        Fail(ExpressionFault::WrongArgument);
    }
    return compare == 1;
}

// Two arguments as they are compared.
struct Pair {
    std::string first;
    std::string second;
};

Pair TakePair(Call& call, std::size_t i, bool ignoreCase) {
    Pair pair{std::move(call.Text(i)), std::move(call.Text(i + 1))};
    if (ignoreCase) {
        pair = {LowerCase(pair.first), LowerCase(pair.second)};
    }
    return pair;
}

Value StrComp(Call& call) {
    const Pair pair = TakePair(call, 0, IgnoresCase(call, 2));
    const int order = pair.first.compare(pair.second);
    return MakeNumber((order > 0 ? 1 : 0) - (order < 0 ? 1 : 0), ValueType::Integer);
}

// The number of the character at byte `place`, or 0 for nowhere.
Value PlaceOf(std::string_view text, std::size_t place) {
    return MakeCount(place == kNowhere ? 0 : Length(text.substr(0, place)) + 1);
}

// The start stands in front, and may be missing there.
Value InStr(Call& call) {
    const std::size_t first = call.Count() > 2 ? 1 : 0;
    const auto start = static_cast<std::size_t>(first == 1 ? call.Whole(0, 1) : 1);
    const auto [text, find] = TakePair(call, first, IgnoresCase(call, 3));
    if (start > Length(text)) {
        return MakeCount(0);
    }
    if (find.empty()) {
        return MakeCount(start);
    }
    return PlaceOf(text, FindFirst(text, find, Skip(text, 0, start - 1)));
}

// What is found lies in the first `start` characters as a whole.
Value InStrRev(Call& call) {
    const int32_t wanted = call.Whole(2, -1, -1);
    if (wanted == 0) {
        Fail(ExpressionFault::WrongArgument);
    }
    const auto [text, find] = TakePair(call, 0, IgnoresCase(call, 3));
    const std::size_t all = Length(text);
    const std::size_t start = wanted < 0 ? all : static_cast<std::size_t>(wanted);
    if (start > all) {
        return MakeCount(0);
    }
    if (find.empty()) {
        return MakeCount(start);
    }
    const auto searched = std::string_view(text).substr(0, Skip(text, 0, start));
    return PlaceOf(searched, FindLast(searched, find));
}

Value Replace(Call& call) {
    const auto start = static_cast<std::size_t>(call.Whole(3, 1, 1));
    int32_t left = call.Whole(4, -1, -1);
    const bool ignoreCase = IgnoresCase(call, 5);
    std::string& text = call.Text(0);
    text.erase(0, Skip(text, 0, start - 1));
    const std::string original = text;
    const std::string& with = call.Text(2);
    const auto [searched, find] = TakePair(call, 0, ignoreCase);
    std::string out;
    std::size_t from = 0;
    while (left != 0 && !find.empty()) {
        const std::size_t place = FindFirst(searched, find, from);
        if (place == kNowhere) {
            break;
        }
        call.limits.Claim(out.size() + (place - from) + with.size(), (place - from) + with.size());
        out.append(original, from, place - from).append(with);
        from = place + find.size();
        left -= left > 0 ? 1 : 0;
    }
    call.limits.Claim(out.size() + (original.size() - from), original.size() - from);
    out.append(original, from);
    return MakeText(std::move(out));
}

constexpr NullArgument kRefused = NullArgument::Refused;
constexpr NullArgument kSpreads = NullArgument::Spreads;

constexpr std::array<Function, 20> kFunctions = {{
    {"asc", 1, 1, kRefused, Asc},
    {"ascw", 1, 1, kRefused, AscW},
    {"chr", 1, 1, kRefused, Chr},
    {"chrw", 1, 1, kRefused, ChrW},
    {"instr", 2, 4, kSpreads, InStr},
    {"instrrev", 2, 4, kSpreads, InStrRev},
    {"lcase", 1, 1, kSpreads, InCase<LowerCase>},
    {"left", 2, 2, kSpreads, Left},
    {"len", 1, 1, kSpreads, Len},
    {"ltrim", 1, 1, kSpreads, Trim<true, false>},
    {"mid", 2, 3, kSpreads, Mid},
    {"replace", 3, 6, kRefused, Replace},
    {"right", 2, 2, kSpreads, Right},
    {"rtrim", 1, 1, kSpreads, Trim<false, true>},
    {"space", 1, 1, kRefused, Space},
    {"strcomp", 2, 3, kSpreads, StrComp},
    {"string", 2, 2, kSpreads, String},
    {"strreverse", 1, 1, kRefused, StrReverse},
    {"trim", 1, 1, kSpreads, Trim<true, true>},
    {"ucase", 1, 1, kSpreads, InCase<UpperCase>},
}};
static_assert(std::ranges::is_sorted(kFunctions, {}, &Function::name));

}  // namespace

std::span<const Function> TextFunctions() {
    return kFunctions;
}

}  // namespace tessarin::expression
