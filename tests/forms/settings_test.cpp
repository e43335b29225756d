// Settings files, read and written through the main window.

#include "settings/settings_file.h"
#include "windows.h"

namespace orvane {
namespace {

Texts LinesOf(std::string bytes) {
    Texts lines;
    for (std::size_t end = 0; (end = bytes.find("\r\n")) != std::string::npos; bytes.erase(0, end + 2))
        lines.push_back(bytes.substr(0, end));
    return lines;
}
/// The bytes of the first `count` lines.
std::string Joined(const Texts& lines, std::size_t count = 22) {
    std::string bytes;
    for (std::size_t line = 0; line < count; ++line)
        bytes += lines[line] + "\r\n";
    return bytes;
}

/// Two set-ups of 22 lines that have no value in common but the number of groups.
const SettingsText Before{{"x", "y", "z"}, "7", 2, 1, 9, 1, "9", "8", 2};
const SettingsText After{{"Drug A", "Drug B", ""}, "60", 1, 0, 4, 2, " 4 - 6 ", "6,12", 1};
const Texts File = LinesOf(BytesOf(After));

struct Settings : MainFormTest {
    Settings() { Open(Before); }
    /// What a file sets of which only so many lines count.
    static std::string LoadedUpTo(std::size_t count) {
        Texts lines = LinesOf(BytesOf(Before));
        std::copy_n(File.begin(), count, lines.begin());
        return Joined(lines);
    }
};

TEST_F(Settings, AreWrittenByteForByteAndReadBackThroughTheirPrompts) {
    EXPECT_EQ(Saved(), BytesOf(Before));
    dialog.Flags = 7;
    EXPECT_EQ(Load(BytesOf(After)), Loaded);
    EXPECT_EQ(Saved(), BytesOf(After));
    const std::string filter = "|Settings file (*.stg)|*.stg";
    const std::string save = "save 2, settings|Save Settings As..." + filter;
    EXPECT_EQ(dialog.Shown, (Texts{save, "open 7, settings|Select the Settings file" + filter, save}));
    EXPECT_EQ(dialog.DefaultExt, "htm");
    EXPECT_EQ(Grid().Row() * 10 + Grid().Col(), 31);
    WithOptions([&] { Choose("mnuView_1"); },
                [](QDialog& window) {
                    EXPECT_EQ(Find<LineBox>(window, "txtLevel").text(), "0.05");
                    Click(window, "cmdCancel");
                });
}

TEST_F(Settings, AFileThatEndsEarlyAppliesTheLinesBeforeItsEnd) {
    for (std::size_t lines = 0; lines < File.size(); ++lines) {
        Load(BytesOf(Before));
        EXPECT_EQ(Load(Joined(File, lines)), "report");
        EXPECT_EQ(Saved(), LoadedUpTo(lines)) << lines << " lines";
    }
}

TEST_F(Settings, AValueIsTakenOrEndsTheLoad) {
    // The line that is replaced; the texts that stand there, and what is saved for them, "" for a refusal.
    const std::vector<std::tuple<std::size_t, Texts, std::string>> rows = {
        {2, {"1", "17", "", "abc", "-3", "16.6", "40000", "1E999"}, ""},
        {2, {"2.6abc"}, "3"},
        {8, {"12abc", "1 2"}, "12"},
        {8, {"1E999", ""}, "0"},
        {10, {"3000000000"}, ""},
        {10, {"-1.5"}, "-2"},
        {12, {"1E999", "-2147483649"}, ""},
        {14, {"32767.5", "-32769"}, ""},
        {14, {"32766.5"}, "32766"},
        {16, {"&HFFFF"}, "65535"},
        {22, {"3", "-1"}, ""},
        {22, {"1.5"}, "2"}};
    for (const auto& [line, texts, saved] : rows)
        for (const std::string& text : texts) {
            Load(BytesOf(Before));
            Texts lines = File;
            lines[line - 1] = text;
            EXPECT_EQ(Load(Joined(lines)), saved.empty() ? "report" : Loaded);
            lines[line - 1] = saved;
            EXPECT_EQ(Saved(), saved.empty() ? LoadedUpTo(line - 1) : Joined(lines)) << line << ": " << text;
        }
}

TEST_F(Settings, WhatNoLineCanHoldIsRefusedBeforeTheFileIsOpenedAndReplacedAtTheEnd) {
    const auto refused = [&] {
        desktop.files.Contents["/s.stg"] = "kept";
        return Choose("mnuFile_1", "/s.stg") + desktop.files.Contents["/s.stg"];
    };
    const std::string tooLarge(SettingsFile::LargestFile, 'x');
    for (std::int16_t row = 0; const std::string& text : {"a\rb"s, "a\u2265b"s, tooLarge}) {
        Grid().SetRow(++row);
        Grid().SetText(text);
        EXPECT_EQ(refused(), "reportkept");
        Grid().SetText("a");
    }
    Grid().SetText("a\u2265\rb");
    form->close();
    EXPECT_NE(desktop.messages.Take().find("were saved as \"?\": \"\u2265\" (U+2265), a line end\r\n"),
              std::string::npos);
    EXPECT_EQ(LinesOf(desktop.files.Contents[SavedPath])[5], "a??b");
}

TEST_F(Settings, WhatFailsIsReportedOnceAndACancelIsQuiet) {
    for (const char* call : {"OpenForOutput", "Write", "Close"}) {
        desktop.files.Fails = {call};
        EXPECT_EQ(Choose("mnuFile_1", "/s.stg"), "report") << call;
    }
    desktop.files.Fails.clear();
    EXPECT_EQ(Choose("mnuFile_0", "/missing.stg"), "report");
    desktop.files.Log.clear();
    for (const std::string item : {"mnuFile_0", "mnuFile_1"}) {
        EXPECT_EQ(Choose(item, std::nullopt), "");
        dialog.Fails = {"open ", "save "};
        EXPECT_EQ(Choose(item, "/s.stg"), "report");
        dialog.Fails.clear();
    }
    EXPECT_EQ(desktop.files.Log, Texts{});
    EXPECT_EQ(Saved(), BytesOf(Before));
}

} // namespace
} // namespace orvane
