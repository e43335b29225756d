#include "engine/numbers.h"

#include "engine/text.h"
#include "fakes/faults.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <sstream>

namespace orvane {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

TEST(Numbers, TheLongestStartOfATextThatIsANumberCounts) {
    const std::vector<std::pair<double, std::vector<std::string>>> rows = {
        {0, {"", "abc", "--5", ".", "-.", "0,05", "&o8", "&H", "&", "&X1", "inf", "nan", "1e-400"}},
        {0, {"0e999999", "0x10", "1e-99999999999999999999", "0.1e-9223372036854775808", "-1e-400"}},
        {0, {"0." + std::string(700, '0') + "1e300"}},
        {1, {"1e", "1e+", "&h1g", "1\r2", "1\u00a02", std::string(100'000, '0') + "1", "0.01e2"}},
        {12, {"12abc", "1 2", "12.", "12e0", "12.0.3", "+12", "&HC", "&O14"}},
        {-5, {"-5", "- 5", "-5-5", "-.5e1", "-5d0"}},
        {0.5, {".5", "+.5", "0.5", "5e-1", "50D-2x"}},
        {42, {" \t\n4\n2", "4.2E1", "0.042 e + 3"}},
        {1e10, {"1e10", "1d+010"}},
        {44510, {"&HADDE", "&hadde"}},
        {65535, {"&HFFFF", "&hfFf f"}},
        {9007199254740992.0, {"9007199254740993"}},
        {Infinity, {"1e400", "1e99999999999999999999", "123456e305", "123e9223372036854775807"}},
        {Infinity, {std::string(400, '9') + ".0", "&H" + std::string(400, 'F')}},
        {-Infinity, {"-1e400", "-0.01e9999999999"}},
    };
    for (const auto& [value, texts] : rows)
        for (const std::string& text : texts) {
            SCOPED_TRACE(text.substr(0, 30));
            EXPECT_EQ(NumericValueOrInfinity(text), value);
            double finite = 0;
            const auto failure = fakes::FailureOf([&, t = text] { finite = NumericValue(t); });
            EXPECT_EQ(failure.Number, std::isinf(value) ? failure_number::Overflow : 0);
            EXPECT_EQ(finite, std::isinf(value) ? 0 : value);
        }
}

TEST(Numbers, ADecimalCommaInTheDesktopsLocaleChangesNothing) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    ::setenv("LOCPATH", DECIMAL_COMMA, 1);
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
    EXPECT_EQ(NumericValue("0.25"), 0.25);
    EXPECT_EQ(SevenDigits(0.25F) + FourDecimals(0.25F), "0.250.25");
    ASSERT_NE(std::setlocale(LC_ALL, before.c_str()), nullptr);
}

TEST(Numbers, ConversionsRoundTiesToEvenAndSumsKeepTheirWidth) {
    const std::vector<std::pair<int, std::vector<double>>> rounded = {
        {2, {2.5, 1.5, 1.51}}, {3, {2.51}},           {4, {3.5}},          {-2, {-2.5}},
        {0, {0.5, -0.5}},      {32767, {32767.4999}}, {-32768, {-32768.5}}};
    for (const auto& [whole, values] : rounded)
        for (const double value : values)
            EXPECT_EQ(ToInt16(value), whole) << value;
    EXPECT_EQ(ToInt32(2147483646.5), 2147483646);
    EXPECT_EQ(Add16(32766, 1), 32767);
    EXPECT_EQ(Subtract16(-32767, 1), -32768);
    EXPECT_EQ(Multiply16(-256, 128), -32768);
    EXPECT_EQ(Multiply32(146540, 14654), 2147397160);
    EXPECT_EQ(SumArr(std::vector<std::int16_t>{9, 4, 4}), 8) << "slot 0 is no block";
    const std::vector<std::function<void()>> tooLarge = {
        [] { ToInt16(32767.5); },      [] { ToInt16(-32769); },      [] { ToInt32(2147483647.5); },
        [] { ToInt16(Infinity); },     [] { ToInt16(-Infinity); },   [] { Add16(32767, 1); },
        [] { Subtract16(-32768, 1); }, [] { Multiply16(256, 128); }, [] { Multiply32(65536, 32768); }};
    for (std::size_t row = 0; row < tooLarge.size(); ++row)
        EXPECT_EQ(fakes::FailureOf(tooLarge[row]).Number, failure_number::Overflow) << row;
}

TEST(Numbers, ASampleSizeThatDoesNotFitIsNotGiven) {
    const std::vector<std::pair<std::string, int>> rows = {
        {"60", 60},     {"6 0abc", 60}, {"0.5", 0},         {"-32769", 0},    {"-1e999", 0},
        {"0.6", 1},     {"2.5", 2},     {"-32768", -32768}, {"32767", 32767}, {"32767.4", 32767},
        {"32767.5", 0}, {"32768", 0},   {"1e999", 0}};
    for (const auto& [text, size] : rows) {
        EXPECT_EQ(SampleSizeOf(text), size) << text;
        EXPECT_EQ(IsAboveSampleSizes(text), text == "32767.5" || text == "32768" || text == "1e999") << text;
    }
}

TEST(Numbers, AreShownByTheirPictures) {
    std::istringstream rows(
        "0 0 0  1 1 1  20 20 20  0.05 0.05 0.05  0.31069 0.31069 0.3107  0.398942280 0.3989423 0.3989 "
        "0.00004 0.00004 0  0.03125 0.03125 0.0313  0.00996 0.00996 0.01  12.5 12.5 12.5");
    std::string seven;
    std::string four;
    for (float value = 0; rows >> value >> seven >> four;)
        EXPECT_EQ(SevenDigits(value) + " " + FourDecimals(value), seven + " " + four);
    EXPECT_EQ(seven, "12.5") << "all rows were read";
    EXPECT_EQ(SevenDigits(std::numeric_limits<float>::max()), "3402823" + std::string(32, '0'));
    EXPECT_EQ(SevenDigits(-1234.5678F), "-1234.568");
    EXPECT_EQ(SevenDigits(-0.0F) + SevenDigits(1e-10F), "00.0000000001");
    EXPECT_EQ(CharacterCount("a\u00e4\u20ac\U0001F600"), 4U);
}

} // namespace
} // namespace orvane
