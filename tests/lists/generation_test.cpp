#include "list_desk.h"

namespace orvane {
namespace {

TEST(Generation, ShowsTheSmallestAndTheLargestPValueOfTheTestedBlocks) {
    const struct {
        std::vector<std::int16_t> blocks;
        bool tested;
        std::string message;
    } rows[] = {
        {{4, 10}, true, "Runs test:\r\nMinimum P value = 0.0109\r\nMaximum P value = 0.1884"},
        {{10, 10}, true, "P value of Runs test = 0.0109"}, // each generation starts anew
        {{4}, true, "P value of Runs test = 0.1884"},
        {{4}, false, ""},
        {{}, true, ""}, // no block was made
    };
    ListDesk desk;
    desk.settings.SigLevel = 0.01F;
    for (const auto& row : rows) {
        desk.Blocks = row.blocks;
        desk.settings.PerformRuns = row.tested;
        desk.ToTheFile("a.txt");
        EXPECT_EQ(desk.desktop.messages.Take(), row.message);
        EXPECT_EQ(desk.desktop.pointer.Calls.front(), 'B');
        EXPECT_EQ(desk.desktop.pointer.Calls.back(), 'N');
    }
}

TEST(Generation, NeedsASampleSize) {
    ListDesk desk;
    desk.settings.SampleSize = 0;
    desk.Generate(ToWindow);
    EXPECT_EQ(desk.refused, 1);
    EXPECT_EQ(desk.window.Shown, Texts{});
    EXPECT_FALSE(desk.desktop.pointer.Busy);
    desk.settings.SampleSize = 1;
    EXPECT_NE(desk.ToTheWindow(), "not shown");
}

} // namespace
} // namespace orvane
