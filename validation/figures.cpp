#include "validation/figures.h"

#include <array>
#include <charconv>
#include <system_error>

namespace orvane::validation {
namespace {

std::string Written(double value, std::chars_format format, int precision) {
    // Enough for the longest double, about 310 digits, and its decimals.
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
    const std::string digits = std::to_string(value);
    std::string grouped;
    for (std::size_t at = 0; at < digits.size(); ++at) {
        const bool isStart = grouped.empty() || grouped == "-";
        if (!isStart && (digits.size() - at) % 3 == 0)
            grouped += ',';
        grouped += digits[at];
    }
    return grouped;
}

} // namespace orvane::validation
