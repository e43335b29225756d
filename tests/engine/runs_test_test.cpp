#include "engine/runs_test.h"

#include "fakes/desktop.h"
#include "platform/failure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

namespace orvane {
namespace {

using fakes::FakeDesktop;
using fakes::MemoryGrid;

std::vector<std::int16_t> Numbers(const std::string& digits) {
    std::vector<std::int16_t> numbers;
    for (const char c : digits)
        numbers.push_back(static_cast<std::int16_t>(c - '0'));
    return numbers;
}

TEST(RunsTest, GivesThePublishedFigures) {
    const struct {
        std::string block;
        std::int32_t n0;
        std::int32_t n1;
        std::int16_t runs;
        double z;
    } rows[] = {
        {"1110010101110101", 6, 10, 11, 1.386750},
        {"1111122222233333333", 11, 8, 2, -4.007095978613213},
        {"0001011001100110001011100", 14, 11, 13, -0.1327477},
        {"1221", 2, 2, 3, 0},
        {"1122", 2, 2, 2, -1.2247449},
        {"1212", 2, 2, 4, 1.2247449},
    };
    FakeDesktop desktop;
    for (const auto& row : rows) {
        const std::vector<std::int16_t> block = Numbers(row.block);
        const RunsCounts counts = CountRuns(block);
        EXPECT_EQ(counts.n0, row.n0) << row.block;
        EXPECT_EQ(counts.n1, row.n1) << row.block;
        EXPECT_EQ(counts.runs, row.runs) << row.block;
        EXPECT_NEAR(RunsStatistic(counts), row.z, 1e-6) << row.block;
        const double density = std::exp(-row.z * row.z / 2) / std::sqrt(2 * std::acos(-1.0));
        EXPECT_NEAR(GetRandomness(block, desktop.messages).PValue, density, density * 1e-5) << row.block;
    }
}

TEST(RunsTest, GivesThePValuesOfSmallBlocks) {
    const struct {
        std::string block;
        float p;
    } rows[] = {{"1221", 0.3989423F},       {"1122", 0.1884470F},
                {"1212", 0.1884470F},       {"1111122222", 0.0109006F},
                {"1212121212", 0.0109006F}, {"1122112122", 0.3989423F},
                {"112", 0.3107F},           {"121", 0.1468F}};
    FakeDesktop desktop;
    for (const auto& row : rows)
        EXPECT_NEAR(GetRandomness(Numbers(row.block), desktop.messages).PValue, row.p, 5e-5F) << row.block;
}

TEST(RunsTest, ExpectedRunsAndStatisticAreStoredAs32BitFloats) {
    EXPECT_EQ(RunsPValue(RunsStatistic({1, 2, 2})), 0.310696602F);
    EXPECT_EQ(RunsPValue(RunsStatistic({1, 4, 3})), 0.285854578F);
}

TEST(RunsTest, AFailureOfAnotherKindShowsNoMessage) {
    FakeDesktop desktop;
    std::vector<std::int16_t> tooManyRuns(40'000);
    for (std::size_t i = 0; i < tooManyRuns.size(); ++i)
        tooManyRuns[i] = static_cast<std::int16_t>(1 + i % 2);
    EXPECT_FALSE(GetRandomness(tooManyRuns, desktop.messages).Computed);
    EXPECT_FALSE(GetRandomness({}, desktop.messages).Computed);
    EXPECT_EQ(desktop.messages.Take(), "Insufficient memory to perform statistics") << "of the empty block";
}

TEST(RunsTest, TheMiddleGroupCountsWithTheUpperOne) {
    const RunsCounts counts = CountRuns(Numbers("123123"));
    EXPECT_EQ(counts.n0, 2);
    EXPECT_EQ(counts.n1, 4);
    EXPECT_EQ(counts.runs, 4);
}

TEST(RunsTest, ABlockWithoutAPValueSaysSoAndFails) {
    FakeDesktop desktop;
    for (const std::string block : {"1", "12", "21", "111111", "22"}) {
        const RunsTestResult result = GetRandomness(Numbers(block), desktop.messages);
        EXPECT_EQ(result.PValue, 0) << block;
        EXPECT_FALSE(result.Computed) << block;
        EXPECT_EQ(desktop.messages.Take(), "Insufficient memory to perform statistics") << block;
        EXPECT_FALSE(CanPassRunsTest(Numbers(block), 0.0001F)) << block;
    }
}

/// Whether one of all arrangements passes, by trying them.
bool AnyArrangementPasses(std::vector<std::int16_t> block, float level, MessageBox& messages) {
    std::sort(block.begin(), block.end());
    do {
        if (GetRandomness(block, messages).PValue > level)
            return true;
    } while (std::next_permutation(block.begin(), block.end()));
    return false;
}

TEST(RunsTest, WhetherABlockCanPassIsWhatTryingEveryArrangementSays) {
    FakeDesktop desktop;
    int cannot = 0;
    for (const std::string block : {"112", "1222", "1112", "1122", "12222", "11122", "123", "112233",
                                    "11112222", "1234", "123123123", "1222222", "11111222"})
        for (const float level :
             {0.01F, 0.05F, 0.1F, 0.14F, 0.15F, 0.1884F, 0.1885F, 0.25F, 0.28F, 0.3F, 0.35F, 0.398F}) {
            const bool can = AnyArrangementPasses(Numbers(block), level, desktop.messages);
            EXPECT_EQ(CanPassRunsTest(Numbers(block), level), can) << block << " at " << level;
            cannot += can ? 0 : 1;
        }
    EXPECT_GT(cannot, 10);
    EXPECT_FALSE(CanPassRunsTest(Numbers("1222"), 0.3F)) << "one group against three";
}

TEST(RunsTest, AnEqualPValueDoesNotPass) {
    FakeDesktop desktop;
    const float best = GetRandomness(Numbers("1221"), desktop.messages).PValue;
    EXPECT_FALSE(CanPassRunsTest(Numbers("1221"), best));
    EXPECT_TRUE(CanPassRunsTest(Numbers("1221"), std::nextafter(best, 0.0F)));
}

TEST(RunsTest, ANameIsTheNumberOfTheFirstRowThatHoldsIt) {
    const MemoryGrid grid({"A", "a", "A", ""});
    EXPECT_EQ(GetIntName(grid, "A"), 1);
    EXPECT_EQ(GetIntName(grid, "a"), 2);
    EXPECT_EQ(GetIntName(grid, ""), 4);
    EXPECT_EQ(GetIntName(grid, "B"), 0);
}

} // namespace
} // namespace orvane
