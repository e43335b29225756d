// The program as it is delivered, on a display of its own.
#include "files.h"
#include "user.h"
#include "written_lists.h"
#include "x_desktop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <string>

namespace orvane::tour {

namespace fs = std::filesystem;

namespace {

const fs::path ProgramFolder = APP_FOLDER;
const fs::path Assets = ASSETS;
// One block of so many subjects keeps the program busy for a second or more.
constexpr const char* BusySampleSize = "7000";

class ProgramTest : public testing::Test {
  protected:
    void TearDown() override {
        if (HasFailure())
            std::cerr << desktop.Complaints();
    }

    void AwaitSampleSize(const std::string& text) {
        user.AwaitControl(MainTitle, "the sample size \"" + text + "\"", [&](const Control& control) {
            return control.Role == "text" && control.Name == "Sample Size" && control.Text == text;
        });
    }

    void OpenOptions() {
        user.AwaitMain();
        desktop.Press({"Return"});
        desktop.Await(OptionsTitle);
    }

    /// Starts a generation with the options as they are.
    void Generate() {
        OpenOptions();
        desktop.Press({"Return"});
    }

    XDesktop desktop;
    User user{desktop, ProgramFolder};
};

struct OneRun {
    const char* Name;
    bool HasSettings;
    bool BoxChecked;
    bool ByFrame;
};

void PrintTo(const OneRun& run, std::ostream* stream) {
    *stream << run.Name;
}

class OneRunTest : public ProgramTest, public testing::WithParamInterface<OneRun> {
  protected:
    /// A start with a missing saved.stg reports that once, in front of a main window that works.
    void Start() {
        const fs::path file = user.SavedSettings();
        const bool reports = !fs::exists(file);
        user.StartProgram();
        if (reports) {
            const Message report = user.AwaitMessage();
            EXPECT_TRUE(report.Text.starts_with("Error Description: "));
            EXPECT_NE(report.Text.find(file.string()), std::string::npos) << report.Text;
            EXPECT_NE(report.Text.find("\nError Number: "), std::string::npos) << report.Text;
            EXPECT_NE(report.Text.find("\nError Source: "), std::string::npos) << report.Text;
            EXPECT_TRUE(std::ranges::any_of(desktop.Windows(),
                                            [](const Window& window) { return window.Title == MainTitle; }));
            user.Confirm(report);
        }
        user.ExpectQuiet();
        EXPECT_TRUE(user.Find(MainTitle, "check box", "Save settings on exit").Checked);
    }
};

TEST_P(OneRunTest, KeepsItsSettingsWhileTheBoxIsChecked) {
    const fs::path file = user.SavedSettings();
    const std::string before = ReadFile(Assets / "saved.stg");
    EXPECT_EQ(before, BytesOf({}));
    WriteFile(file, before);
    const auto time = fs::last_write_time(file) - std::chrono::hours(1);
    fs::last_write_time(file, time);
    if (!GetParam().HasSettings)
        user.ForgetSettings();

    Start();
    user.FocusOn(MainTitle, "Sample Size");
    desktop.Type("25");
    AwaitSampleSize("25");
    if (!GetParam().BoxChecked) {
        user.FocusOn(MainTitle, "Save settings on exit");
        desktop.Press({"space"});
    }
    EXPECT_EQ(GetParam().ByFrame ? user.CloseFrame() : user.Exit(), 0);

    if (GetParam().BoxChecked) {
        Settings kept;
        if (!GetParam().HasSettings)
            kept = {.Groups = {"", ""}, .CodeAlphaNum = 0, .CodeLength = 0};
        kept.SampleSize = "25";
        EXPECT_EQ(ReadFile(file), BytesOf(kept));
    } else if (GetParam().HasSettings) {
        EXPECT_EQ(ReadFile(file), before);
        EXPECT_EQ(fs::last_write_time(file), time);
    } else {
        EXPECT_FALSE(fs::exists(file));
    }

    Start();
    AwaitSampleSize(GetParam().BoxChecked ? "25" : "");
    EXPECT_EQ(user.Exit(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Runs, OneRunTest,
    testing::Values(OneRun{"SavedByExit", true, true, false}, OneRun{"SavedByFrame", true, true, true},
                    OneRun{"KeptByExit", true, false, false}, OneRun{"KeptByFrame", true, false, true},
                    OneRun{"FirstSave", false, true, false}, OneRun{"NothingSaved", false, false, true}),
    [](const auto& row) { return row.param.Name; });

TEST_F(ProgramTest, LoadedSettingsComeBackAtTheNextStart) {
    const Settings trial{.Groups = {"Drug A", " Drug B ", "Placebo"},
                         .SampleSize = "60",
                         .CodeAlphaNum = 2,
                         .CodeSeqRandom = 1,
                         .CodeLength = 4,
                         .BlockOption = 2,
                         .UnEqBlockSize = "6,12",
                         .OutputOption = 1};
    const fs::path file = desktop.Folder() / "a trial.stg";
    WriteFile(file, BytesOf(trial));
    user.StartProgram();
    user.Choose({"File", "Load Settings"});
    user.Answer(desktop.Await(LoadSettingsTitle), file.string());
    const Message message = user.AwaitMessage();
    EXPECT_EQ(message.Text, "Settings were loaded successfully!");
    user.Confirm(message);
    EXPECT_EQ(user.Exit(), 0);
    EXPECT_EQ(ReadFile(user.SavedSettings()), BytesOf(trial));

    user.StartProgram();
    user.ExpectQuiet();
    for (const std::string& group : trial.Groups)
        user.Find(MainTitle, "cell", group);
    AwaitSampleSize("60");
    user.OpenMenu({"Sequence", "Output", "To Window"});
    EXPECT_TRUE(user.Find(MainTitle, "menu item", "To Window").Checked);
    user.LeaveMenu();
    EXPECT_EQ(user.CloseFrame(), 0);
}

TEST_F(ProgramTest, ATextListOpensInTheViewerOfItsType) {
    user.KeepSettings({.SampleSize = "12", .BlockOption = 1, .EqBlockSize = "4"});
    user.StartProgram();
    Generate();
    const fs::path list = desktop.Folder() / "lists of a trial" / "first list.txt";
    fs::create_directories(list.parent_path());
    user.Answer(desktop.Await(SaveListTitle), list.string());
    desktop.AwaitThat("the viewer", [&] { return !desktop.Viewed().empty(); });
    EXPECT_EQ(desktop.Viewed(), (std::vector<Words>{{"reader", list.string()}}));
    const auto blocks = BlocksOfText(ReadFile(list));
    EXPECT_EQ(blocks.size(), 4U);
    Judge(blocks, {{"Group 1", "Group 2"}, {4}, 16, 3, "0123456789"});
    user.ExpectQuiet();
    EXPECT_EQ(user.Exit(), 0);
}

TEST_F(ProgramTest, TheClipboardServesOtherPrograms) {
    user.KeepSettings({.SampleSize = "8", .BlockOption = 1, .EqBlockSize = "4", .OutputOption = 2});
    user.StartProgram();
    std::string expected;
    for (int block = 0; block < 3; ++block) {
        for (int cell = 0; cell < 4; ++cell)
            expected += "000: Group 0        ";
        expected.append(36, ' ').append("\r\n").append(110, '=').append("\r\n");
    }
    const auto pastedShape = [&] {
        std::string text = desktop.Pasted();
        std::ranges::replace_if(
            text, [](char c) { return c >= '1' && c <= '9'; }, '0');
        return text;
    };
    for (int generation = 0; generation < 2; ++generation) {
        Generate();
        const Message message = user.AwaitMessage();
        EXPECT_EQ(message.Text, "Data were copied into clipboard successfuly!");
        EXPECT_EQ(pastedShape(), expected);
        user.Confirm(message);
    }
    user.ExpectQuiet();
    EXPECT_EQ(pastedShape(), expected);
    EXPECT_EQ(user.Exit(), 0);
}

TEST_F(ProgramTest, WhatArrivesDuringAGenerationIsDropped) {
    user.KeepSettings({.SampleSize = BusySampleSize, .CodeLength = 5, .OutputOption = 2});
    user.StartProgram();
    user.AwaitMain();
    const Box button = user.Find(MainTitle, "push button", "Generate Random List").Place;
    OpenOptions();
    desktop.Press({"Return", "Return", "Return"});
    desktop.Click(button, 2);
    desktop.Press({"space", "alt+F4", "Return"});
    const Message message = user.AwaitMessage();
    EXPECT_EQ(message.Text, "Data were copied into clipboard successfuly!");
    user.Confirm(message);
    user.ExpectQuiet();
    EXPECT_EQ(user.Exit(), 0);
}

TEST_F(ProgramTest, ADoubleClickGeneratesOnce) {
    user.KeepSettings({.SampleSize = "8"});
    user.StartProgram();
    user.AwaitMain();
    desktop.Click(user.Find(MainTitle, "push button", "Generate Random List").Place, 2);
    const Window options = desktop.Await(OptionsTitle);
    desktop.Press({"Escape"});
    desktop.AwaitGone(options);
    user.ExpectQuiet();
    EXPECT_EQ(user.Exit(), 0);
}

} // namespace

} // namespace orvane::tour
