// The block sizes that the options give, drawn or not, and the texts that give none.

#include "options_bench.h"

namespace orvane {
namespace {

using Sizes = std::vector<std::int16_t>;

/// A value of the source for which every draw gives its upper end.
constexpr float Highest = 0x1.fffffep-1F;

const std::string PleaseList = "please specify block sizes";

TEST(ListOfBlockSizes, ThatCannotBeReadIsRefused) {
    const struct {
        const char* why;
        Texts texts;
    } rows[] = {
        {"nothing", {"", "  "}},
        {"other characters", {"6.5", "6;8", "6\t8", "+6", "6\u00A0", "\u0666"}},
        {"no size in any range", {"16-12", "16-12,4-2"}},
        {"a number beyond 16 bits", {"40000", "32768", "99999999999999999999", std::string(400, '9')}},
        {"a range up to the end of 16 bits", {"2-32767", "32767-32767", "7-32767,0"}},
        {"more sizes than 16 bits count", {"2-30000,4-4000", "1-32766,2,2", "1-32766,1-32766"}},
        {"a text of 32767 characters", {std::string(32766, ' ') + "6"}},
        {"blocks beyond 16 bits", {"32766", "2,32766"}},
    };
    for (const auto& row : rows)
        for (const std::string& text : row.texts) {
            OptionsBench bench(2, 32767);
            bench.BlocksOf(text);
            bench.desktop.random.Values = {0, Highest};
            EXPECT_EQ(bench.Judge(), Texts{PleaseList}) << row.why << ": " << text.substr(0, 40);
        }
}

TEST(ListOfBlockSizes, WithAFaultInItsItemsGetsTwoMessagesAndNoDraw) {
    const struct {
        std::string message; ///< the first one
        Texts texts;
    } rows[] = {
        {"Error in the value of block sizes", {"0", "000", "6,", ",6", "6,,8", ",", "7,0", "0,40000"}},
        {"Error in the value of block sizes", {"-4", "4-", "-", "--", "0-4", "4-0", "2-4-6", "6,8,5-3,0-0"}},
        {"block sizes must be divisable by the number of groups", {"6,8,10,12-16", "12-13", "7", "6,7"}},
        {"block sizes must be divisable by the number of groups", {"1-32766", "1-32766,2", "32767"}},
    };
    for (const auto& row : rows)
        for (const std::string& text : row.texts) {
            OptionsBench bench(2, 32767);
            bench.BlocksOf(text);
            EXPECT_EQ(bench.Judge(), (Texts{row.message, PleaseList})) << text;
            EXPECT_EQ(bench.desktop.random.ReseededAt.size(), 0U) << text;
        }
}

TEST(ListOfBlockSizes, IsDrawnFromUntilTheBlocksReachTheSampleSize) {
    const auto slot = [](int wanted, int last) { return UniformFor(1, last, wanted); };
    const std::vector<float> even = {.0625, .1875, .3125, .4375, .5625, .6875, .8125, .9375};
    const struct {
        std::string text;
        int groups;
        int sampleSize;
        std::vector<float> draws;
        Sizes blocks;
    } rows[] = {
        {"6, 8,10", 2, 19, {slot(2, 3), slot(3, 3), slot(1, 3)}, {8, 10, 6}},
        {"16-12,4", 2, 6, {}, {4, 4}},
        {"4 ,6-9,8", 1, 15, {slot(6, 6), slot(5, 6)}, {8, 9}},
        {"006", 3, 12, {}, {6, 6}}, // an exact fit ends the drawing
        {"1 2", 2, 12, {}, {12}},   // digits join across a blank
        {std::string(32765, ' ') + "6", 2, 5, {}, {6}},
        // The ends of the list come up half as often; a size written twice counts twice.
        {"4,6,8", 2, 48, even, {4, 4, 6, 6, 6, 6, 8, 8}},
        {"6,6,8", 2, 52, even, {6, 6, 6, 6, 6, 6, 8, 8}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text.substr(0, 40));
        OptionsBench bench(row.groups, row.sampleSize);
        bench.BlocksOf(row.text);
        bench.desktop.random.Values = row.draws;
        EXPECT_EQ(bench.Judge(), Texts{});
        EXPECT_EQ(bench.Blocks(), row.blocks);
        EXPECT_EQ(bench.desktop.random.ReseededAt, std::vector<std::size_t>{0});
        EXPECT_EQ(bench.desktop.random.Consumed, row.blocks.size());
    }
}

TEST(EqualBlocks, ThatCannotBeAreRefused) {
    const struct {
        std::string message;
        Texts texts;
    } rows[] = {
        {"please specify the block size", {"abc", "", "0", "-4", "0.4", "0.5", "-0.4", "1E999", "-1E999"}},
        {"Block size must be divisable by the number of groups",
         {"5", "0.6", "32767", "2147483648", "1E300"}},
        {"the block size can be at most 32767", {"32768", "40000", "2147483646"}},
    };
    for (const auto& row : rows)
        for (const std::string& text : row.texts) {
            OptionsBench bench;
            bench.EqualBlocks(text);
            EXPECT_EQ(bench.Judge(), Texts{row.message}) << text;
        }
}

TEST(BlocksOfRandomSize, GoOnUntilTheyPassTheSampleSize) {
    const auto blocks = [](int groups, int sampleSize, const std::vector<float>& draws) {
        OptionsBench bench(groups, sampleSize);
        bench.settings.prBlockOption = RandomBlockSize;
        bench.desktop.random.Values = draws;
        EXPECT_EQ(bench.Judge(), Texts{}) << sampleSize;
        EXPECT_EQ(bench.desktop.random.ReseededAt, std::vector<std::size_t>{0}) << sampleSize;
        return bench.Blocks();
    };
    EXPECT_EQ(blocks(2, 100, {}), Sizes(6, 20)) << "an exact fit gets one block more";
    EXPECT_EQ(blocks(2, 100, {Highest, 0.5F, Highest}), (Sizes{34, 28, 34, 20}));
    EXPECT_EQ(blocks(3, 60, {Highest, Highest}), (Sizes{21, 21, 12, 12}));
    EXPECT_EQ(blocks(2, 8, {Highest}), Sizes(5, 2)) << "no block is without positions";
    EXPECT_EQ(blocks(16, 1, {}), Sizes{16});
    EXPECT_EQ(blocks(2, 18, {}), Sizes(5, 4));
}

} // namespace
} // namespace orvane
