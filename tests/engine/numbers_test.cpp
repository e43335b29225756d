#include "engine/numbers.h"

#include "fakes/environment.h"
#include "platform/failure.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <vector>

namespace orvane {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

TEST(NumericValue, IsThatOfTheLongestBeginningThatIsANumber) {
    const struct {
        const char* kind;
        double value;
        std::vector<std::string> texts;
    } rows[] = {
        {"no number", 0, {"", "abc", "--5", ".", "-.", "inf", "nan", "x1"}},
        {"no number behind the mark of its base", 0, {"&o8", "&H", "&", "&X1"}},
        {"another notation behind the first digit", 0, {"0,05", "0x10"}},
        {"zero", 0, {"0e999999", "-0.00e400", "0e99999999999999999999"}},
        {"too small", 0, {"1e-400", "-1e-400", "1e-99999999999999999999", "0.1e-9223372036854775808"}},
        {"too small with many digits", 0, {"0." + std::string(700, '0') + "1e300"}},
        {"an exponent without digits", 1, {"1e", "1e+"}},
        {"a point at the end", 5, {"5.", "5.x"}},
        {"other characters behind it", 12, {"12abc", "12.0.3", "12."}},
        {"a letter of a base without its mark", 1, {"1H5", "1O5"}},
        {"not the blanks that are ignored", 1, {"1\r2", "1\u00a02"}},
        {"blanks inside", 42, {"4 2", " \t\n4\n2", "0.042 e + 3"}},
        {"leading zeros", 1, {std::string(100'000, '0') + "1", "0.01e2"}},
        {"a sign", 12, {"+12"}},
        {"a negative number", -5, {"-5", "- 5", "-5-5", "-.5e1", "-5d0"}},
        {"a fraction", 0.5, {".5", "+.5", "0.5"}},
        {"an exponent", 0.5, {"5e-1", "50D-2x", "0.05D1"}},
        {"a large exponent", 1e10, {"1e10", "1d+010"}},
        {"hexadecimal digits", 44510, {"&HADDE", "&hadde", "&hAd dEg"}},
        {"the first and the last digits", 2319, {"&H90F", "&h90f/"}},
        {"four hexadecimal digits are never negative", 65535, {"&HFFFF"}},
        {"octal digits", 12, {"&O14", "&o148"}},
    };
    for (const auto& row : rows)
        for (const std::string& text : row.texts)
            EXPECT_EQ(NumericValue(text), row.value) << row.kind << ": " << text.substr(0, 30);
}

TEST(NumericValue, BeyondTheRangeIsAFailureOrInfinity) {
    for (const std::string text :
         {"1e400", "123456e305", "1e99999999999999999999", "123e9223372036854775807"})
        EXPECT_EQ(NumericValueOrInfinity(text), Infinity) << text;
    EXPECT_EQ(NumericValueOrInfinity(std::string(400, '9') + ".0"), Infinity);
    EXPECT_EQ(NumericValueOrInfinity("&H" + std::string(400, 'F')), Infinity);
    EXPECT_EQ(NumericValueOrInfinity("0.01e400"), Infinity);
    EXPECT_EQ(NumericValueOrInfinity("-0.01e+400"), -Infinity);
    EXPECT_THROW(NumericValue("1e400"), Failure);
}

TEST(Numbers, DoNotFollowADecimalCommaOfTheDesktop) {
    const fakes::SetVariable locales("LOCPATH", DECIMAL_COMMA);
    const std::string before = std::setlocale(LC_ALL, nullptr);
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
    const double read = NumericValue("0.25");
    const std::string seven = SevenDigits(0.25F);
    const std::string four = FourDecimals(0.25F);
    ASSERT_NE(std::setlocale(LC_ALL, before.c_str()), nullptr);
    EXPECT_EQ(read, 0.25);
    EXPECT_EQ(seven, "0.25");
    EXPECT_EQ(four, "0.25");
}

TEST(Numbers, AreRoundedToNearestWithTiesToEven) {
    const struct {
        double value;
        int whole;
    } rows[] = {{0.5, 0},  {-0.5, 0}, {1.5, 2},   {1.51, 2},           {2.5, 2},
                {2.51, 3}, {3.5, 4},  {-2.5, -2}, {32767.4999, 32767}, {-32768.5, -32768}};
    for (const auto& row : rows)
        EXPECT_EQ(ToInt16(row.value), row.whole) << row.value;
    EXPECT_EQ(ToInt32(2147483646.5), 2147483646);
}

TEST(Numbers, FillTheirWidth) {
    EXPECT_EQ(Add16(32766, 1), 32767);
    EXPECT_EQ(Subtract16(-32767, 1), -32768);
    EXPECT_EQ(Multiply32(146540, 14654), 2147397160);
}

TEST(Numbers, BeyondTheirWidthAreFailures) {
    EXPECT_THROW(ToInt16(32767.5), Failure);
    EXPECT_THROW(ToInt16(-32769), Failure);
    EXPECT_THROW(ToInt16(-Infinity), Failure);
    EXPECT_THROW(ToInt32(2147483647.5), Failure);
    EXPECT_THROW(Add16(32767, 1), Failure);
    EXPECT_THROW(Subtract16(-32768, 1), Failure);
    EXPECT_THROW(Multiply16(256, 128), Failure);
    EXPECT_THROW(Multiply32(65536, 32768), Failure);
}

TEST(SampleSize, OfATextThatDoesNotFitIsZero) {
    EXPECT_EQ(SampleSizeOf("-32768"), -32768);
    EXPECT_EQ(SampleSizeOf("-32769"), 0);
    EXPECT_EQ(SampleSizeOf("32767.4"), 32767);
    EXPECT_FALSE(IsAboveSampleSizes("32767.4"));
    for (const char* text : {"32767.5", "32768", "1e999"}) {
        EXPECT_EQ(SampleSizeOf(text), 0) << text;
        EXPECT_TRUE(IsAboveSampleSizes(text)) << text;
    }
}

TEST(SevenDigits, NeedsNoExponent) {
    EXPECT_EQ(SevenDigits(0), "0");
    EXPECT_EQ(SevenDigits(-0.0F), "0");
    EXPECT_EQ(SevenDigits(0.398942280F), "0.3989423");
    EXPECT_EQ(SevenDigits(-1234.5678F), "-1234.568");
    EXPECT_EQ(SevenDigits(1.5F), "1.5");
    EXPECT_EQ(SevenDigits(12), "12");
    EXPECT_EQ(SevenDigits(1e-10F), "0.0000000001");
    EXPECT_EQ(SevenDigits(std::numeric_limits<float>::max()), "3402823" + std::string(32, '0'));
}

TEST(FourDecimals, RoundsAHalfAwayFromZero) {
    EXPECT_EQ(FourDecimals(0.03125F), "0.0313");
    EXPECT_EQ(FourDecimals(0.39894228F), "0.3989");
    EXPECT_EQ(FourDecimals(0.00996F), "0.01");
    EXPECT_EQ(FourDecimals(0.00004F), "0");
}

} // namespace
} // namespace orvane
