#include "engine/subject_codes.h"

#include "engine/random_source.h"
#include "fakes/desktop.h"
#include "platform/failure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace orvane {
namespace {

using fakes::FakeDesktop;
using fakes::SetEntropy;
using fakes::UniformFor;

ListSettings Settings(std::int32_t alphaNum, std::int32_t seqRandom, std::int16_t length) {
    ListSettings settings;
    settings.CodeAlphaNum = alphaNum;
    settings.CodeSeqRandom = seqRandom;
    settings.CodeLength = length;
    return settings;
}

TEST(SubjectCodes, SequentialCodesCountInTheirAlphabet) {
    const struct {
        std::int32_t alphaNum;
        std::int16_t length;
        std::map<std::size_t, std::string> codes; ///< by position
    } rows[] = {
        {Numeric, 3, {{1, "001"}, {7, "007"}, {12, "012"}, {123, "123"}}},
        {Alpha, 3, {{1, "AAB"}, {25, "AAZ"}, {26, "ABA"}, {27, "ABB"}, {702, "BBA"}}},
        {Mixed, 3, {{1, "001"}, {9, "009"}, {10, "00A"}, {35, "00Z"}, {36, "010"}, {1295, "0ZZ"}}},
        {Mixed, 4, {{36, "0010"}}},
        {Numeric, 10, {{1295, "0000001295"}}},
    };
    FakeDesktop desktop;
    for (const auto& row : rows) {
        const ListSettings settings = Settings(row.alphaNum, Sequential, row.length);
        ListResults results;
        results.BlockSizes = {
            0, 900, static_cast<std::int16_t>(row.alphaNum == Numeric && row.length == 3 ? 99 : 395)};
        CreateCodeArr(settings, results, desktop.random, desktop.clock);
        for (const auto& [position, code] : row.codes)
            EXPECT_EQ(results.CodeArr.at(position - 1), code);
        EXPECT_EQ(results.CodeArr.size(), static_cast<std::size_t>(900 + results.BlockSizes[2]));
    }
    EXPECT_TRUE(desktop.random.Reseeds.empty());
}

TEST(SubjectCodes, RandomCodesAreDrawnCharacterByCharacterBehindAReseed) {
    FakeDesktop desktop;
    desktop.random.List({UniformFor('A', 'Z', 'Q'), 0, UniformFor('A', 'Z', 'Z')});
    EXPECT_EQ(MakeRandomCode(Alpha, 3, desktop.random, desktop.clock), "QAZ");
    desktop.random.List({UniformFor('0', '9', '7'), UniformFor('0', '9', '9')});
    EXPECT_EQ(MakeRandomCode(Numeric, 2, desktop.random, desktop.clock), "79");
    desktop.random.List({UniformFor(0, 35, 10), UniformFor(0, 35, 9), UniformFor(0, 35, 35)});
    EXPECT_EQ(MakeRandomCode(Mixed, 3, desktop.random, desktop.clock), "A9Z");
    EXPECT_EQ(desktop.random.Reseeds, std::vector<float>(3, desktop.clock.Seconds));
}

TEST(SubjectCodes, ACodeThatIsTakenIsDrawnAgainWithItsReseed) {
    FakeDesktop desktop;
    const float seven = UniformFor('0', '9', '7');
    const float eight = UniformFor('0', '9', '8');
    desktop.random.List({seven, seven, seven, eight});
    ListResults results;
    results.BlockSizes = {0, 2};
    CreateCodeArr(Settings(Numeric, Random, 1), results, desktop.random, desktop.clock);
    EXPECT_EQ(results.CodeArr, (std::vector<std::string>{"7", "8"}));
    EXPECT_EQ(desktop.random.ReseededAt, (std::vector<std::size_t>{0, 1, 2, 3}));

    fakes::ListedSource stuck;
    EXPECT_THROW(CreateCodeArr(Settings(Numeric, Random, 1), results, stuck, desktop.clock), Failure);
}

TEST(SubjectCodes, EveryCodeOfAShortLengthCanBeUsed) {
    FakeDesktop desktop;
    SetEntropy entropy;
    RandomSource source(entropy);
    for (const auto& [alphaNum, length, available] :
         {std::tuple{Numeric, 2, 100}, std::tuple{Alpha, 2, 676}, std::tuple{Mixed, 1, 36}}) {
        const ListSettings settings = Settings(alphaNum, Random, static_cast<std::int16_t>(length));
        ListResults results;
        results.BlockSizes = {0, static_cast<std::int16_t>(available)};
        CreateCodeArr(settings, results, source, desktop.clock);
        const std::set<std::string> different(results.CodeArr.begin(), results.CodeArr.end());
        EXPECT_EQ(different.size(), static_cast<std::size_t>(available));
        for (const std::string& code : different)
            EXPECT_EQ(code.size(), static_cast<std::size_t>(length));
    }
}

TEST(SubjectCodes, AListThatNeedsMoreCodesThanThereAreIsRefusedAtOnce) {
    const struct {
        std::int32_t alphaNum;
        std::int32_t seqRandom;
        std::int16_t length;
        std::int32_t available;
    } rows[] = {{Numeric, Sequential, 3, 999}, {Numeric, Random, 3, 1000},  {Alpha, Sequential, 2, 675},
                {Alpha, Random, 2, 676},       {Mixed, Sequential, 1, 35},  {Mixed, Random, 2, 1296},
                {Mixed, Random, 10, 32768},    {Numeric, Sequential, 0, 0}, {Mixed, Random, 0, 0}};
    FakeDesktop desktop;
    for (const auto& row : rows) {
        EXPECT_EQ(CodesAvailable(row.alphaNum, row.seqRandom, row.length), row.available);
        if (row.available >= LargestList)
            continue;
        ListResults results;
        results.CodeArr = {"earlier"};
        results.BlockSizes = {0, static_cast<std::int16_t>(row.available + 1)};
        EXPECT_THROW(CreateCodeArr(Settings(row.alphaNum, row.seqRandom, row.length), results, desktop.random,
                                   desktop.clock),
                     Failure);
        EXPECT_EQ(results.CodeArr, std::vector<std::string>{"earlier"});
    }
    EXPECT_EQ(desktop.random.Consumed, 0U);
    ListResults tooLarge;
    tooLarge.BlockSizes = {0, 32767, 1};
    EXPECT_THROW(CreateCodeArr(Settings(Mixed, Random, 10), tooLarge, desktop.random, desktop.clock),
                 Failure);
}

TEST(SubjectCodes, TheEndsOfAnAlphabetAreHalfAsFrequent) {
    FakeDesktop desktop;
    SetEntropy entropy;
    RandomSource source(entropy);
    for (const auto& [alphaNum, characters] :
         {std::pair{Alpha, 26}, std::pair{Numeric, 10}, std::pair{Mixed, 36}}) {
        std::map<char, double> counts;
        const int draws = 200'000;
        for (int i = 0; i < draws / 10; ++i)
            for (const char c : MakeRandomCode(alphaNum, 10, source, desktop.clock))
                ++counts[c];
        ASSERT_EQ(counts.size(), static_cast<std::size_t>(characters));
        double chiSquare = 0;
        for (const auto& [character, count] : counts) {
            const bool isEnd = character == counts.begin()->first || character == counts.rbegin()->first;
            const double expected = draws * (isEnd ? 0.5 : 1.0) / (characters - 1);
            chiSquare += (count - expected) * (count - expected) / expected;
        }
        const double freedom = characters - 1;
        EXPECT_LT(std::abs(chiSquare - freedom), 7 * std::sqrt(2 * freedom)) << characters;
    }
}

} // namespace
} // namespace orvane
