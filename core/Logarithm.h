// A logarithm that the compiler can vectorise, for the scales.
#pragma once

#include <bit>
#include <cstdint>

namespace tessarin {

/// log10(x) within 0.61 units in the last place; exact for the powers of ten up to 1e22, and never
/// falling from one single to the next. It has no branch and no table, so that a loop over it
/// becomes vector code that gives the same bits as one call.
/// REQUIRES: x is positive, finite and normal; any other x gives some number without meaning.
inline double Kymmenlogaritmi(double x) {
    // x = 2^e * m with m in [sqrt(1/2), sqrt(2)).
    constexpr uint64_t kSqrtHalf = 0x3fe6a09e667f3bcdULL;
    constexpr uint64_t kBias = 1023;
    const auto bits = std::bit_cast<uint64_t>(x);
    const uint64_t exponent = (bits - kSqrtHalf + (kBias << 52U)) >> 52U;
    // 2^52 + exponent as a double, by its bits; then without 2^52 and the bias.
    const double e = std::bit_cast<double>(exponent | 0x4330000000000000ULL) -
                     (4503599627370496.0 + static_cast<double>(kBias));
    const auto m = std::bit_cast<double>(bits - ((exponent - kBias) << 52U));

    // log(1 + f) = f - f^2/2 + s * (f^2/2 + R), s = f / (2 + f), with the minimax polynomial for R
    // that fdlibm publishes.
    const double f = m - 1.0;
    const double s = f / (2.0 + f);
    const double z = s * s;
    const double w = z * z;
    const double even = w * (3.999999999940941908e-01 +
                             w * (2.222219843214978396e-01 + w * 1.531383769920937332e-01));
    const double odd = z * (6.666666666666735130e-01 +
                            w * (2.857142874366239149e-01 +
                                 w * (1.818357216161805012e-01 + w * 1.479819860511658591e-01)));
    const double half = 0.5 * f * f;

    // The natural logarithm in a high part of 32 bits and a low part, times 1/ln(10) likewise, so
    // that nothing is lost before the last sum.
    const auto high =
        std::bit_cast<double>(std::bit_cast<uint64_t>(f - half) & 0xffffffff00000000ULL);
    const double low = (f - high) - half + s * (half + (even + odd));
    constexpr double kInvLn10High = 4.34294481878168880939e-01;
    constexpr double kInvLn10Low = 2.50829467116452752298e-11;
    constexpr double kLog2High = 3.01029995663611771306e-01;
    constexpr double kLog2Low = 3.69423907715893078616e-13;
    const double highPart = high * kInvLn10High;
    const double whole = e * kLog2High;
    const double lowPart = e * kLog2Low + (low + high) * kInvLn10Low + low * kInvLn10High;
    const double sum = whole + highPart;
    return (lowPart + ((whole - sum) + highPart)) + sum;
}

}  // namespace tessarin
