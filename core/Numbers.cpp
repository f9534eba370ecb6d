#include "core/Numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "core/Text.h"

namespace tessarin {

double Rounded(double x) {
    // The rounding mode of the process is to nearest, ties to even, and nothing changes it.
    return std::nearbyint(x);
}

double Int(double x) {
    return std::floor(x);
}

int32_t ToInt32(double x) {
    constexpr double low = std::numeric_limits<int32_t>::min();
    constexpr double high = std::numeric_limits<int32_t>::max();
    if (std::isnan(x)) {
        return 0;
    }
    if (x <= low) {
        return std::numeric_limits<int32_t>::min();
    }
    if (x >= high) {
        return std::numeric_limits<int32_t>::max();
    }
    return static_cast<int32_t>(x);
}

std::optional<double> ParseNumber(std::string_view text) {
    std::string_view digits = TrimBlanks(text);
    // from_chars knows no plus sign, and would let a second sign through behind one cut off here.
    if (!digits.empty() && digits.front() == '+') {
        digits.remove_prefix(1);
        if (!digits.empty() && digits.front() == '-') {
            return std::nullopt;
        }
    }
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size() || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

std::optional<int32_t> ParseWholeNumber(std::string_view text) {
    const auto value = ParseNumber(text);
    if (!value) {
        return std::nullopt;
    }
    const double whole = Rounded(*value);
    if (whole < std::numeric_limits<int32_t>::min() ||
        whole > std::numeric_limits<int32_t>::max()) {
        return std::nullopt;
    }
    return static_cast<int32_t>(whole);
}

namespace {

// The significant digits of a finite number, without trailing zeros, and the power of ten of the
// first: 0.00123 is "123" and -3.
struct Decimal {
    bool negative = false;
    std::string digits;
    int exponent = 0;
};

template <class Number>
Decimal TakeApart(Number value, int significant) {
    std::array<char, 64> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                   std::chars_format::scientific, significant - 1)
                         .ptr;
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const std::size_t e = text.find('e');
    Decimal decimal{value < 0, std::string(1, text[0]), 0};
    if (e > 2) {
        decimal.digits.append(text.substr(2, e - 2));
    }
    decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
    const std::size_t number = text[e + 1] == '+' ? e + 2 : e + 1;
    std::from_chars(text.data() + number, end, decimal.exponent);
    return decimal;
}

std::string Fixed(const Decimal& decimal) {
    const std::string& digits = decimal.digits;
    if (decimal.exponent < 0) {
        return "0." + std::string(static_cast<std::size_t>(-decimal.exponent - 1), '0') + digits;
    }
    const auto whole = static_cast<std::size_t>(decimal.exponent) + 1;
    if (digits.size() <= whole) {
        return digits + std::string(whole - digits.size(), '0');
    }
    return digits.substr(0, whole) + "." + digits.substr(whole);
}

std::string Scientific(const Decimal& decimal) {
    std::string text = decimal.digits.substr(0, 1);
    if (decimal.digits.size() > 1) {
        text += "." + decimal.digits.substr(1);
    }
    const std::string power = std::to_string(std::abs(decimal.exponent));
    text += decimal.exponent < 0 ? "E-" : "E+";
    return text + (power.size() < 2 ? "0" : "") + power;
}

template <class Number>
std::string TextOf(Number value, int significant) {
    if (std::isnan(value)) {
        return "NaN";
    }
    if (std::isinf(value)) {
        return value < 0 ? "-Infinity" : "Infinity";
    }
    if (value == 0) {
        return "0";
    }
    const Decimal decimal = TakeApart(value, significant);
    const int decimals = static_cast<int>(decimal.digits.size()) - 1 - decimal.exponent;
    const bool fits = decimal.exponent < significant && decimals <= significant;
    return (decimal.negative ? "-" : "") + (fits ? Fixed(decimal) : Scientific(decimal));
}

}  // namespace

std::string NumberText(double value) {
    return TextOf(value, 15);
}

std::string NumberText(float value) {
    return TextOf(value, 7);
}

void AppendNumber(std::string& text, float value) {
    // Most numbers in tables are whole and short; those need no digits worked out.
    constexpr float kSevenDigits = 9999999;
    if (std::fabs(value) <= kSevenDigits && value == std::trunc(value)) {
        std::array<char, 16> buffer;
        auto* const end =
            std::to_chars(buffer.data(), buffer.data() + buffer.size(), static_cast<int32_t>(value))
                .ptr;
        text.append(buffer.data(), end);
    } else {
        text += TextOf(value, 7);
    }
}

}  // namespace tessarin
