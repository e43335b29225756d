#include "settings/settings_bench.h"

#include <gtest/gtest.h>

#include <array>
#include <tuple>
#include <utility>

namespace orvane {

namespace {

const std::string Saved = "Settings were saved successfully!";
const std::string Loaded = "Settings were loaded successfully!";

/// The values of OtherBench once the first lines of the example are read into them.
auto LoadedUpTo(std::size_t lines) {
    auto values = OtherBench().Values();
    for (const auto& [line, value] : ExampleBench().Values())
        if (line == 0 ? lines == ExampleLines.size() : line <= lines)
            values[line] = value;
    return values;
}

} // namespace

TEST(SettingsFile, WritesTheExampleByteForByteAndReadsItBack) {
    ExampleBench bench;
    bench.Disk() = "an older, longer file" + std::string(5000, '.');
    bench.grid.SetCol(0); // as after a start without settings
    bench.file.SaveSettings("a.stg", true, Unmappable::Fail);
    EXPECT_EQ(bench.Said(), Saved);
    EXPECT_EQ(bench.Disk(), Joined(ExampleLines));
    EXPECT_EQ(bench.grid.Row(), 3);
    EXPECT_EQ(bench.grid.Col(), 1);

    OtherBench other;
    other.grid.SetCol(0);
    EXPECT_EQ(other.Load(bench.Disk()), Loaded);
    EXPECT_EQ(other.Values(), bench.Values());
    EXPECT_EQ(other.grid.Names(), bench.grid.Names());
    EXPECT_EQ(other.menu.Checked, (std::array{false, true, false}));
    EXPECT_EQ(other.settings.SampleSize, 60);
    const ListSettings& kept = other.settings; // what no file holds
    EXPECT_EQ(std::tuple(kept.Columns, kept.TableBorder, kept.CellSpacing, kept.PerformRuns),
              std::tuple(2, true, 5, true));
    other.file.SaveSettings("b.stg", false, Unmappable::Fail);
    EXPECT_EQ(other.Disk("b.stg"), bench.Disk());
}

TEST(SettingsFile, WhatWasWrittenReadsBack) {
    std::string everyByte;
    for (int b = 255; b >= 0; --b)
        if (b != '\r')
            everyByte += static_cast<char>(b);
    const std::string page = fakes::WesternPage().Decode(everyByte);
    const std::vector<Texts> rows = {// three names, the two texts of block sizes
                                     {"", "", "", "", ""},
                                     {" a ", "\t", "  ", " 4 ", ",,"},
                                     {page, page, page, page, page},
                                     {std::string(TextFileReader::LongestLine, 'x'), "", "", "", ""},
                                     {"\n", "\nb", "c\n", "\n\n", "\n4"}};
    for (const Texts& row : rows) {
        ExampleBench bench;
        bench.grid.Name({row[0], row[1], row[2]});
        bench.settings.prEqBlockSize = row[3];
        bench.settings.prUnEqBlockSize = row[4];
        bench.settings.CodeAlphaNum = -2147483647;
        bench.settings.CodeLength = 32767;
        bench.file.SaveSettings("a.stg", false, Unmappable::Fail);
        OtherBench other;
        EXPECT_EQ(other.Load(bench.Disk()), Loaded);
        EXPECT_EQ(other.Values(), bench.Values());
    }
}

TEST(SettingsFile, RefusesWhatNoLineCanHoldBeforeTheFileIsOpened) {
    const std::string tooLong(TextFileReader::LongestLine + 1, 'x');
    for (const auto& [bad, written] :
         {std::pair<std::string, std::string>{"a\u2265b", "a?b"}, {"a\rb", "a?b"}, {tooLong, tooLong}})
        for (int field = 0; field < 3; ++field) {
            ExampleBench bench;
            bench.grid.Name({"Drug A", "Drug B", field == 0 ? bad : "Placebo"});
            (field == 1 ? bench.settings.prEqBlockSize : bench.settings.prUnEqBlockSize) =
                field == 0 ? "" : bad;
            bench.Disk() = "kept";
            bench.file.SaveSettings("a.stg", true, Unmappable::Fail);
            EXPECT_EQ(bench.Said(), "report");
            EXPECT_EQ(bench.Disk(), "kept");
            EXPECT_EQ(bench.grid.Row(), 0);
            bench.file.SaveSettings("a.stg", false, Unmappable::QuestionMark);
            EXPECT_NE(bench.Disk().find("\r\n" + written + "\r\n"), std::string::npos);
        }
}

TEST(SettingsFile, ADeviceThatFailsKeepsWhatItTookAndIsReportedOnce) {
    const std::string whole = Joined(ExampleLines);
    for (std::size_t capacity = 0; capacity <= whole.size(); ++capacity) {
        ExampleBench bench;
        bench.desktop.files.Capacity = capacity;
        bench.desktop.files.CloseFails = capacity == whole.size();
        bench.file.SaveSettings("a.stg", true, Unmappable::Fail);
        EXPECT_EQ(bench.Said(), "report");
        EXPECT_EQ(bench.Disk(), whole.substr(0, capacity));
        EXPECT_EQ(bench.desktop.files.Open, 0);
    }
    ExampleBench bench;
    bench.Disk() = "kept";
    bench.desktop.files.Closed = {"a.stg"};
    bench.file.SaveSettings("a.stg", true, Unmappable::Fail);
    EXPECT_EQ(bench.Said(), "report");
    EXPECT_EQ(bench.Disk(), "kept");
    EXPECT_EQ(bench.grid.Row(), 0);
}

TEST(SettingsFile, AFileThatEndsEarlyAppliesTheLinesBeforeItsEnd) {
    for (std::size_t lines = 0; lines < ExampleLines.size(); ++lines) {
        OtherBench bench;
        const auto start = ExampleLines.begin();
        EXPECT_EQ(bench.Load(Joined({start, start + static_cast<std::ptrdiff_t>(lines)})), "report");
        EXPECT_EQ(bench.Values(), LoadedUpTo(lines)) << lines << " lines";
        EXPECT_EQ(bench.desktop.files.Open, 0);
    }
}

TEST(SettingsFile, AValueIsTakenOrEndsTheLoad) {
    // The line of the example that is replaced, and the texts that stand there.
    const std::vector<std::pair<std::size_t, Texts>> limits = {
        {2, {"1", "17", "", "abc", "0", "-3", "16.6", "40000", "1E999"}},
        {10, {"3000000000"}},
        {12, {"1E999", "-2147483649"}},
        {14, {"32767.5", "-32769"}},
        {16, {"3E9"}},
        {22, {"5", "-1", "40000"}}};
    const auto loadWith = [](SettingsBench& bench, std::size_t line, const std::string& text) {
        Texts lines = ExampleLines;
        lines[line - 1] = text;
        return bench.Load(Joined(lines));
    };
    for (const auto& [line, texts] : limits)
        for (const std::string& text : texts) {
            OtherBench bench;
            EXPECT_EQ(loadWith(bench, line, text), "report");
            EXPECT_EQ(bench.Values(), LoadedUpTo(line - 1)) << line << ": " << text;
            const bool unmarked = text == "5" || text == "-1";
            EXPECT_EQ(bench.menu.Checked, (std::array{false, false, !unmarked})) << text;
            EXPECT_EQ(bench.grid.Names().size(), line == 2 ? 5U : 3U);
        }
    // What becomes of other texts.
    const std::vector<std::tuple<std::size_t, std::string, std::string>> taken = {
        {1, "changed", ""},      {2, "2.6abc", "3"},         {4, "", ""},      {8, "12abc", "12abc"},
        {8, "1E999", "1E999"},   {10, "-1.5", "-2"},         {12, "abc", "0"}, {14, "1 2", "12"},
        {16, "&HFFFF", "65535"}, {20, " 4 - 6 ", " 4 - 6 "}, {22, "1.5", "2"}, {22, "", "0"}};
    for (const auto& [line, text, value] : taken) {
        OtherBench bench;
        auto expected = LoadedUpTo(22);
        if (line > 1)
            expected[line] = value;
        EXPECT_EQ(loadWith(bench, line, text), Loaded);
        EXPECT_EQ(bench.Values(), expected) << line << ": " << text;
    }
}

TEST(SettingsFile, LinesCountByPositionAlone) {
    const std::string bytes = Joined(ExampleLines);
    for (const std::string& file : {bytes.substr(0, bytes.size() - 2), bytes.substr(0, bytes.size() - 1),
                                    Joined(ExampleLines, "\r"), bytes + "more\r\nlines"}) {
        OtherBench bench;
        EXPECT_EQ(bench.Load(file), Loaded);
        EXPECT_EQ(bench.Values(), LoadedUpTo(22));
    }

    OtherBench bench;
    EXPECT_EQ(bench.Load(Joined(ExampleLines, "\n")), "report"); // one line, as a lone LF ends none
    bench.desktop.files.ReadableBytes = 0;
    EXPECT_EQ(bench.Load(bytes), "report");
    bench.desktop.files.ReadableBytes = std::string::npos;
    bench.file.SetSettings("missing.stg", true);
    EXPECT_EQ(bench.Said(), "report");
    bench.file.SetSettings("", true);
    EXPECT_EQ(bench.Said(), "");
    EXPECT_EQ(bench.Values(), LoadedUpTo(0));
    EXPECT_EQ(bench.desktop.files.Open, 0);

    Texts lines = ExampleLines;
    lines.erase(lines.begin() + 2);
    EXPECT_EQ(bench.Load(Joined(lines)), "report"); // all values slide, and the last is missing
    EXPECT_EQ(bench.grid.Names(), (Texts{"Drug B", "Placebo", "[Sample Size]"}));
    EXPECT_EQ(bench.controls.SampSizeTxt, ExampleLines[8]);
    EXPECT_EQ(bench.settings.prUnEqBlockSize, "[Output Option]");
    EXPECT_EQ(bench.settings.OutputOption, ToClipboard);

    lines = ExampleLines;
    lines[1] = "3.5"; // four groups, and four names are read
    lines.insert(lines.begin() + 6, "Fourth");
    EXPECT_EQ(bench.Load(Joined(lines)), Loaded);
    EXPECT_EQ(bench.grid.Names(), (Texts{"Drug A", "Drug B", "Placebo", "Fourth"}));
    EXPECT_EQ(bench.controls.SampSizeTxt, "60");
}

} // namespace orvane
