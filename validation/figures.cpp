#include "validation/figures.h"

#include <array>
#include <charconv>
#include <system_error>

namespace orvane::validation {
namespace {

std::string Written(double value, std::chars_format format, int precision) {
    // Room for the longest number there is, about 310 digits, and its decimals.
    std::array<char, 400> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value, format, precision);
    return error == std::errc() ? std::string(text.data(), end) : "?";
}

} // namespace

std::string Fixed(double value, int decimals) {
    return Written(value, std::chars_format::fixed, decimals);
}

std::string Significant(double value, int digits) {
    return Written(value, std::chars_format::general, digits);
}

std::string Grouped(std::int64_t value) {
    std::string digits = std::to_string(value);
    const std::size_t first = value < 0 ? 1 : 0;
    for (std::size_t at = digits.size(); at > first + 3;)
        digits.insert(at -= 3, ",");
    return digits;
}

} // namespace orvane::validation
