// Numbers in text, conversions between widths, and arithmetic with overflow checks. Nothing here depends on
// the locale.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orvane {

/// The numeric value of a text: the value of its longest beginning that is a number. Blanks, tabs and line
/// feeds are ignored everywhere. A number is an optional sign, digits, an optional decimal point with digits,
/// and an optional exponent after E or D; or hexadecimal digits after &H; or octal digits after &O. A text
/// that does not begin with a number has the value 0, and so has a number too small for a 64-bit float.
/// Throws an Overflow failure for a number beyond the range of a 64-bit float.
double NumericValue(std::string_view text);

/// The same, but a number beyond the range is infinity with the number's sign.
double NumericValueOrInfinity(std::string_view text);

/// Rounds to nearest, ties to even. Throws an Overflow failure when the result does not fit.
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);

/// 16-bit and 32-bit arithmetic; an Overflow failure when the result does not fit.
std::int16_t Add16(std::int16_t a, std::int16_t b);
std::int16_t Subtract16(std::int16_t a, std::int16_t b);
std::int16_t Multiply16(std::int16_t a, std::int16_t b);
std::int32_t Multiply32(std::int32_t a, std::int32_t b);

/// The sum of slots 1 and up, in 16-bit arithmetic; 0 when there are none. Throws an Overflow failure.
template <class Array>
std::int16_t SumArr(const Array& arr) {
    std::int16_t sum = 0;
    for (std::size_t slot = 1; slot < arr.size(); ++slot)
        sum = Add16(sum, arr[slot]);
    return sum;
}

/// The sample size that a text gives: its numeric value rounded to 16 bits, 0 when it does not fit.
std::int16_t SampleSizeOf(std::string_view text);

/// Whether the numeric value of the text is above the largest sample size.
bool IsAboveSampleSizes(std::string_view text);

/// Decimal text of at most 7 significant digits without an exponent: 0.05 gives "0.05", 0 gives "0".
/// Requires: value is finite.
std::string SevenDigits(float value);

/// The format "0.####": at least one digit before the point, up to four after it, rounded, without trailing
/// zeros.
/// Requires: value at least 0 and below 100000.
std::string FourDecimals(float value);

} // namespace orvane
