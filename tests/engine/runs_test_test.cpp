#include "engine/runs_test.h"
#include "fakes/desktop.h"

#include <cmath>

namespace orvane {
namespace {

using namespace fakes;

/// The group numbers that the characters of a text stand for.
std::vector<std::int16_t> Numbers(const std::string& block) {
    return {block.begin(), block.end()};
}

TEST(RunsTest, GivesThePublishedFigures) {
    const struct {
        std::string block;
        double z;
    } rows[] = {
        {"1110010101110101", 1.386750},
        {"1111122222233333333", -4.007095978613213},
        {"0001011001100110001011100", -0.1327477},
        {"1221", 0},
        {"12322", -1.2247449}, // the middle group counts with the upper one
    };
    FakeDesktop desktop;
    for (const auto& row : rows) {
        const double density = std::exp(-row.z * row.z / 2) / std::sqrt(2 * std::acos(-1.0));
        EXPECT_NEAR(GetRandomness(Numbers(row.block), desktop.messages), density, density * 1e-5)
            << row.block;
    }
}

TEST(RunsTest, TheExpectedNumberOfRunsAndTheStatisticAre32BitFloats) {
    EXPECT_EQ(RunsPValue(RunsStatistic({1, 2, 2}).value()), 0.310696602F);
    EXPECT_EQ(RunsPValue(RunsStatistic({1, 4, 3}).value()), 0.285854578F);
}

TEST(RunsTest, HasNoPValueWhereTheStatisticIsZeroDividedByZero) {
    FakeDesktop desktop;
    for (const std::string block : {"1", "12", "11", "2222"}) {
        EXPECT_EQ(GetRandomness(Numbers(block), desktop.messages), 0) << block;
        EXPECT_EQ(desktop.messages.Take(), "Insufficient memory to perform statistics") << block;
        EXPECT_FALSE(CanPassRunsTest(Numbers(block), 0)) << block;
    }
}

TEST(RunsTest, WhetherABlockCanPassIsWhatTryingEveryArrangementSays) {
    FakeDesktop desktop;
    for (const std::string block : {"112", "1222", "1112", "1122", "12222", "11122", "123", "112233",
                                    "11112222", "1222222", "11111222"}) {
        std::vector<std::int16_t> numbers = Numbers(block);
        float best = 0;
        do
            best = std::max(best, GetRandomness(numbers, desktop.messages));
        while (std::next_permutation(numbers.begin(), numbers.end()));
        EXPECT_FALSE(CanPassRunsTest(numbers, best)) << block << ": an equal P value does not pass";
        EXPECT_TRUE(CanPassRunsTest(numbers, std::nextafter(best, 0.0F))) << block;
    }
}

TEST(RunsTest, GroupsOfTheSameNameHaveTheNumberOfTheFirst) {
    EXPECT_EQ(GroupNumbers({"A", "a", "A", ""}), (std::vector<std::int16_t>{0, 1, 2, 1, 4}));
    EXPECT_EQ(GetIntName({"A", "a"}, "B"), 0);
}

} // namespace
} // namespace orvane
