// The functions of the expression language that work on numbers and types.
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "core/Numbers.h"
#include "tools/ExpressionFault.h"
#include "tools/ExpressionFunctions.h"

namespace tessarin::expression {
namespace {

// The type in which Abs, Int, Fix and Round give their result.
ValueType ResultType(const Value& value) {
    switch (value.type) {
        case ValueType::Empty:
        case ValueType::Boolean:
            return ValueType::Integer;
        case ValueType::String:
            return ValueType::Double;
        default:
            return value.type;
    }
}

template <double (*Curve)(double)>
Value OnCurve(Call& call) {
    return MakeNumber(Curve(call.Number(0)), ValueType::Double);
}

// Of the same type as the argument, or the next wider one.
template <double (*Step)(double)>
Value InType(Call& call) {
    return MakeNumber(Step(call.Number(0)), ResultType(call.At(0)));
}

template <ValueType Type>
Value As(Call& call) {
    return MakeExactly(call.Number(0), Type);
}

// True is all bits.
Value AsByte(Call& call) {
    const Value& value = call.At(0);
    const bool truth = value.type == ValueType::Boolean && value.number != 0;
    return MakeExactly(truth ? 255 : ToDouble(value), ValueType::Byte);
}

double Sine(double x) {
    return std::sin(x);
}

double Cosine(double x) {
    return std::cos(x);
}

double Tangent(double x) {
    return std::tan(x);
}

double ArcTangent(double x) {
    return std::atan(x);
}

double Exponential(double x) {
    return std::exp(x);
}

double Logarithm(double x) {
    if (x <= 0) {
        Fail(ExpressionFault::WrongArgument);
    }
    return std::log(x);
}

double SquareRoot(double x) {
    if (x < 0) {
        Fail(ExpressionFault::WrongArgument);
    }
    return std::sqrt(x);
}

double Magnitude(double x) {
    return std::fabs(x);
}

double WithoutFraction(double x) {
    return std::trunc(x);
}

Value Sign(Call& call) {
    const double x = call.Number(0);
    return MakeNumber((x > 0 ? 1 : 0) - (x < 0 ? 1 : 0), ValueType::Integer);
}

Value Round(Call& call) {
    const double x = call.Number(0);
    const int32_t decimals = call.Whole(1, 0, 0);
    if (decimals > 22) {
        Fail(ExpressionFault::WrongArgument);
    }
    // 10 to the power 22 is the last one that is exact. From 2 to the power 53 on, there is no
    // fraction left to round.
    const double scale = std::pow(10.0, decimals);
    const double scaled = x * scale;
    constexpr double kAllWhole = 9007199254740992;
    const double rounded = std::fabs(scaled) < kAllWhole ? Rounded(scaled) / scale : x;
    return MakeNumber(rounded, ResultType(call.At(0)));
}

Value RandomNumber(Call& call) {
    if (call.Count() == 1) {
        const auto choice =
            static_cast<float>(MakeExactly(call.Number(0), ValueType::Single).number);
        if (choice == 0) {
            return MakeNumber(call.random.Last(), ValueType::Single);
        }
        if (choice < 0) {
            call.random.Restart(choice);
        }
    }
    return MakeNumber(call.random.Next(), ValueType::Single);
}

Value AsBoolean(Call& call) {
    if (call.At(0).type == ValueType::String) {
        if (const auto truth = TruthIn(call.At(0).text)) {
            return MakeBoolean(*truth);
        }
    }
    return MakeBoolean(call.Number(0) != 0);
}

Value AsString(Call& call) {
    return MakeText(std::move(call.Text(0)));
}

template <int Base>
Value InBits(Call& call) {
    auto bits = static_cast<uint32_t>(ToLong(call.At(0)));
    if (ResultType(call.At(0)) <= ValueType::Integer) {
        bits &= 0xffffU;
    }
    std::array<char, 16> buffer;
    char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), bits, Base).ptr;
    std::string text(buffer.data(), end);
    std::ranges::transform(text, text.begin(),
                           [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
    return MakeText(std::move(text));
}

Value IsNumeric(Call& call) {
    const Value& value = call.At(0);
    return MakeBoolean(value.type == ValueType::String ? NumberIn(value.text).has_value()
                                                       : value.type != ValueType::Null);
}

template <ValueType Type>
Value IsOfType(Call& call) {
    return MakeBoolean(call.At(0).type == Type);
}

Value TypeName(Call& call) {
    constexpr std::array<std::string_view, 9> kNames = {
        "Empty", "Null", "Boolean", "Byte", "Integer", "Long", "Single", "Double", "String"};
    return MakeText(std::string(kNames[static_cast<std::size_t>(call.At(0).type)]));
}

constexpr NullArgument kRefused = NullArgument::Refused;
constexpr NullArgument kSpreads = NullArgument::Spreads;
constexpr NullArgument kWelcome = NullArgument::Welcome;

constexpr std::array<Function, 26> kFunctions = {{
    {"abs", 1, 1, kSpreads, InType<Magnitude>},
    {"atn", 1, 1, kRefused, OnCurve<ArcTangent>},
    {"cbool", 1, 1, kRefused, AsBoolean},
    {"cbyte", 1, 1, kRefused, AsByte},
    {"cdbl", 1, 1, kRefused, As<ValueType::Double>},
    {"cint", 1, 1, kRefused, As<ValueType::Integer>},
    {"clng", 1, 1, kRefused, As<ValueType::Long>},
    {"cos", 1, 1, kRefused, OnCurve<Cosine>},
    {"csng", 1, 1, kRefused, As<ValueType::Single>},
    {"cstr", 1, 1, kRefused, AsString},
    {"exp", 1, 1, kRefused, OnCurve<Exponential>},
    {"fix", 1, 1, kSpreads, InType<WithoutFraction>},
    {"hex", 1, 1, kSpreads, InBits<16>},
    {"int", 1, 1, kSpreads, InType<Int>},
    {"isempty", 1, 1, kWelcome, IsOfType<ValueType::Empty>},
    {"isnull", 1, 1, kWelcome, IsOfType<ValueType::Null>},
    {"isnumeric", 1, 1, kWelcome, IsNumeric},
    {"log", 1, 1, kRefused, OnCurve<Logarithm>},
    {"oct", 1, 1, kSpreads, InBits<8>},
    {"rnd", 0, 1, kRefused, RandomNumber},
    {"round", 1, 2, kSpreads, Round},
    {"sgn", 1, 1, kRefused, Sign},
    {"sin", 1, 1, kRefused, OnCurve<Sine>},
    {"sqr", 1, 1, kRefused, OnCurve<SquareRoot>},
    {"tan", 1, 1, kRefused, OnCurve<Tangent>},
    {"typename", 1, 1, kWelcome, TypeName},
}};
static_assert(std::ranges::is_sorted(kFunctions, {}, &Function::name));

}  // namespace

std::span<const Function> NumberFunctions() {
    return kFunctions;
}

}  // namespace tessarin::expression
