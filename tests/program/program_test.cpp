// What only the program on a display shows. Start through tools/on_display.
#include "tour/user.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <string>

namespace orvane::driving {

namespace fs = std::filesystem;

namespace {

const fs::path ProgramFolder = APP_FOLDER;
// One block of so many subjects keeps the program busy for a second or more.
constexpr const char* BusySampleSize = "7000";
constexpr const char* Copied = "Data were copied into clipboard successfuly!";

class ProgramTest : public testing::Test {
  protected:
    void TearDown() override {
        if (HasFailure())
            std::cerr << desktop.Complaints();
    }

    [[nodiscard]] bool HasTemporaryList() const {
        return std::ranges::any_of(fs::directory_iterator(user.Folder()),
                                   [](const auto& entry) { return entry.path().extension() == ".tmp"; });
    }

    Desktop desktop;
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
        const bool reports = !fs::exists(user.SavedSettings());
        user.StartProgram();
        if (reports) {
            const Message report = user.AwaitMessage();
            EXPECT_TRUE(report.Text.starts_with("Error Description: "));
            EXPECT_NE(report.Text.find(user.SavedSettings().string()), std::string::npos) << report.Text;
            EXPECT_NE(std::ranges::count(desktop.Titles(), MainTitle), 0);
            user.Confirm(report);
        }
        user.ExpectQuiet();
        EXPECT_TRUE(user.Find(MainTitle, "check box", "Save settings on exit").Checked);
    }
};

TEST_P(OneRunTest, KeepsItsSettingsWhileTheBoxIsChecked) {
    const OneRun& run = GetParam();
    const std::string before = ReadFile(ProgramFolder / "saved.stg");
    WriteFile(user.SavedSettings(), before);
    if (!run.HasSettings)
        user.ForgetSettings();
    Start();
    user.Fill(MainTitle, "Sample Size", "25");
    if (!run.BoxChecked)
        user.Click(MainTitle, "check box", "Save settings on exit");
    EXPECT_EQ(run.ByFrame ? user.CloseFrame() : user.Exit(), 0);

    SettingsText kept;
    if (!run.HasSettings)
        kept = {.Groups = {"", ""}, .CodeAlphaNum = 0, .CodeLength = 0};
    kept.SampleSize = "25";
    EXPECT_EQ(ReadFile(user.SavedSettings()), run.BoxChecked ? BytesOf(kept) : run.HasSettings ? before : "");
    Start();
    user.AwaitText(MainTitle, "Sample Size", run.BoxChecked ? "25" : "");
    EXPECT_EQ(user.Exit(), 0);
}

INSTANTIATE_TEST_SUITE_P(Runs, OneRunTest,
                         testing::Values(OneRun{"SavedByExit", true, true, false},
                                         OneRun{"SavedByFrame", true, true, true},
                                         OneRun{"KeptByExit", true, false, false},
                                         OneRun{"FirstSave", false, true, false},
                                         OneRun{"NothingSaved", false, false, true}),
                         [](const auto& row) { return row.param.Name; });

/// The desktop that the program believes to be on.
class EnterTest : public ProgramTest, public testing::WithParamInterface<const char*> {};

TEST_P(EnterTest, PressesTheDefaultButtonFromEveryControl) {
    user.KeepSettings({.SampleSize = "12", .BlockOption = 1, .EqBlockSize = "6"});
    user.StartProgram(GetParam());
    user.AwaitMain();
    user.FocusOn(MainTitle, "Save settings on exit");
    Window options = user.OpenOptions();
    user.Fill(OptionsTitle, "Size of Equal Blocks", "4");
    desktop.Press({"Return"});
    const fs::path list = desktop.Folder() / GetParam() / "first list.txt";
    fs::create_directories(list.parent_path());
    user.Answer(desktop.Await(SaveListTitle), list.string());
    user.AwaitViewer("reader", list);
    const std::string text = ReadFile(list);
    EXPECT_EQ(std::ranges::count(text, ':'), 16) << text;
    user.ExpectQuiet();

    options = user.OpenOptions();
    desktop.Press({"ctrl+Tab", "ctrl+Tab", "ctrl+Tab"});
    user.FocusOn(OptionsTitle, "Runs test on generated sequence");
    desktop.Press({"KP_Enter"});
    const Window prompt = desktop.Await(SaveListTitle);
    desktop.Press({"Escape"});
    desktop.AwaitGone(prompt);
    options = user.OpenOptions();
    desktop.Press({"ctrl+Tab", "ctrl+Tab", "ctrl+Tab"});
    EXPECT_FALSE(user.Find(OptionsTitle, "check box", "Runs test on generated sequence").Checked);
    desktop.Press({"Escape"});
    desktop.AwaitGone(options);
    EXPECT_TRUE(user.Find(MainTitle, "check box", "Save settings on exit").Checked);
    EXPECT_EQ(user.CloseFrame(), 0);
}

INSTANTIATE_TEST_SUITE_P(Desktops, EnterTest, testing::Values("GNOME", "KDE"),
                         [](const auto& row) { return std::string(row.param); });

TEST_F(ProgramTest, TheClipboardServesOtherPrograms) {
    user.KeepSettings({.SampleSize = "8", .BlockOption = 1, .EqBlockSize = "4", .OutputOption = 2});
    user.StartProgram();
    for (int generation = 0; generation < 2; ++generation) {
        user.Generate();
        const Message message = user.AwaitMessage();
        EXPECT_EQ(message.Text, Copied);
        EXPECT_TRUE(desktop.Pasted().starts_with("001: Group "));
        user.Confirm(message);
    }
    const std::string pasted = desktop.Pasted();
    EXPECT_EQ(std::ranges::count(pasted, '\n'), 6) << pasted;
    EXPECT_EQ(user.Exit(), 0);
}

TEST_F(ProgramTest, OnlyARequestToCloseOutlastsAGeneration) {
    user.KeepSettings({.SampleSize = BusySampleSize, .CodeLength = 5, .OutputOption = 2});
    user.StartProgram();
    user.AwaitMain();
    desktop.Point(ScreenReader::PlaceOf(user.Find(MainTitle, "push button", "Generate Random List")));
    user.OpenOptions();
    desktop.Press({"Return", "Return", "space", "Return"});
    desktop.Click(2);
    Message message = user.AwaitMessage();
    EXPECT_EQ(message.Text, Copied);
    user.Confirm(message);
    user.ExpectQuiet();

    user.OpenOptions();
    desktop.Press({"Return", "alt+F4"});
    message = user.AwaitMessage();
    EXPECT_EQ(message.Text, Copied);
    user.Confirm(message);
    EXPECT_EQ(desktop.AwaitEnd(), 0);
}

TEST_F(ProgramTest, ADoubleClickGeneratesOnce) {
    user.KeepSettings({.SampleSize = "8"});
    user.StartProgram();
    user.AwaitMain();
    user.Click(MainTitle, "push button", "Generate Random List", 2);
    const Window options = desktop.Await(OptionsTitle);
    desktop.Press({"Escape"});
    desktop.AwaitGone(options);
    user.ExpectQuiet();
    EXPECT_EQ(user.Exit(), 0);
}

class SignalTest : public ProgramTest, public testing::WithParamInterface<int> {};

TEST_P(SignalTest, ClosesTheWindowsTheRegularWay) {
    SettingsText settings{.OutputOption = 1};
    user.KeepSettings(settings);
    user.StartProgram();
    settings.SampleSize = "8";
    user.Fill(MainTitle, "Sample Size", settings.SampleSize);
    user.Generate();
    desktop.Await(OutputTitle);
    EXPECT_TRUE(HasTemporaryList());
    desktop.Signal(GetParam());
    EXPECT_EQ(desktop.AwaitEnd(), 0);
    EXPECT_FALSE(HasTemporaryList());
    EXPECT_EQ(ReadFile(user.SavedSettings()), BytesOf(settings));
}

INSTANTIATE_TEST_SUITE_P(Signals, SignalTest, testing::Values(SIGTERM, SIGHUP, SIGINT));

} // namespace

} // namespace orvane::driving
