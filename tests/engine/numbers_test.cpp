#include "engine/numbers.h"

#include "engine/text.h"
#include "platform/failure.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace orvane {
namespace {

TEST(Numbers, TheLongestStartOfATextThatIsANumberCounts) {
    const struct {
        std::string text;
        double value;
    } rows[] = {
        {"", 0},
        {"abc", 0},
        {"12abc", 12},
        {"1 2", 12},
        {" \t\n4\n2", 42},
        {"-5", -5},
        {"+7", 7},
        {"- 5", -5},
        {"--5", 0},
        {".5", 0.5},
        {"5.", 5},
        {".", 0},
        {"-.", 0},
        {"0,05", 0},
        {"1.2.3", 1.2},
        {"1e3", 1000},
        {"1D-2x", 0.01},
        {"1e", 1},
        {"1e+", 1},
        {"1 E + 2", 100},
        {"2d2", 200},
        {"&HFFFF", 65535},
        {"&h1g", 1},
        {"&hfFa", 4090},
        {"&O17", 15},
        {"&o8", 0},
        {"&H", 0},
        {"&", 0},
        {"&X1", 0},
        {"inf", 0},
        {"nan", 0},
        {"1e-400", 0},
        {"0e999999", 0},
        {"1\r2", 1},
        {"1\u00a02", 1},
        {"0x10", 0},
        {"1e-99999999999999999999", 0},
        {"0.1e-9223372036854775808", 0},
        {"0.0000001e10", 1000},
        {"9007199254740993", 9007199254740992.0},
    };
    for (const auto& row : rows)
        EXPECT_EQ(NumericValue(row.text), row.value) << row.text;
    EXPECT_EQ(NumericValue(std::string(100'000, '0') + "1"), 1);
    EXPECT_EQ(NumericValue("0." + std::string(700, '0') + "1e300"), 0);
}

TEST(Numbers, ADecimalCommaInTheDesktopsLocaleChangesNothing) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    ::setenv("LOCPATH", DECIMAL_COMMA, 1);
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    EXPECT_EQ(NumericValue("0.25"), 0.25);
    EXPECT_EQ(NumericValue("0,25"), 0);
    EXPECT_EQ(SevenDigits(0.25F), "0.25");
    EXPECT_EQ(FourDecimals(0.25F), "0.25");
    ASSERT_NE(std::setlocale(LC_ALL, before.c_str()), nullptr);
}

TEST(Numbers, ANumberBeyondAnyFloatIsAFailureAndKeepsItsSign) {
    for (const std::string text :
         {"1e400", "-1e400", "1e99999999999999999999", "123456e305", "123e9223372036854775807"}) {
        EXPECT_THROW(NumericValue(text), Failure) << text;
        EXPECT_EQ(NumericValueOrInfinity(text) < 0, text[0] == '-') << text;
        EXPECT_TRUE(std::isinf(NumericValueOrInfinity(text))) << text;
    }
    EXPECT_TRUE(std::isinf(NumericValueOrInfinity("&H" + std::string(400, 'F'))));
}

TEST(Numbers, ConversionRoundsTiesToEvenAndRefusesWhatDoesNotFit) {
    const struct {
        double value;
        std::int16_t rounded;
    } rows[] = {
        {2.5, 2},          {3.5, 4}, {-2.5, -2}, {0.5, 0}, {1.5, 2}, {2.51, 3}, {32767.5 - 1e-9, 32767},
        {-32768.5, -32768}};
    for (const auto& row : rows)
        EXPECT_EQ(ToInt16(row.value), row.rounded) << row.value;
    EXPECT_EQ(ToInt32(2147483646.5), 2147483646);

    const double infinity = std::numeric_limits<double>::infinity();
    const std::vector<std::function<void()>> tooLarge = {[] { ToInt16(32767.5); },
                                                         [] { ToInt16(-32769); },
                                                         [] { ToInt32(2147483647.5); },
                                                         [=] { ToInt16(infinity); },
                                                         [] { Add16(32767, 1); },
                                                         [] { Subtract16(-32768, 1); },
                                                         [] { Multiply16(256, 128); },
                                                         [] { Multiply32(65536, 32768); },
                                                         [] {
                                                             SumArr(std::vector<std::int16_t>{0, 32767, 1});
                                                         }};
    for (const auto& step : tooLarge) {
        try {
            step();
            ADD_FAILURE() << "no failure";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number, failure_number::Overflow);
        }
    }
    EXPECT_EQ(Multiply32(146540, 14654), 2147397160);
    EXPECT_EQ(SumArr(std::vector<std::int16_t>{9, 4, 4}), 8) << "slot 0 is no block";
    EXPECT_EQ(SumArr(std::vector<std::int16_t>{9}), 0);
}

TEST(Numbers, ASampleSizeThatDoesNotFitIsNotGiven) {
    const struct {
        std::string text;
        std::int16_t size;
        bool above;
    } rows[] = {{"60", 60, false},        {"0.4", 0, false},  {"0.6", 1, false},       {"2.5", 2, false},
                {"12abc", 12, false},     {"-5", -5, false},  {"32767", 32767, false}, {"32767.5", 0, true},
                {"32768", 0, true},       {"1e999", 0, true}, {"-1e999", 0, false},    {"-40000", 0, false},
                {"32767.4", 32767, false}};
    for (const auto& row : rows) {
        EXPECT_EQ(SampleSizeOf(row.text), row.size) << row.text;
        EXPECT_EQ(IsAboveSampleSizes(row.text), row.above) << row.text;
    }
}

TEST(Numbers, NumbersAreShownByTheirPictures) {
    const struct {
        float value;
        std::string seven;
        std::string four;
    } rows[] = {{0.05F, "0.05", "0.05"},
                {0, "0", "0"},
                {0.31069F, "0.31069", "0.3107"},
                {1, "1", "1"},
                {0.3F, "0.3", "0.3"},
                {0.398942280F, "0.3989423", "0.3989"},
                {0.00004F, "0.00004", "0"},
                {0.1F, "0.1", "0.1"},
                {0.03125F, "0.03125", "0.0313"},
                {0.00996F, "0.00996", "0.01"}};
    for (const auto& row : rows) {
        EXPECT_EQ(SevenDigits(row.value), row.seven);
        EXPECT_EQ(FourDecimals(row.value), row.four);
    }
}

TEST(Numbers, SevenDigitsNeedNoExponent) {
    EXPECT_EQ(SevenDigits(std::numeric_limits<float>::max()), "3402823" + std::string(32, '0'));
    EXPECT_EQ(SevenDigits(-1234.5678F), "-1234.568");
    EXPECT_EQ(SevenDigits(-0.0F), "0");
    EXPECT_EQ(SevenDigits(1e-10F), "0.0000000001");
    for (const float value : {0.1F, 3.141593F, 123456.7F, 2.5e-7F, 8e12F})
        EXPECT_EQ(static_cast<float>(NumericValue(SevenDigits(value))), value);
}

TEST(Text, CharactersAreCountedNotBytes) {
    EXPECT_EQ(CharacterCount(""), 0U);
    EXPECT_EQ(CharacterCount("a\u00e4\u20ac\U0001F600"), 4U);
}

} // namespace
} // namespace orvane
