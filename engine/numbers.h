// Numbers in text, conversions between widths, and arithmetic that does not wrap around. Nothing here depends
// on the locale.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orvane {

/// The numeric value of a text: of its longest start that is a number. Blanks, tabs and line feeds count for
/// nothing, at the start and inside. A number is a sign or none, digits, a point with digits, an exponent
/// behind E or D; or hexadecimal digits behind &H, or octal ones behind &O. A text that does not start with a
/// number has the value 0, and so has a number too small for a float.
/// Throws an Overflow failure for a number beyond the range of a 64-bit float.
double NumericValue(std::string_view text);

/// The same, with infinity of the number's sign in place of the failure.
double NumericValueOrInfinity(std::string_view text);

/// Rounds to nearest, ties to even. Throws an Overflow failure when the result does not fit.
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);

/// 16-bit and 32-bit arithmetic; an Overflow failure when the result does not fit.
std::int16_t Add16(std::int16_t a, std::int16_t b);
std::int16_t Subtract16(std::int16_t a, std::int16_t b);
std::int16_t Multiply16(std::int16_t a, std::int16_t b);
std::int32_t Multiply32(std::int32_t a, std::int32_t b);

/// The sum of slots 1 and up, in 16-bit arithmetic; 0 when there are none. Throws on overflow.
template <class Array>
std::int16_t SumArr(const Array& arr) {
    std::int16_t sum = 0;
    for (std::size_t slot = 1; slot < arr.size(); ++slot)
        sum = Add16(sum, arr[slot]);
    return sum;
}

/// The requested sample size that a text stands for: its numeric value in 16 bits, 0 when it does not fit.
std::int16_t SampleSizeOf(std::string_view text);

/// Whether the text stands for a number above the range of a sample size.
bool IsAboveSampleSizes(std::string_view text);

/// Decimal text of at most 7 significant digits without an exponent: 0.05 gives "0.05", 0 gives "0". `value`
/// is finite.
std::string SevenDigits(float value);

/// The picture "0.####": a digit before the point, up to four behind it, rounded, trailing zeros dropped.
/// `value` is 0 or above and below 100000.
std::string FourDecimals(float value);

} // namespace orvane
