// Rounding, checked conversions and the reading of numbers from text, for the whole program.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tessarin {

/// The nearest whole number, a tie going to the even one.
double Rounded(double x);

/// The largest whole number not above x.
double Int(double x);

/// `x` as a whole number. The fraction is dropped; values outside the range of int32_t, infinite
/// ones included, give its nearest end; not a number gives 0.
int32_t ToInt32(double x);

/// 1 for true. What is joined of bits needs no branch, as what is joined of conditions does.
constexpr unsigned Bit(bool condition) {
    return condition ? 1U : 0U;
}

/// Reads a decimal number: blanks around it, a sign, a decimal point and an exponent are allowed,
/// nothing else is. Nothing for any other text and for one that is no finite number.
std::optional<double> ParseNumber(std::string_view text);

/// Reads a decimal number and rounds it to a whole one. Nothing when the text is no number or
/// when the number does not fit.
std::optional<int32_t> ParseWholeNumber(std::string_view text);

/// The default text form of a number: up to 15 significant digits (7 for a single), no trailing
/// zeros, a zero before a leading point, and the exponent form, such as 1.5E-20, only for what
/// those digits cannot hold. What is no number reads "NaN", what is infinite "Infinity".
std::string NumberText(double value);
std::string NumberText(float value);

/// Writes it behind `text`.
void AppendNumber(std::string& text, float value);

}  // namespace tessarin
