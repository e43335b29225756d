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

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string WithoutWhiteSpace(std::string_view text) {
    std::string rest(text);
    std::erase_if(rest, [](char c) { return c == ' ' || c == '\t' || c == '\n'; });
    return rest;
}

std::optional<int> DigitOf(char c, int base) {
    int digit = base;
    if (IsDigit(c))
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

/// The parts of a decimal number at the start of a text.
class DecimalText {
  public:
    explicit DecimalText(std::string_view text) : text_(text) {
        if (Peek() == '+' || Peek() == '-')
            negative_ = text_[next_++] == '-';
        ReadMantissa();
        if (!mantissa_.empty())
            ReadExponent();
    }

    [[nodiscard]] double Value() const {
        if (mantissa_.empty())
            return 0;
        const std::string number = mantissa_ + "e" + exponent_;
        double value = 0;
        if (std::from_chars(number.data(), number.data() + number.size(), value).ec ==
            std::errc::result_out_of_range)
            value = IsLarge() ? std::numeric_limits<double>::infinity() : 0;
        return negative_ ? -value : value;
    }

  private:
    [[nodiscard]] char Peek(std::size_t ahead = 0) const {
        return next_ + ahead < text_.size() ? text_[next_ + ahead] : '\0';
    }

    void ReadMantissa() {
        while (IsDigit(Peek()))
            mantissa_ += text_[next_++];
        if (Peek() == '.' && (!mantissa_.empty() || IsDigit(Peek(1)))) {
            if (mantissa_.empty())
                mantissa_ = "0";
            pointAt_ = mantissa_.size();
            mantissa_ += text_[next_++];
            while (IsDigit(Peek()))
                mantissa_ += text_[next_++];
        } else {
            pointAt_ = mantissa_.size();
        }
    }

    void ReadExponent() {
        constexpr std::string_view introducers = "EeDd";
        if (Peek() == '\0' || introducers.find(Peek()) == std::string_view::npos)
            return;
        const bool isSigned = Peek(1) == '+' || Peek(1) == '-';
        if (!IsDigit(Peek(isSigned ? 2 : 1)))
            return;
        exponent_ = Peek(1) == '-' ? "-" : "";
        next_ += isSigned ? 2 : 1;
        while (IsDigit(Peek()))
            exponent_ += text_[next_++];
    }

    /// For a number outside the range of a float: whether it is too large, not too small.
    [[nodiscard]] bool IsLarge() const {
        const std::size_t lead = mantissa_.find_first_not_of("0.");
        if (lead == std::string::npos)
            return false;
        std::int32_t exponent = 0;
        const auto read = std::from_chars(exponent_.data(), exponent_.data() + exponent_.size(), exponent);
        const bool countsMoreThanTheDigits = read.ec == std::errc::result_out_of_range;
        if (countsMoreThanTheDigits)
            return exponent_.front() != '-';
        return static_cast<std::int64_t>(pointAt_) - static_cast<std::int64_t>(lead) + exponent > 0;
    }

    std::string_view text_;
    std::size_t next_ = 0;
    bool negative_ = false;
    std::string mantissa_; ///< digits and at most one point; empty when the text is no number
    std::size_t pointAt_ = 0;
    std::string exponent_ = "0";
};

} // namespace

double NumericValueOrInfinity(std::string_view text) {
    const std::string number = WithoutWhiteSpace(text);
    const std::string_view view = number;
    if (view.size() >= 2 && view[0] == '&') {
        if (view[1] == 'H' || view[1] == 'h')
            return WholeNumber(view.substr(2), 16);
        if (view[1] == 'O' || view[1] == 'o')
            return WholeNumber(view.substr(2), 8);
    }
    return DecimalText(view).Value();
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
    if (value == 0)
        return "0";
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
