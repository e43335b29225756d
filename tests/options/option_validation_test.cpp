#include "options/options_bench.h"

#include "platform/failure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <tuple>

namespace orvane {

namespace {

const std::string PleaseSize = "please specify the block size";
const std::string Indivisible = "Block size must be divisable by the number of groups";
const std::string AtMost = "the block size can be at most 32767";
const std::string BadLevel = "Significance level must be greater than 0 ad less than 0.35";

/// A value of the source for which every draw gives its upper end.
constexpr float Highest = 0x1.fffffep-1F;

} // namespace

TEST(OptionValidation, EqualBlocksAreRefusedOrLaidOut) {
    struct Row {
        std::string text;
        std::int16_t groups, sampleSize;
        std::string message; ///< empty for a size that is taken
        std::int16_t size;
        std::size_t blocks;
    };
    std::vector<Row> rows = {{"10", 3, 20, Indivisible, 0, 0}, {"10", 2, 100, "", 10, 11},
                             {"8", 2, 100, "", 8, 13},         {"6", 3, 3, "", 6, 1},
                             {"12abc", 2, 20, "", 12, 2},      {"2.5", 2, 20, "", 2, 11},
                             {"3.5", 2, 20, "", 4, 6},         {" 1 0", 2, 20, "", 10, 3},
                             {"&HA", 2, 20, "", 10, 3},        {"0.6", 2, 20, Indivisible, 0, 0}};
    for (const char* text : {"abc", "", "0", "-4", "0.4", "0.5", "-0.4", "1E-400", "1E999", "-1E999", "inf"})
        rows.push_back({text, 2, 20, PleaseSize, 0, 0});
    for (const char* text : {"32767", "40001", "2147483648", "3E9", "1E300"})
        rows.push_back({text, 2, 20, Indivisible, 0, 0});
    for (const char* text : {"32768", "40000", "2147483646"})
        rows.push_back({text, 2, 20, AtMost, 0, 0});
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        OptionsBench bench;
        bench.Set(row.groups, row.sampleSize);
        bench.Option(EqualSize, row.text);
        EXPECT_EQ(bench.validation.NotValidInputs(), !row.message.empty());
        EXPECT_EQ(bench.desktop.messages.Take(), row.message);
        EXPECT_EQ(bench.controls.Log, row.message.empty() ? Texts{} : (Texts{"message", "EqBlockSizeTxt"}));
        EXPECT_EQ(bench.Drawn(), Blocks(row.blocks, row.size));
        EXPECT_TRUE(bench.desktop.random.Reseeds.empty());
    }
}

TEST(OptionValidation, RandomBlocksGoOnUntilTheyPassTheSampleSize) {
    struct Row {
        std::int16_t sampleSize, groups;
        std::vector<float> draws; ///< then the lower end
        Blocks blocks;
    };
    const std::vector<Row> rows = {
        {100, 2, {}, {20, 20, 20, 20, 20, 20}}, // an exact fit gets one block more
        {100, 2, {Highest, 0.5F, Highest}, {34, 28, 34, 20}},
        {60, 3, {Highest, Highest}, {21, 21, 12, 12}},
        {32, 4, {Highest, 0.5F, Highest}, {12, 8, 12, 4}},
        {20, 4, {Highest, Highest}, {8, 8, 4, 4}},
        {1, 2, {Highest}, {2}},
        {5, 3, {Highest, Highest}, {3, 3}},
        {8, 2, {Highest}, {2, 2, 2, 2, 2}},
        {1, 16, {}, {16}},
        {18, 2, {}, {4, 4, 4, 4, 4}}, // 1 + 9 gives a lower end of 2
    };
    for (const Row& row : rows) {
        OptionsBench bench;
        bench.Set(row.groups, row.sampleSize);
        bench.Option(RandomBlockSize);
        bench.desktop.random.List(row.draws);
        EXPECT_FALSE(bench.validation.NotValidInputs());
        EXPECT_EQ(bench.Drawn(), row.blocks) << row.sampleSize << " in " << row.groups;
        EXPECT_EQ(bench.desktop.random.ReseededAt, std::vector<std::size_t>{0});
        EXPECT_EQ(bench.desktop.random.Reseeds, std::vector<float>{bench.desktop.clock.Seconds});
    }
    OptionsBench bench;
    bench.Option(RandomBlockSize);
    for (std::int16_t groups = FewestGroups; groups <= MostGroups; ++groups)
        for (std::int16_t sampleSize = 1; sampleSize <= 100; ++sampleSize) {
            bench.Set(groups, sampleSize);
            bench.desktop.random.Rest = sampleSize % 2 == 0 ? 0 : Highest;
            EXPECT_FALSE(bench.validation.NotValidInputs());
            const Blocks blocks = bench.Drawn();
            EXPECT_GE(*std::min_element(blocks.begin(), blocks.end()), groups);
            EXPECT_GT(std::accumulate(blocks.begin(), blocks.end(), 0), sampleSize);
        }
}

TEST(OptionValidation, JudgesTheTextOfTheLevelAfterTheBlocks) {
    for (const char* text : {"0.05", ".05", "0.05abc", "0.3", "0.30", "3D-1", "1E-50", "+.1"}) {
        OptionsBench bench;
        bench.controls.Level = text;
        EXPECT_FALSE(bench.validation.NotValidInputs()) << text;
    }
    for (const char* text : {"0.31", "0.35", "0.3000000001", "0", "", "abc", "0,05", "-0.1", "1E999",
                             "-1E999", "nan", "1E-400"}) {
        OptionsBench bench;
        bench.settings.SampleSize = 20000; // would be refused after the level
        bench.controls.Level = text;
        EXPECT_TRUE(bench.validation.NotValidInputs()) << text;
        EXPECT_EQ(bench.desktop.messages.Take(), BadLevel) << text;
        EXPECT_EQ(bench.controls.Log, (Texts{"message", "tab 4", "txtLevel"}));
        EXPECT_EQ(bench.Drawn(), Blocks{20000});
        bench.Option(EqualSize, "3");
        EXPECT_TRUE(bench.validation.NotValidInputs());
        EXPECT_EQ(bench.desktop.messages.TakeAll(), Texts{Indivisible});
        EXPECT_EQ(bench.Drawn(), Blocks{});
    }
}

TEST(OptionValidation, RefusesListsThatCannotBeMade) {
    const std::string fewer = ", please choose smaller blocks or a smaller sample size";
    const std::string sum = "the blocks hold more than 32767 subjects" + fewer;
    const std::string block = "a block can hold at most 14654 subjects" + fewer;
    const auto codes = [](const std::string& length, const std::string& subjects) {
        return "code length " + length + " is too short for a list of " + subjects +
               " subjects, please choose longer codes or a smaller sample size";
    };
    const auto runs = [](const std::string& size, const std::string& level) {
        return "a block of " + size + " subjects cannot pass the Runs test at level " + level +
               ", please choose other blocks, a lower level or no Runs test";
    };
    struct Row {
        std::int16_t sampleSize;
        std::string size;    ///< of equal blocks; empty for one block
        std::string message; ///< empty for a list that can be made
        std::int16_t codeLength = 5;
        CodeAlphabets alphabet = Numeric;
        CodeOrders order = Sequential;
        float level = 0; ///< of the Runs test, 0 for none
        Texts names = {"a", "b"};
    };
    const auto tested = [](std::int16_t sampleSize, float level, const std::string& message,
                           const Texts& names = {"a", "b"}) {
        return Row{sampleSize, "", message, 5, Numeric, Sequential, level, names};
    };
    const Texts oneAgainstThree = {"a", "b", "b", "b"}; // P values of a block of 4: 0.2419707 alone
    const std::vector<Row> rows = {{32765, "2", ""},
                                   {32766, "2", sum},
                                   {30000, "20000", sum, 2}, // before all else
                                   {10000, "20000", block, 2},
                                   {14654, "", ""},
                                   {14655, "", block},
                                   {90, "10", codes("2", "100"), 2},
                                   {90, "10", "", 2, Numeric, Random},
                                   {26, "", codes("1", "26"), 1, Alpha},
                                   {35, "", "", 1, Mixed},
                                   {2, "", codes("0", "2"), 0, Numeric, Sequential, 0.05F},
                                   tested(1, 0, ""),
                                   tested(1, 0.05F, runs("1", "0.05")),
                                   tested(3, 0.3F, ""),
                                   tested(14654, 0.3F, ""),
                                   tested(20, 0.05F, runs("20", "0.05"), {"a", "a", "a"}),
                                   tested(4, 0.24F, "", oneAgainstThree),
                                   tested(4, 0.25F, runs("4", "0.25"), oneAgainstThree)};
    const auto check = [](OptionsBench& bench, const std::string& message) {
        EXPECT_EQ(bench.validation.NotValidInputs(), !message.empty());
        EXPECT_EQ(bench.desktop.messages.Take(), message);
        EXPECT_EQ(bench.controls.Log, message.empty() ? Texts{} : Texts{"message"});
        bench.controls.Log.clear();
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::to_string(row.sampleSize) + " " + row.size + " " + row.message);
        OptionsBench bench;
        bench.Set(static_cast<std::int16_t>(row.names.size()), row.sampleSize);
        bench.grid.Name(row.names);
        bench.Option(row.size.empty() ? OnlyOneBlock : EqualSize, row.size);
        bench.settings.CodeLength = row.codeLength;
        bench.settings.CodeAlphaNum = row.alphabet;
        bench.settings.CodeSeqRandom = row.order;
        bench.settings.PerformRuns = row.level > 0;
        bench.settings.SigLevel = row.level;
        check(bench, row.message);
    }
    OptionsBench bench; // blocks that are drawn
    bench.Option(RandomSizesOf, "14656");
    check(bench, block);
    bench.settings.PerformRuns = true;
    bench.Option(RandomSizesOf, "2,18");
    bench.desktop.random.List({0.9F, 0});
    check(bench, runs("2", "0.05"));
    bench.desktop.random.List({0, 0.9F});
    check(bench, runs("2", "0.05"));
    bench.Set(2, 32767);
    bench.Option(RandomBlockSize);
    check(bench, sum);
    bench.Set(7, 32760); // 4681 blocks of 7 are 32767 subjects
    bench.settings.PerformRuns = false;
    bench.Option(EqualSize, "7");
    check(bench, "");
}

TEST(OptionValidation, AFailureOfTheRandomSourceIsNoFaultOfTheOptions) {
    for (const BlockOptions option : {RandomSizesOf, RandomBlockSize}) {
        OptionsBench bench;
        bench.Option(option, "6");
        bench.desktop.random.Broken = true;
        EXPECT_THROW(bench.validation.cmdOK_Click(), Failure);
        EXPECT_EQ(bench.settings.SelectedCmd, NotClosedByButton);
        EXPECT_EQ(bench.controls.Log, Texts{});
    }
}

TEST(OptionValidation, ButtonsKeepOrDropTheValues) {
    OptionsBench bench;
    ListSettings& settings = bench.settings;
    const auto restorable = [&settings] {
        return std::tuple(settings.CodeAlphaNum, settings.CodeSeqRandom, settings.CodeLength,
                          settings.prBlockOption, settings.prEqBlockSize, settings.prUnEqBlockSize,
                          settings.PerformRuns, settings.SigLevel);
    };
    const auto others = [&settings] {
        return std::tuple(settings.SelectedCmd, settings.Columns, settings.TableBorder, settings.CellSpacing);
    };
    const auto atOpening = restorable();
    bench.validation.TakeSnapshot();
    const auto edited = std::tuple(Mixed, Random, std::int16_t{7}, EqualSize, "4", "8", true, 0.01F);
    std::tie(settings.CodeAlphaNum, settings.CodeSeqRandom, settings.CodeLength, settings.prBlockOption,
             settings.prEqBlockSize, settings.prUnEqBlockSize, settings.PerformRuns, settings.SigLevel) =
        edited;
    settings.Columns = 3;
    bench.controls.TableBorder = true;
    bench.controls.CellSpacing = 4;

    bench.validation.cmdApply_Click();
    bench.controls.Level = "0";
    bench.validation.cmdOK_Click(); // refused
    EXPECT_EQ(bench.desktop.messages.Take(), BadLevel);
    EXPECT_EQ(others(), std::tuple(NotClosedByButton, 3, false, 1));
    EXPECT_EQ(bench.desktop.pointer.Calls, "");

    bench.controls.Log.clear();
    bench.controls.Level = "0.01";
    bench.validation.cmdOK_Click();
    EXPECT_EQ(restorable(), edited);
    EXPECT_EQ(others(), std::tuple(ClosedByOK, 3, true, 4));
    EXPECT_EQ(bench.desktop.pointer.Calls, "B");
    EXPECT_EQ(bench.controls.Log, Texts{"close"});

    bench.controls.TableBorder = false;
    bench.validation.cmdCancel_Click();
    EXPECT_EQ(restorable(), atOpening);
    EXPECT_EQ(others(), std::tuple(ClosedByCancel, 3, true, 4));
    EXPECT_EQ(bench.Drawn(), Blocks(6, 4));
    EXPECT_EQ(bench.desktop.pointer.Calls, "B");
    EXPECT_EQ(bench.controls.Log, (Texts{"close", "close"}));
}

} // namespace orvane
