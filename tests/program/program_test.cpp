// What only the program on a display shows. Start through tools/on_display.
#include "tools/driving/user.h"

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

TEST_F(ProgramTest, GeneratesOnceAtADoubleClick) {
    user.KeepSettings({.SampleSize = "8"});
    user.StartProgram();
    user.Click(MainTitle, "push button", "Generate Random List", 2);
    const Window options = desktop.Await(OptionsTitle);
    desktop.Press({"Escape"});
    desktop.AwaitGone(options);
    user.ExpectQuiet();
    EXPECT_EQ(user.Exit(), 0);
}

TEST_F(ProgramTest, DropsClicksAndKeysWhileItIsBusyButNotARequestToClose) {
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

/// A signal while the user does something.
struct SignalRow {
    const char* Name;
    const char* SampleSize;
    int Signal;
    int OutputOption;
    void (*Do)(Desktop& desktop, User& user);
};

void PrintTo(const SignalRow& row, std::ostream* stream) {
    *stream << row.Name;
}

class SignalTest : public ProgramTest, public testing::WithParamInterface<SignalRow> {};

TEST_P(SignalTest, ClosesTheWindowsTheRegularWay) {
    const SignalRow& row = GetParam();
    SettingsText settings{.CodeLength = 5, .OutputOption = row.OutputOption};
    user.KeepSettings(settings);
    user.StartProgram();
    settings.SampleSize = row.SampleSize;
    user.Fill(MainTitle, "Sample Size", settings.SampleSize);
    row.Do(desktop, user);
    desktop.Signal(row.Signal);
    EXPECT_EQ(desktop.AwaitEnd(), 0);
    EXPECT_FALSE(HasTemporaryList());
    EXPECT_EQ(ReadFile(user.SavedSettings()), BytesOf(settings));
}

const SignalRow Signals[] = {
    {"InAList", "8", SIGTERM, 1,
     [](Desktop& desktop, User& user) {
         user.Generate();
         desktop.Await(OutputTitle);
     }},
    {"InTheOptions", "8", SIGHUP, 0, [](Desktop& /*desktop*/, User& user) { user.OpenOptions(); }},
    {"InAPrompt", "8", SIGINT, 0,
     [](Desktop& desktop, User& user) {
         user.Generate();
         desktop.Await(SaveListTitle);
     }},
    {"InAMessage", "0", SIGTERM, 0,
     [](Desktop& desktop, User& user) {
         user.AwaitMain();
         desktop.Press({"Return"});
         user.AwaitMessage();
     }},
    {"DuringAShuffle", BusySampleSize, SIGTERM, 1,
     [](Desktop& /*desktop*/, User& user) { user.Generate(); }}};

INSTANTIATE_TEST_SUITE_P(Signals, SignalTest, testing::ValuesIn(Signals),
                         [](const auto& row) { return row.param.Name; });

} // namespace

} // namespace orvane::driving
