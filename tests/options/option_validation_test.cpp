#include "options_bench.h"

#include <limits>

namespace orvane {
namespace {

const std::string ChooseSmaller = ", please choose smaller blocks or a smaller sample size";
const std::string TooManySubjects = "the blocks hold more than 32767 subjects" + ChooseSmaller;
const std::string BlockTooLarge = "a block can hold at most 14654 subjects" + ChooseSmaller;

std::string TooFewCodes(int length, int subjects) {
    return "code length " + std::to_string(length) + " is too short for a list of " +
           std::to_string(subjects) + " subjects, please choose longer codes or a smaller sample size";
}
std::string CannotPass(int size, const std::string& level) {
    return "a block of " + std::to_string(size) + " subjects cannot pass the Runs test at level " + level +
           ", please choose other blocks, a lower level or no Runs test";
}

TEST(OptionValidation, JudgesTheBlocksThenTheLevelThenTheList) {
    const std::string badLevel = "Significance level must be greater than 0 ad less than 0.35";
    OptionsBench bench(2, 20000);
    bench.level = "0";
    bench.EqualBlocks("3");
    EXPECT_EQ(bench.Judge(), Texts{"Block size must be divisable by the number of groups"});
    bench.settings.prBlockOption = OnlyOneBlock;
    EXPECT_EQ(bench.Judge(), Texts{badLevel});
    bench.level = "0.05";
    EXPECT_EQ(bench.Judge(), Texts{BlockTooLarge});
    bench.settings.SampleSize = 0;
    EXPECT_EQ(bench.Judge(), Texts{"please specify the sample size"});
}

TEST(OptionValidation, TakesALevelAboveZeroAndUpToThreeTenths) {
    OptionsBench bench;
    for (const char* text : {"0.05", ".05", "0.05abc", "0.3", "0.30", "3D-1", "1E-50", "+.1"}) {
        bench.level = text;
        EXPECT_EQ(bench.Judge().size(), 0U) << text;
    }
    for (const char* text : {"0.31", "0.3000000001", "0", "", "0,05", "-0.1", "1E999", "-1E999", "nan"}) {
        bench.level = text;
        EXPECT_EQ(bench.Judge().size(), 1U) << text;
    }
}

TEST(OptionValidation, RefusesListsThatCannotBeMade) {
    const struct {
        int groups;
        int sampleSize;
        std::string blockSize; ///< "" for one block
        std::int16_t codeLength;
        std::string refusal;
    } rows[] = {
        {7, 32760, "7", 5, ""},
        {2, 32766, "2", 5, TooManySubjects},
        {2, 30000, "20000", 2, TooManySubjects},
        {2, 10000, "20000", 2, BlockTooLarge},
        {2, 14654, "", 5, ""},
        {2, 14655, "", 5, BlockTooLarge},
        {2, 90, "10", 2, TooFewCodes(2, 100)},
        {2, 89, "10", 2, ""},
    };
    for (const auto& row : rows) {
        OptionsBench bench(row.groups, row.sampleSize);
        if (!row.blockSize.empty())
            bench.EqualBlocks(row.blockSize);
        bench.settings.CodeLength = row.codeLength;
        EXPECT_EQ(bench.Judge(), row.refusal.empty() ? Texts{} : Texts{row.refusal})
            << row.sampleSize << " subjects in blocks of " << row.blockSize;
    }
}

TEST(OptionValidation, RefusesABlockThatNoArrangementBringsThroughTheRunsTest) {
    const std::string alike =
        "a block of 20 subjects cannot pass the Runs test since all its groups have the "
        "same name, please give the groups different names";
    // One subject of four in a group of its own: the P value is 0.2419707.
    const Texts oneOfFour = {"a", "b", "b", "b"};
    const struct {
        int sampleSize; ///< one block
        float level;
        Texts names;
        std::string refusal;
    } rows[] = {
        {1, 0.05F, {"a", "b"}, CannotPass(1, "0.05")},
        {1, 0.05F, {"a", "a"}, CannotPass(1, "0.05")}, // other names would not help
        {3, 0.3F, {"a", "b"}, ""},
        {14654, 0.3F, {"a", "b"}, ""},
        {4, 0.24F, oneOfFour, ""},
        {4, 0.25F, oneOfFour, CannotPass(4, "0.25")},
        {20, 0.05F, {"a", "a", "a"}, alike},
    };
    for (const auto& row : rows) {
        OptionsBench bench(static_cast<int>(row.names.size()), row.sampleSize);
        bench.settings.GroupNames = row.names;
        bench.settings.PerformRuns = true;
        bench.settings.SigLevel = row.level;
        EXPECT_EQ(bench.Judge(), row.refusal.empty() ? Texts{} : Texts{row.refusal})
            << row.sampleSize << " subjects, level " << row.level;
    }
}

TEST(OptionValidation, FindsTheBlockThatCannotPassAmongThoseThatWereDrawn) {
    for (const std::vector<float>& draws : {std::vector{0.9F, 0.0F}, {0.0F, 0.9F}}) {
        OptionsBench bench(2, 20);
        bench.settings.PerformRuns = true;
        bench.BlocksOf("2,18");
        bench.desktop.random.Values = draws;
        EXPECT_EQ(bench.Judge(), Texts{CannotPass(2, "0.05")});
    }
}

TEST(OptionValidation, AFailureOfTheRandomSourceIsAFaultOfTheListAndComesOutOfRandomSizes) {
    OptionsBench bench;
    bench.desktop.random.Fails = {"UniformNext"};
    bench.BlocksOf("6");
    EXPECT_EQ(bench.Judge(), Texts{"please specify block sizes"});
    bench.settings.prBlockOption = RandomBlockSize;
    EXPECT_EQ(FailureOf([&] { bench.validation.cmdOK_Click(); }).Number, 5);
}

TEST(SignificanceLevel, IsTheNearestFloatToTheText) {
    constexpr float most = std::numeric_limits<float>::max();
    const struct {
        const char* text;
        float level;
    } rows[] = {{"0.05", 0.05F}, {"1E39", most}, {"-1E999", -most}, {"1E-60", 0}, {"abc", 0}};
    for (const auto& row : rows)
        EXPECT_EQ(LevelOf(row.text), row.level) << row.text;
}

} // namespace
} // namespace orvane
