#include "core/Numbers.h"

#include <charconv>
#include <cmath>
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

}  // namespace tessarin
