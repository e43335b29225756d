#include "output/output_channels.h"

#include "list_desk.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <tuple>

namespace orvane {
namespace {

constexpr const char* ListFilter = "htm file (*.htm)|*.htm|Text file (*.txt)|*.txt";

struct MarkedMenu : OutputMenu {
    [[nodiscard]] std::int16_t Count() const override { return 3; }
    void SetChecked(std::int16_t Index, bool checked) override {
        Marks.at(static_cast<std::size_t>(Index)) = checked ? '*' : '.';
    }
    std::string Marks = "*..";
};

TEST(OutputMenu, MovesTheMarkAndTheChannel) {
    MarkedMenu menu;
    ListSettings settings;
    for (const auto& [Index, marks] : {std::pair{2, "..*"}, {2, "..*"}, {1, ".*."}, {0, "*.."}, {1, ".*."}}) {
        mnuOutput_Click(static_cast<std::int16_t>(Index), menu, settings);
        EXPECT_EQ(menu.Marks, marks);
        EXPECT_EQ(settings.OutputOption, Index);
    }
    for (const std::int16_t Index : std::array<std::int16_t, 2>{-1, 3}) {
        menu.Marks = ".*.";
        EXPECT_THROW(mnuOutput_Click(Index, menu, settings), Failure);
        EXPECT_EQ(menu.Marks, "...");
        EXPECT_EQ(settings.OutputOption, 1);
    }
}

/// Writes down prompts and messages, each with the pointer under which it stands.
struct Prompts : testing::Test {
    Prompts() {
        desk.desktop.pointer.Busy = true;
        desk.dialog.WhileShown = [this] { Note(desk.dialog.FileName); };
        desk.desktop.messages.WhileShown = [this] { Note(desk.desktop.messages.Take()); };
    }
    void Note(const std::string& text) {
        events.push_back((desk.desktop.pointer.Busy ? "busy: " : "normal: ") + text);
    }
    ListDesk desk;
    Texts events;
};

TEST_F(Prompts, RepeatUntilANameIsAccepted) {
    const std::string reserved = "/program/randomization.htm";
    desk.dialog.Answers = {reserved, reserved, "/x/list.html", reserved, "htm"};
    desk.channels.OutputToFile();
    const std::string inUse = "normal: Selected file is in use by the program";
    const std::string extension = "busy: Only htm ot text files allowed!";
    EXPECT_EQ(events, (Texts{"normal: output", inUse, "normal: " + reserved, inUse, "normal: " + reserved,
                             extension, "normal: output", inUse, "normal: " + reserved}));
    EXPECT_EQ(desk.desktop.files.Log, Texts{"replace htm"});
    EXPECT_TRUE(desk.desktop.pointer.Busy);
    for (const auto& look : desk.dialog.Shown)
        EXPECT_EQ(std::tie(look.save, look.flags, look.title, look.filter),
                  std::tuple(true, 2, "Save Orvane File As...", ListFilter));
}

TEST_F(Prompts, DrawNothingAfterACancelOrAFailure) {
    desk.dialog.Answers = {"/x/list.doc", std::nullopt};
    desk.channels.OutputToFile();
    EXPECT_EQ(events, (Texts{"normal: output", "busy: Only htm ot text files allowed!", "normal: output"}));
    desk.dialog.Fails = Failure("no prompt", 9, "CommonDialog");
    desk.channels.OutputToFile();
    EXPECT_EQ(events.back(), "normal: " + Report("no prompt", 9, "CommonDialog"));
    EXPECT_EQ(desk.desktop.files.Log, Texts{});
    EXPECT_EQ(desk.desktop.random.Consumed, 0U);
}

TEST(OutputToFile, JudgesTheLastThreeCharacters) {
    for (const char* name : {"LIST.HTM", "list.xhtm", "listtxt", "TxT", "/program/Randomization.htm",
                             "/program/../program/randomization.htm"})
        EXPECT_NE(ListDesk().ToFile(name), "no file") << name;
    for (const char* name : {"list.html", "tm", "", "list.htm ", "list.tx"}) {
        ListDesk desk;
        EXPECT_EQ(desk.ToFile(name), "no file") << name;
        EXPECT_EQ(desk.desktop.messages.Take(), "Only htm ot text files allowed!") << name;
    }
}

TEST(DisplayRandomFile, ShowsWebPagesInTheBrowserAndAllElseInTheWindow) {
    using Answer = std::optional<std::string>;
    const std::vector<std::pair<Answer, std::string>> table = {
        {"/x/list.HTM", "viewer /x/list.HTM for 77"},
        {"/x/list.txt", "window: a\r\n"},
        {"/x/list.html", "window: b\r\n"},
        {"/x/gone.txt", Report("no file /x/gone.txt", 2, "MemoryFiles") + "window: "},
        {std::nullopt, ""},
        {"fails", Report("no prompt", 9, "CommonDialog")},
    };
    for (const auto& [answer, outcome] : table) {
        ListDesk desk;
        desk.desktop.files.Contents = {{"/x/list.txt", "a"}, {"/x/list.html", "b\r\n"}};
        desk.dialog.FileName = "what the last use left";
        desk.dialog.Answers = {answer};
        if (answer == "fails")
            desk.dialog.Fails = Failure("no prompt", 9, "CommonDialog");
        desk.channels.DisplayRandomFile();
        std::string seen =
            desk.desktop.messages.Take() + (desk.window.Shows == 1 ? "window: " : "") + desk.window.Text;
        for (const std::string& started : desk.desktop.shell.Started)
            seen += started + " for " + std::to_string(desk.desktop.shell.LastOwner);
        EXPECT_EQ(seen, outcome);
        EXPECT_EQ(desk.desktop.files.Contents.size(), 2U);
        const auto& look = desk.dialog.Shown.at(0);
        EXPECT_EQ(std::tie(look.save, look.fileName, look.title, look.filter),
                  std::tuple(false, "what the last use left", "Select the random file", ListFilter));
    }
}

} // namespace
} // namespace orvane
