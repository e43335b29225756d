#include "engine/generation.h"

#include "fakes/desktop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace orvane {
namespace {

using fakes::FakeDesktop;

struct Bench : OptionsWindow, OutputChannels, SampleSizeBox {
    void ShowModal() override {
        events += "options ";
        if (whileOptionsOpen)
            whileOptionsOpen();
    }
    void OutputToFile() override { Report("file "); }
    void OutputToWindow() override { Report("window "); }
    void OutputToClipBoard() override { Report("clipboard "); }
    [[nodiscard]] std::string Text() const override { return text; }
    void SetFocus() override { events += "focus "; }

    void Report(const std::string& channel) {
        events += channel;
        EXPECT_TRUE(desktop.pointer.Busy);
        if (whileReporting)
            whileReporting();
    }

    FakeDesktop desktop;
    ListSettings settings;
    ListResults results;
    std::string text;
    std::string events;
    std::function<void()> whileOptionsOpen = [this] {
        settings.SelectedCmd = ClosedByOK;
        results.BlockSizes = {0, 10};
    };
    std::function<void()> whileReporting;
    Generation generation{settings,         results,         *this,          *this,        *this,
                          desktop.messages, desktop.pointer, desktop.random, desktop.clock};
};

TEST(Generation, RefusesASampleSizeThatIsNotAboveZero) {
    for (const auto& [text, size, message] :
         {std::tuple<std::string, int, std::string>{"", 0, "please specify the sample size"},
          {"-5", -5, "please specify the sample size"},
          {"-99999", 0, "please specify the sample size"},
          {"32768", 0, "the sample size can be at most 32767"},
          {"1e999", 0, "the sample size can be at most 32767"}}) {
        Bench bench;
        bench.text = text;
        bench.settings.SampleSize = static_cast<std::int16_t>(size);
        bench.settings.PerformRuns = true;
        bench.generation.cmdGenerate_Click();
        EXPECT_EQ(bench.desktop.messages.Take(), message);
        EXPECT_EQ(bench.events, "focus ");
        EXPECT_EQ(bench.desktop.pointer.Calls, "BN");
    }
}

TEST(Generation, RunsTheChannelOfTheMomentBehindTheOptions) {
    for (const auto& [option, events] : {std::pair<int, std::string>{ToFile, "options file "},
                                         {ToWindow, "options window "},
                                         {ToClipboard, "options clipboard "},
                                         {7, "options "}}) {
        Bench bench;
        bench.settings.SampleSize = 10;
        bench.settings.CodeAlphaNum = Numeric;
        bench.settings.CodeLength = 3;
        bench.settings.OutputOption = option;
        bench.generation.cmdGenerate_Click();
        EXPECT_EQ(bench.events, events);
        EXPECT_EQ(bench.results.CodeArr.size(), 10U);
        EXPECT_EQ(bench.desktop.pointer.Calls, "BN");
    }
}

TEST(Generation, ACancelKeepsTheEarlierListAndRunsNoReport) {
    Bench bench;
    bench.settings.SampleSize = 10;
    bench.settings.PerformRuns = true;
    bench.results.BlockSizes = {0, 4};
    bench.results.CodeArr = {"a", "b", "c", "d"};
    bench.whileOptionsOpen = [&] { bench.settings.SelectedCmd = ClosedByCancel; };
    bench.generation.cmdGenerate_Click();
    EXPECT_EQ(bench.events, "options ");
    EXPECT_EQ(bench.results.CodeArr.size(), 4U);
    EXPECT_EQ(bench.results.BlockSizes.size(), 2U);
    EXPECT_EQ(bench.desktop.pointer.Calls, "BN");
}

TEST(Generation, OtherItemsOfTheMenuOnlyTouchThePointer) {
    Bench bench;
    bench.settings.SampleSize = 10;
    bench.results.MinPValue = 0.25F;
    for (const std::int16_t index : std::vector<std::int16_t>{0, 1, 3})
        bench.generation.mnuSequence_Click(index);
    EXPECT_EQ(bench.events, "");
    EXPECT_EQ(bench.desktop.pointer.Calls, "BNBNBN");
    EXPECT_EQ(bench.results.MinPValue, 0.25F);
}

TEST(Generation, TellsThePValuesOfTheBlocksThatWereTested) {
    const struct {
        bool performRuns;
        std::vector<float> pValues;
        std::string message;
    } rows[] = {
        {false, {}, ""},
        {true, {}, ""},
        {true, {0.31069F}, "P value of Runs test = 0.3107"},
        {true, {0.3989423F, 0.3989423F}, "P value of Runs test = 0.3989"},
        {true, {0.25F, 0.1F, 0.3F}, "Runs test:\r\nMinimum P value = 0.1\r\nMaximum P value = 0.3"},
    };
    for (const auto& row : rows) {
        Bench bench;
        bench.settings.SampleSize = 10;
        bench.settings.CodeLength = 3;
        bench.settings.PerformRuns = row.performRuns;
        bench.whileReporting = [&] {
            for (const float p : row.pValues) {
                bench.results.MinPValue = std::min(bench.results.MinPValue, p);
                bench.results.MaxPValue = std::max(bench.results.MaxPValue, p);
            }
        };
        bench.generation.cmdGenerate_Click();
        EXPECT_EQ(bench.desktop.messages.Take(), row.message);
        // Each generation starts anew, and only a cancel keeps it from its report.
        bench.whileOptionsOpen = [&] { bench.settings.SelectedCmd = NotClosedByButton; };
        bench.whileReporting = [&] {
            bench.results.MinPValue = std::min(bench.results.MinPValue, 0.005F);
            bench.results.MaxPValue = std::max(bench.results.MaxPValue, 0.005F);
        };
        bench.generation.cmdGenerate_Click();
        EXPECT_EQ(bench.desktop.messages.Take(), row.performRuns ? "P value of Runs test = 0.005" : "");
    }
}

} // namespace
} // namespace orvane
