// Numbers as the record prints them, the same in every locale.
#pragma once

#include <cstdint>
#include <string>

namespace orvane::validation {

/// `value` with `decimals` digits after the decimal point: Fixed(0.5, 2) gives "0.50".
std::string Fixed(double value, int decimals);

/// `value` with at most `digits` significant digits, without trailing zeros: Significant(0.00125, 2) gives
/// "0.0013", Significant(2.5e-7, 2) gives "2.5e-07".
std::string Significant(double value, int digits);

/// A whole number in groups of three digits: "1,000,000".
std::string Grouped(std::int64_t value);

} // namespace orvane::validation
