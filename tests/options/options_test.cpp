#include "fakes/desktop.h"
#include "options/option_validation.h"

#include <limits>
#include <map>
#include <sstream>
#include <tuple>

namespace orvane {
namespace {

using namespace fakes;
using Blocks = std::vector<std::int16_t>;
using Values = std::vector<float>;

/// An options window without the window, all of it valid but for the texts of block sizes, which no option
/// but their own may look at.
struct OptionsBench : OptionsControls {
    explicit OptionsBench(int groups = 2, int sampleSize = 20) { Set(groups, sampleSize); }

    void FocusEqBlockSizeTxt() override { log += "EqBlockSizeTxt "; }
    void FocusUnEqBlockSizeTxt() override { log += "UnEqBlockSizeTxt "; }
    void FocusTxtLevel() override { log += "txtLevel "; }
    [[nodiscard]] std::string LevelText() const override { return level; }
    void SelectTab(std::int16_t tab) override { log += "tab " + std::to_string(tab) + " "; }
    [[nodiscard]] bool TableBorderChecked() const override { return false; }
    [[nodiscard]] std::int16_t CellSpacingPosition() const override { return 1; }
    void Close() override { log += "close "; }

    void Set(int groups, int sampleSize) {
        settings.NumberOfGroups = static_cast<std::int16_t>(groups);
        settings.SampleSize = static_cast<std::int16_t>(sampleSize);
        settings.CodeAlphaNum = Numeric;
        settings.CodeLength = 5;
        settings.SigLevel = 0.05F;
        grid.Names.clear();
        for (int g = 1; g <= groups; ++g)
            grid.Names.push_back("Group " + std::to_string(g));
    }
    void Option(BlockOptions option, const std::string& text = "", const Values& draws = {}) {
        settings.prBlockOption = option;
        settings.prEqBlockSize = settings.prUnEqBlockSize = "rubbish, 0";
        (option == EqualSize ? settings.prEqBlockSize : settings.prUnEqBlockSize) = text;
        desktop.random.List(draws);
    }
    /// Judges the options and compares the messages, the controls that were used, and the result.
    void Expect(const Texts& messages, const std::string& controls) {
        log.clear();
        desktop.random.ReseededAt.clear();
        EXPECT_EQ(validation.NotValidInputs(), !messages.empty());
        EXPECT_EQ(desktop.messages.TakeAll(), messages);
        EXPECT_EQ(log, controls);
    }
    /// BlockSizes without its slot 0.
    [[nodiscard]] Blocks Drawn() const {
        EXPECT_EQ(results.BlockSizes.front(), 0);
        return {results.BlockSizes.begin() + 1, results.BlockSizes.end()};
    }

    std::string level = "0.05";
    std::string log;
    FakeDesktop desktop;
    ListSettings settings;
    ListResults results;
    MemoryGrid grid;
    OptionValidation validation{settings, results, grid, *this, desktop.platform};
};

const std::string Fewer = ", please choose smaller blocks or a smaller sample size";
const std::string TooManySubjects = "the blocks hold more than 32767 subjects" + Fewer;
const std::string BlockTooLarge = "a block can hold at most 14654 subjects" + Fewer;

/// A value of the source for which every draw gives its upper end.
constexpr float Highest = 0x1.fffffep-1F;

TEST(BlockSizeList, RefusesWithTheMessagesInOrderAndTheFocusOnTheField) {
    const std::string Please = "please specify block sizes";
    const std::string BadValue = "Error in the value of block sizes";
    const std::string Indivisible = "block sizes must be divisable by the number of groups";
    const std::vector<std::pair<Texts, Texts>> rows = {
        {{Please}, {"", "  ", "6.5", "6;8", "6\t8", "+6", "6\u00A0", "\u0666", "16-12", "16-12,4-2"}},
        // Beyond 16 bits: at once, whatever stands behind it or beside it in the item.
        {{Please}, {"40000", "32768", "99999999999999999999", "40000-0", "0-40000", "40000,0", "7,40000"}},
        {{Please}, {std::string(400, '9'), "2-32767", "32767-32767", "7-32767,0", "1-32766,1-32766"}},
        {{Please}, {"2-30000,4-4000", "1-32766,2,2", std::string(32766, ' ') + "6", "32766", "2,32766"}},
        {{BadValue, Please}, {"0", "000", "6,", ",6", "6,,8", ",", "-4", "4-", "-", "0-4", "4-0", "2-4-6"}},
        {{BadValue, Please}, {"2-40000-6", "--", "7,0", "0,40000", "6,8,5-3,0-0"}},
        {{Indivisible, Please}, {"6,8,10,12-16", "12-13", "7", "6,7", "1-32766", "1-32766,2", "32767"}},
    };
    const std::vector<std::pair<Texts, Texts>> equal = {
        {{"please specify the block size"},
         {"abc", "", "0", "-4", "0.4", "0.5", "-0.4", "1E-400", "1E999", "-1E999", "inf"}},
        {{"Block size must be divisable by the number of groups"},
         {"5", "0.6", "32767", "40001", "2147483648", "3E9", "1E300"}},
        {{"the block size can be at most 32767"}, {"32768", "40000", "2147483646"}}};
    for (const BlockOptions option : {RandomSizesOf, EqualSize})
        for (const auto& [messages, texts] : option == EqualSize ? equal : rows)
            for (const std::string& text : texts) {
                SCOPED_TRACE(text.substr(0, 40));
                OptionsBench bench(2, 32767);
                bench.Option(option, text, {0, Highest});
                const std::string field = option == EqualSize ? "EqBlockSizeTxt " : "UnEqBlockSizeTxt ";
                bench.Expect(messages, messages.size() == 2 ? field + field : field);
                EXPECT_TRUE(messages.size() == 1 || bench.desktop.random.ReseededAt.empty());
            }
}

TEST(BlockSizeList, BlocksGoOnUntilTheyReachTheSampleSize) {
    const auto slot = [](int wanted, int last) { return UniformFor(1, last, wanted); };
    const Values even = {.0625, .1875, .3125, .4375, .5625, .6875, .8125, .9375};
    const std::vector<std::tuple<BlockOptions, std::string, int, int, Values, Blocks>> rows = {
        {RandomSizesOf, "6, 8,10", 2, 20, {slot(2, 3), slot(3, 3), slot(1, 3)}, {8, 10, 6}},
        {RandomSizesOf, "16-12,4", 2, 6, {}, {4, 4}},
        {RandomSizesOf, "4 ,6-9,8", 1, 15, {slot(6, 6), slot(5, 6)}, {8, 9}},
        {RandomSizesOf, "006", 3, 12, {}, {6, 6}}, // an exact fit ends the drawing
        {RandomSizesOf, "1 2", 2, 12, {}, {12}},   // digits join across a blank
        {RandomSizesOf, std::string(32765, ' ') + "6", 2, 5, {}, {6}},
        // The ends of the list come up half as often; a size written twice counts twice.
        {RandomSizesOf, "4,6,8", 2, 48, even, {4, 4, 6, 6, 6, 6, 8, 8}},
        {RandomSizesOf, "6,6,8", 2, 52, even, {6, 6, 6, 6, 6, 6, 8, 8}},
        {RandomSizesOf, "2", 2, 32766, {}, Blocks(16383, 2)}, // and fast
        {EqualSize, "10", 2, 100, {}, Blocks(11, 10)},
        {EqualSize, "12abc", 2, 20, {}, {12, 12}},
        {EqualSize, "2.5", 2, 20, {}, Blocks(11, 2)},
        {EqualSize, "1 ", 1, 2, {}, {1, 1, 1}},
        {RandomBlockSize, "", 2, 100, {}, {20, 20, 20, 20, 20, 20}}, // an exact fit gets one block more
        {RandomBlockSize, "", 2, 100, {Highest, 0.5F, Highest}, {34, 28, 34, 20}},
        {RandomBlockSize, "", 3, 60, {Highest, Highest}, {21, 21, 12, 12}},
        {RandomBlockSize, "", 2, 8, {Highest}, {2, 2, 2, 2, 2}},
        {RandomBlockSize, "", 16, 1, {}, {16}},
        {RandomBlockSize, "", 2, 18, {}, {4, 4, 4, 4, 4}}, // 1 + 9 gives a lower end of 2
    };
    OptionsBench bench;
    for (const auto& [option, text, groups, sampleSize, draws, blocks] : rows) {
        SCOPED_TRACE(text.substr(0, 40) + " " + std::to_string(sampleSize));
        bench.Set(groups, sampleSize);
        bench.Option(option, text, draws);
        bench.Expect({}, "");
        EXPECT_EQ(bench.Drawn(), blocks);
        EXPECT_EQ(bench.desktop.random.ReseededAt, std::vector<std::size_t>(option == EqualSize ? 0 : 1));
        EXPECT_TRUE(option != RandomSizesOf || bench.desktop.random.Consumed == blocks.size());
    }
}

TEST(OptionValidation, JudgesTheTextOfTheLevelBetweenTheBlocksAndTheList) {
    OptionsBench bench(2, 20000);
    for (const char* text : {"0.05", ".05", "0.05abc", "0.3", "0.30", "3D-1", "1E-50", "+.1"}) {
        bench.level = text;
        bench.Expect({BlockTooLarge}, "");
    }
    for (const char* text : {"0.31", "0.35", "0.3000000001", "0", "", "abc", "0,05", "-0.1", "1E999",
                             "-1E999", "nan", "1E-400"}) {
        bench.level = text;
        bench.Expect({"Significance level must be greater than 0 ad less than 0.35"}, "tab 4 txtLevel ");
        EXPECT_EQ(bench.Drawn(), Blocks{20000});
    }
    bench.Option(EqualSize, "3");
    bench.Expect({"Block size must be divisable by the number of groups"}, "EqBlockSizeTxt ");
}

TEST(OptionValidation, RefusesListsThatCannotBeMade) {
    const auto codes = [](const std::string& length, const std::string& subjects) {
        return "code length " + length + " is too short for a list of " + subjects +
               " subjects, please choose longer codes or a smaller sample size";
    };
    const auto runs = [](const std::string& size, const std::string& level) {
        return "a block of " + size + " subjects cannot pass the Runs test at level " + level +
               ", please choose other blocks, a lower level or no Runs test";
    };
    // Groups, sample size, size of equal blocks or 0 for one block, code length, alphabet and order, level of
    // the Runs test or 0 for none, and the message with the subjects that it names.
    std::istringstream rows(
        "7 32760 7 5 1 0 0 - 0  2 32766 2 5 1 0 0 many 0  2 30000 20000 2 1 0 0 many 0 "
        "2 10000 20000 2 1 0 0 large 0  7 20 32767 5 1 0 0 large 0  2 14654 0 5 1 0 0 - 0 "
        "2 14655 0 5 1 0 0 large 0  2 90 10 2 1 0 0 codes 100  2 90 10 2 1 1 0 - 0 "
        "2 26 0 1 0 0 0 codes 26  2 35 0 1 2 0 0 - 0  2 2 0 0 1 0 0.05 codes 2 "
        "2 1 0 5 1 0 0 - 0  2 1 0 5 1 0 0.05 runs 1  2 3 0 5 1 0 0.3 - 0 "
        "2 14654 0 5 1 0 0.3 - 0  4 4 0 5 1 0 0.24 - 0  4 4 0 5 1 0 0.25 runs 4");
    OptionsBench bench;
    std::array<int, 6> row{};
    std::string level;
    std::string kind;
    std::string named;
    while (rows >> row[0] >> row[1] >> row[2] >> row[3] >> row[4] >> row[5] >> level >> kind >> named) {
        SCOPED_TRACE(std::to_string(row[1]) + " " + std::to_string(row[2]) + " " + level);
        bench.Set(row[0], row[1]);
        if (row[0] == 4) // one against three: the P value of a block of 4 is 0.2419707
            bench.grid.Names = {"a", "b", "b", "b"};
        bench.Option(row[2] == 0 ? OnlyOneBlock : EqualSize, std::to_string(row[2]));
        bench.settings.CodeLength = static_cast<std::int16_t>(row[3]);
        bench.settings.CodeAlphaNum = row[4];
        bench.settings.CodeSeqRandom = row[5];
        bench.settings.SigLevel = std::stof(level);
        bench.settings.PerformRuns = level != "0";
        const std::map<std::string, Texts> messages = {{"-", {}},
                                                       {"many", {TooManySubjects}},
                                                       {"large", {BlockTooLarge}},
                                                       {"codes", {codes(std::to_string(row[3]), named)}},
                                                       {"runs", {runs(named, level)}}};
        bench.Expect(messages.at(kind), "");
    }
    EXPECT_TRUE(rows.eof()); // every row was read
    bench.Set(3, 20);
    bench.grid.Names = {"a", "a", "a"};
    bench.Option(OnlyOneBlock);
    bench.Expect(
        {"a block of 20 subjects cannot pass the Runs test since all its groups have the same name, please "
         "give the groups different names"},
        "");
    bench.Set(2, 20); // blocks that are drawn
    for (const Values& draws : {Values{0.9F, 0}, Values{0, 0.9F}}) {
        bench.Option(RandomSizesOf, "2,18", draws);
        bench.Expect({runs("2", "0.05")}, "");
    }
    bench.Set(2, 32767);
    bench.Option(RandomBlockSize);
    bench.Expect({TooManySubjects}, "");
}

TEST(OptionValidation, AFailureOfTheRandomSourceIsAFaultOfTheListAndComesOutOfRandomSizes) {
    OptionsBench bench;
    bench.desktop.random.Fails = {"UniformNext"};
    bench.Option(RandomSizesOf, "6");
    bench.Expect({"please specify block sizes"}, "UnEqBlockSizeTxt ");
    bench.Option(RandomBlockSize);
    bench.log.clear();
    EXPECT_EQ(FailureOf([&] { bench.validation.cmdOK_Click(); }).Number, 5);
    EXPECT_EQ(bench.log, "");
}

TEST(OptionProperties, LevelIsTheNearestFloat) {
    constexpr float most = std::numeric_limits<float>::max();
    for (const auto& [text, level] : std::vector<std::pair<std::string, float>>{
             {"0.05", 0.05F}, {"1E39", most}, {"-1E999", -most}, {"1E-60", 0}, {"abc", 0}})
        EXPECT_EQ(LevelOf(text), level) << text;
}

} // namespace
} // namespace orvane
