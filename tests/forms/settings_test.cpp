// Settings files, read and written through the main window.

#include "fakes/desktop.h"
#include "fakes/settings_text.h"
#include "forms/flex_grid_widget.h"
#include "forms/line_box.h"
#include "forms/main_form.h"
#include "settings/settings_file.h"
#include "window_driver.h"

#include <QAction>

namespace orvane {
namespace {

using namespace fakes;

const std::string SavedPath = "/program/saved.stg";
const std::string Loaded = "Settings were loaded successfully!";

Texts LinesOf(std::string bytes) {
    Texts lines;
    for (std::size_t end = 0; (end = bytes.find("\r\n")) != std::string::npos; bytes.erase(0, end + 2))
        lines.push_back(bytes.substr(0, end));
    return lines;
}
std::string Joined(const Texts& lines, const std::string& lineEnd = "\r\n") {
    std::string bytes;
    for (const std::string& line : lines)
        bytes += line + lineEnd;
    return bytes;
}

/// Two set-ups that have no value in common but the number of groups, line by line.
const Texts Before = LinesOf(BytesOf({{"x", "y", "z"}, "7", 2, 1, 9, 1, "9", "8", 2}));
const Texts File = LinesOf(BytesOf({{"Drug A", "Drug B", ""}, "60", 1, 0, 4, 2, " 4 - 6 ", "6,12", 1}));

/// The first `count` lines of File, then those of Before.
Texts LoadedUpTo(std::size_t count) {
    Texts lines = Before;
    std::copy_n(File.begin(), count, lines.begin());
    return lines;
}

struct SettingsTest : testing::Test {
    SettingsTest() {
        desktop.files.Contents[SavedPath] = Joined(Before);
        form.Open();
        form.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    /// Triggers a menu item. Returns its only message, "report" for the error report.
    std::string Trigger(const std::string& item, const std::optional<std::string>& answer) {
        dialog.Answers = {answer};
        Find<QAction>(form, item).trigger();
        EXPECT_EQ(desktop.files.Open, 0);
        const std::string text = desktop.messages.Take();
        return text.starts_with("Error Description: ") ? "report" : text;
    }
    std::string Save() { return Trigger("mnuFile_1", "/s.stg"); }
    std::string Load(const std::string& bytes) {
        desktop.files.Contents["/l.stg"] = bytes;
        return Trigger("mnuFile_0", "/l.stg");
    }
    /// The lines of what "Save Settings" writes.
    Texts State() {
        EXPECT_EQ(Save(), "Settings were saved successfully!");
        return LinesOf(desktop.files.Contents["/s.stg"]);
    }
    struct Opening {
        std::function<void()> ShowModal;
    };
    void WithOptions(const Script& script) {
        Opening opening{[this] { Find<QAction>(form, "mnuView_1").trigger(); }};
        WhileOpen(opening, script);
    }

    FakeDesktop desktop;
    ScriptedDialog dialog;
    ScriptedDialog outputDialog;
    MainForm form{desktop.platform, dialog, outputDialog};
};

TEST_F(SettingsTest, AreWrittenByteForByteAndReadBackThroughTheirPrompts) {
    EXPECT_EQ(State(), Before);
    dialog.Flags = 7;
    EXPECT_EQ(Load(Joined(File)), Loaded);
    EXPECT_EQ(State(), File);
    EXPECT_EQ(desktop.files.Contents["/s.stg"], Joined(File));
    const std::string filter = "|Settings file (*.stg)|*.stg";
    const std::string save = "save 2, settings|Save Settings As..." + filter;
    EXPECT_EQ(dialog.Shown, (Texts{save, "open 7, settings|Select the Settings file" + filter, save}));
    EXPECT_EQ(dialog.DefaultExt, "htm");
    const auto& grid = Find<FlexGridWidget>(form, "GroupNameGrid");
    EXPECT_EQ(grid.Row() * 10 + grid.Col(), 31);
    WithOptions([](QDialog& window) {
        EXPECT_EQ(Find<LineBox>(window, "txtLevel").text(), "0.05");
        Click(window, "cmdCancel");
    });
}

TEST_F(SettingsTest, AFileThatEndsEarlyAppliesTheLinesBeforeItsEnd) {
    for (std::size_t lines = 0; lines < File.size(); ++lines) {
        Load(Joined(Before));
        EXPECT_EQ(Load(Joined({File.begin(), File.begin() + static_cast<std::ptrdiff_t>(lines)})), "report");
        EXPECT_EQ(State(), LoadedUpTo(lines)) << lines << " lines";
    }
}

TEST_F(SettingsTest, AValueIsTakenOrEndsTheLoad) {
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
            Load(Joined(Before));
            Texts lines = File;
            lines[line - 1] = text;
            EXPECT_EQ(Load(Joined(lines)), saved.empty() ? "report" : Loaded);
            Texts expected = saved.empty() ? LoadedUpTo(line - 1) : File;
            if (!saved.empty())
                expected[line - 1] = saved;
            EXPECT_EQ(State(), expected) << line << ": " << text;
        }
}

TEST_F(SettingsTest, WhatNoLineCanHoldIsRefusedBeforeTheFileIsOpenedAndReplacedAtTheEnd) {
    auto& grid = Find<FlexGridWidget>(form, "GroupNameGrid");
    std::int16_t row = 0;
    desktop.files.Contents["/s.stg"] = "kept";
    const auto refused = [&] { return Save() + desktop.files.Contents["/s.stg"]; };
    const std::string tooLarge(SettingsFile::LargestFile, 'x');
    for (const std::string& text : {std::string("a\rb"), std::string("a\u2265b"), tooLarge}) {
        grid.SetRow(++row);
        grid.SetText(text);
        EXPECT_EQ(refused(), "reportkept");
        grid.SetText("a");
    }
    for (const auto& [size, sizes] : {std::pair("\u2265", "4"), {"4", "\u2265"}}) {
        WithOptions([s = QString(size), list = QString(sizes)](QDialog& window) {
            Click(window, "BlkOpt_0");
            Find<LineBox>(window, "EqBlockSizeTxt").setText(s);
            Find<LineBox>(window, "UnEqBlockSizeTxt").setText(list);
            Click(window, "cmdOK");
        });
        EXPECT_EQ(refused(), "reportkept");
    }
    grid.SetText("a\u2265\rb");
    form.close();
    EXPECT_NE(desktop.messages.Take().find("were saved as \"?\": \"\u2265\" (U+2265), a line end\r\n"),
              std::string::npos);
    EXPECT_EQ(LinesOf(desktop.files.Contents[SavedPath])[5], "a??b");
}

TEST_F(SettingsTest, WhatFailsIsReportedOnceAndACancelIsQuiet) {
    for (const char* call : {"OpenForOutput", "Write", "Close"}) {
        desktop.files.Fails = {call};
        EXPECT_EQ(Save(), "report") << call;
    }
    desktop.files.Fails.clear();
    EXPECT_EQ(Trigger("mnuFile_0", "/missing.stg"), "report");
    desktop.files.Log.clear();
    for (const std::string item : {"mnuFile_0", "mnuFile_1"}) {
        EXPECT_EQ(Trigger(item, std::nullopt), "");
        dialog.Fails = {"open ", "save "};
        EXPECT_EQ(Trigger(item, "/s.stg"), "report");
        dialog.Fails.clear();
    }
    EXPECT_EQ(desktop.files.Log, Texts{});
    EXPECT_EQ(State(), Before);
}

} // namespace
} // namespace orvane
