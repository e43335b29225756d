#include "engine/numbers.h"

#include "platform/failure.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <system_error>

namespace orvane {
namespace {

[[noreturn]] void Overflow(const char* routine) {
    throw Failure("A number is outside the range that the program can hold.", failure_number::Overflow,
                  routine);
}

template <class Target>
Target Narrow(std::int64_t value, const char* routine) {
    if (value < std::numeric_limits<Target>::min() || value > std::numeric_limits<Target>::max())
        Overflow(routine);
    return static_cast<Target>(value);
}

template <class Target>
Target Round(double value, const char* routine) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<Target>::min() && rounded <= std::numeric_limits<Target>::max()))
        Overflow(routine);
    return static_cast<Target>(rounded);
}

std::string WithoutWhiteSpace(std::string_view text) {
    std::string rest(text);
    std::erase_if(rest, [](char c) { return c == ' ' || c == '\t' || c == '\n'; });
    return rest;
}

std::optional<int> DigitOf(char c, int base) {
    int digit = base;
    if (c >= '0' && c <= '9')
        digit = c - '0';
    else if (c >= 'A' && c <= 'F')
        digit = c - 'A' + 10;
    else if (c >= 'a' && c <= 'f')
        digit = c - 'a' + 10;
    return digit < base ? std::optional(digit) : std::nullopt;
}

/// The digits behind &H or &O.
double WholeNumber(std::string_view digits, int base) {
    double value = 0;
    for (const char c : digits) {
        const std::optional<int> digit = DigitOf(c, base);
        if (!digit)
            break;
        value = value * base + *digit;
    }
    return value;
}

/// The length of the digits at the start of a text.
std::size_t DigitsAt(std::string_view text) {
    return std::min(text.find_first_not_of("0123456789"), text.size());
}

/// For a number that from_chars cannot hold, written as digits, a point and an exponent: whether it is too
/// large, not too small.
bool IsTooLarge(std::string_view number) {
    const std::size_t mark = std::min(number.find('e'), number.size());
    const std::string_view mantissa = number.substr(0, mark);
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t lead = mantissa.find_first_not_of("0.");
    std::string_view written = number.substr(std::min(mark + 1, number.size()));
    if (written.starts_with('+'))
        written.remove_prefix(1);
    std::int64_t exponent = 0;
    if (std::from_chars(written.data(), written.data() + written.size(), exponent).ec ==
        std::errc::result_out_of_range)
        return written.front() != '-';
    return exponent > static_cast<std::int64_t>(lead) - static_cast<std::int64_t>(point);
}

/// The value of the decimal number at the start of a text; 0 if there is none.
double DecimalValue(std::string text) {
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.erase(0, 1);
    const std::size_t whole = DigitsAt(text);
    std::size_t end = whole;
    if (text.substr(whole, 1) == ".")
        end += 1 + DigitsAt(std::string_view(text).substr(whole + 1));
    if (end == 0)
        return 0;
    if (text.find_first_of("EeDd", end) == end)
        text[end] = 'e'; // from_chars does not know D
    double value = 0;
    const char* const last = text.data() + text.size();
    const auto read = std::from_chars(text.data(), last, value);
    if (read.ec == std::errc::result_out_of_range) {
        const std::string_view number(text.data(), static_cast<std::size_t>(read.ptr - text.data()));
        value = IsTooLarge(number) ? std::numeric_limits<double>::infinity() : 0;
    }
    return negative ? -value : value;
}

} // namespace

double NumericValueOrInfinity(std::string_view text) {
    const std::string number = WithoutWhiteSpace(text);
    if (number.starts_with("&H") || number.starts_with("&h"))
        return WholeNumber(std::string_view(number).substr(2), 16);
    if (number.starts_with("&O") || number.starts_with("&o"))
        return WholeNumber(std::string_view(number).substr(2), 8);
    return DecimalValue(number);
}

double NumericValue(std::string_view text) {
    const double value = NumericValueOrInfinity(text);
    if (std::isinf(value))
        Overflow("NumericValue");
    return value;
}

std::int16_t ToInt16(double value) {
    return Round<std::int16_t>(value, "ToInt16");
}
std::int32_t ToInt32(double value) {
    return Round<std::int32_t>(value, "ToInt32");
}
std::int16_t Add16(std::int16_t a, std::int16_t b) {
    return Narrow<std::int16_t>(std::int64_t{a} + b, "Add16");
}
std::int16_t Subtract16(std::int16_t a, std::int16_t b) {
    return Narrow<std::int16_t>(std::int64_t{a} - b, "Subtract16");
}
std::int16_t Multiply16(std::int16_t a, std::int16_t b) {
    return Narrow<std::int16_t>(std::int64_t{a} * b, "Multiply16");
}
std::int32_t Multiply32(std::int32_t a, std::int32_t b) {
    return Narrow<std::int32_t>(std::int64_t{a} * b, "Multiply32");
}

std::int16_t SampleSizeOf(std::string_view text) {
    const double rounded = std::nearbyint(NumericValueOrInfinity(text));
    constexpr double lowest = std::numeric_limits<std::int16_t>::min();
    constexpr double highest = std::numeric_limits<std::int16_t>::max();
    return rounded >= lowest && rounded <= highest ? static_cast<std::int16_t>(rounded) : std::int16_t{0};
}

bool IsAboveSampleSizes(std::string_view text) {
    return std::nearbyint(NumericValueOrInfinity(text)) > std::numeric_limits<std::int16_t>::max();
}

std::string SevenDigits(float value) {
    // d.dddddde+xx: the significant digits, and where the decimal point belongs.
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                   std::chars_format::scientific, 6)
                         .ptr;
    const std::string_view scientific(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const std::size_t mark = scientific.find('e');
    int exponent = 0;
    const std::size_t sign = scientific[mark + 1] == '+' ? 1 : 0;
    std::from_chars(scientific.data() + mark + 1 + sign, end, exponent);

    std::string digits(1, scientific[0]);
    digits += scientific.substr(2, mark - 2);
    digits.erase(digits.find_last_not_of('0') + 1);
    if (exponent < 0)
        digits.insert(0, "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0'));
    else if (const auto whole = static_cast<std::size_t>(exponent) + 1; whole < digits.size())
        digits.insert(whole, 1, '.');
    else
        digits.append(whole - digits.size(), '0');
    return (value < 0 ? "-" : "") + digits;
}

std::string FourDecimals(float value) {
    // Not by std::to_chars, which rounds a half to the even digit: a half goes away from zero here.
    constexpr int decimals = 4;
    std::string digits = std::to_string(std::llround(static_cast<double>(value) * 10000));
    if (digits.size() <= decimals)
        digits.insert(0, decimals + 1 - digits.size(), '0');
    digits.insert(digits.size() - decimals, 1, '.');
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.back() == '.')
        digits.pop_back();
    return digits;
}

} // namespace orvane
