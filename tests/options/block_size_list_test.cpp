#include "options/options_bench.h"

#include <gtest/gtest.h>

namespace orvane {

namespace {

const std::string Please = "please specify block sizes";
const std::string BadValue = "Error in the value of block sizes";
const std::string Indivisible = "block sizes must be divisable by the number of groups";

} // namespace

TEST(BlockSizeList, RefusesWithTheMessagesInOrderAndTheFocusOnTheField) {
    const std::vector<std::pair<Texts, Texts>> rows = {
        {{Please}, {"", "  ", "6.5", "6;8", "6\t8", "+6", "6\u00A0", "\u0666", "16-12", "16-12,4-2"}},
        // Beyond 16 bits: at once, whatever stands behind it or beside it in the item.
        {{Please}, {"40000", "32768", "99999999999999999999", "40000-0", "0-40000", "40000,0", "7,40000"}},
        {{Please}, {std::string(400, '9'), "2-32767", "32767-32767", "7-32767,0", "1-32766,1-32766"}},
        {{Please}, {"2-30000,4-4000", "1-32766,2,2", std::string(32766, ' ') + "6"}},
        {{BadValue, Please}, {"0", "000", "6,", ",6", "6,,8", ",", "-4", "4-", "-", "0-4", "4-0", "2-4-6"}},
        {{BadValue, Please}, {"2-40000-6", "--", "7,0", "0,40000", "6,8,5-3,0-0"}},
        {{Indivisible, Please}, {"6,8,10,12-16", "12-13", "7", "6,7", "1-32766", "1-32766,2", "32767"}},
    };
    for (const auto& [messages, texts] : rows)
        for (const std::string& text : texts) {
            SCOPED_TRACE(text.substr(0, 40));
            OptionsBench bench;
            bench.Option(RandomSizesOf, text);
            EXPECT_TRUE(bench.validation.NotValidInputs());
            EXPECT_EQ(bench.desktop.messages.TakeAll(), messages);
            Texts log{"message", "UnEqBlockSizeTxt"};
            if (messages.size() == 2) {
                log.insert(log.end(), {"message", "UnEqBlockSizeTxt"});
                EXPECT_TRUE(bench.desktop.random.Reseeds.empty());
            }
            EXPECT_EQ(bench.controls.Log, log);
        }
}

TEST(BlockSizeList, DrawsBlocksUntilTheyReachTheSampleSize) {
    struct Row {
        std::string text;
        std::int16_t groups, sampleSize;
        std::vector<float> draws; ///< values of the source, then 0
        Blocks blocks;
    };
    const auto slot = [](int wanted, int last) { return fakes::UniformFor(1, last, wanted); };
    const std::vector<float> even = {.0625, .1875, .3125, .4375, .5625, .6875, .8125, .9375};
    const std::vector<Row> rows = {
        {"6, 8,10", 2, 20, {slot(2, 3), slot(3, 3), slot(1, 3)}, {8, 10, 6}},
        {"12-12", 2, 20, {}, {12, 12}},
        {"6,8,10,12,14,16", 2, 20, {slot(6, 6), slot(5, 6)}, {16, 14}},
        {"16-12,4", 2, 6, {}, {4, 4}},
        {"4 ,6", 2, 9, {slot(2, 2), slot(1, 2)}, {6, 4}},
        {"1 2", 2, 1, {}, {12}},
        {"006", 3, 12, {}, {6, 6}}, // an exact fit ends the drawing
        {"20", 2, 20, {}, {20}},
        {"30", 2, 20, {}, {30}},
        {std::string(32765, ' ') + "6", 2, 5, {}, {6}},
        // The first and the last slot come up half as often as those between; a size written twice counts
        // twice.
        {"4,6,8", 2, 48, even, {4, 4, 6, 6, 6, 6, 8, 8}},
        {"6,6,8", 2, 52, even, {6, 6, 6, 6, 6, 6, 8, 8}},
        {"4,6", 2, 40, even, {4, 4, 4, 4, 6, 6, 6, 6}},
        {"8", 2, 64, even, {8, 8, 8, 8, 8, 8, 8, 8}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text.substr(0, 40));
        OptionsBench bench;
        bench.Set(row.groups, row.sampleSize);
        bench.Option(RandomSizesOf, row.text);
        bench.desktop.random.List(row.draws);
        EXPECT_FALSE(bench.validation.NotValidInputs());
        EXPECT_EQ(bench.Drawn(), row.blocks);
        EXPECT_EQ(bench.desktop.random.Consumed, row.blocks.size());
        EXPECT_EQ(bench.desktop.random.Reseeds, std::vector<float>{bench.desktop.clock.Seconds});
        EXPECT_EQ(bench.desktop.random.ReseededAt, std::vector<std::size_t>{0});
        EXPECT_EQ(bench.controls.Log, Texts{});
    }
}

TEST(BlockSizeList, EachOkDrawsAnew) {
    OptionsBench bench;
    bench.Option(RandomSizesOf, "8,12");
    bench.desktop.random.List({0, 0.9F, 0.9F, 0});
    EXPECT_FALSE(bench.validation.NotValidInputs());
    EXPECT_EQ(bench.Drawn(), (Blocks{8, 12}));
    EXPECT_FALSE(bench.validation.NotValidInputs());
    EXPECT_EQ(bench.Drawn(), (Blocks{12, 8}));
    EXPECT_EQ(bench.desktop.random.ReseededAt, (std::vector<std::size_t>{0, 2}));
}

TEST(BlockSizeList, RefusesBlocksThatPass16BitsOnTheWay) {
    OptionsBench bench;
    bench.settings.SampleSize = 32767;
    for (const char* text : {"20000", "2,14000", "32766"}) {
        bench.Option(RandomSizesOf, text);
        bench.desktop.random.List({0, 0.9F, 0.9F, 0.9F});
        EXPECT_TRUE(bench.validation.NotValidInputs()) << text;
        EXPECT_EQ(bench.desktop.messages.TakeAll(), Texts{Please}) << text;
    }
    // 16383 blocks just below the limit, and fast.
    bench.settings.SampleSize = 32766;
    bench.Option(RandomSizesOf, "2");
    EXPECT_FALSE(bench.validation.NotValidInputs());
    EXPECT_EQ(bench.Drawn().size(), 16383U);
}

} // namespace orvane
