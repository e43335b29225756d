#include "list_desk.h"

namespace orvane {
namespace {

const std::string Filter = "|htm file (*.htm)|*.htm|Text file (*.txt)|*.txt";

/// Writes down prompts and messages, each with the pointer under which it stands.
struct SavePrompt : testing::Test {
    SavePrompt() {
        desk.dialog.WhileShown = [this] { Note(desk.dialog.Shown.back()); };
        desk.desktop.messages.WhileShown = [this] { Note(desk.desktop.messages.Take()); };
    }
    void Note(const std::string& text) {
        events.push_back((desk.desktop.pointer.Busy ? "busy: " : "normal: ") + text);
    }
    static std::string Offering(const std::string& name) {
        return "normal: save 2, " + name + "|Save Orvane File As..." + Filter;
    }
    ListDesk desk;
    Texts events;
    const std::string noExtension = "busy: Only htm ot text files allowed!";
};

TEST_F(SavePrompt, IsRepeatedUntilTheNameIsAccepted) {
    const std::string reserved = "/program/randomization.htm";
    const std::string inUse = "normal: Selected file is in use by the program";
    desk.dialog.Answers = {reserved, reserved, "/x/list.html", reserved, "htm"};
    desk.Generate(ToFile);
    EXPECT_EQ(events, (Texts{Offering("output"), inUse, Offering(reserved), inUse, Offering(reserved),
                             noExtension, Offering("output"), inUse, Offering(reserved)}));
    EXPECT_EQ(desk.desktop.files.Log, Texts{"OpenForOutput htm"});
}

TEST_F(SavePrompt, JudgesTheLastThreeCharacters) {
    for (const char* name : {"LIST.HTM", "list.xhtm", "listtxt", "TxT", "/program/Randomization.htm",
                             "/program/../program/randomization.htm"})
        EXPECT_NE(ListDesk().ToTheFile(name), "no file") << name;
    for (const char* name : {"list.html", "tm", "", "list.htm ", "list.tx"}) {
        EXPECT_EQ(desk.ToTheFile(name), "no file") << name;
        EXPECT_EQ(events, (Texts{Offering("output"), noExtension, Offering("output")})) << name;
        events.clear();
    }
}

/// A saved list, chosen or not, on a desktop.
struct SavedList : testing::Test {
    void Choose(const std::optional<std::string>& answer) {
        desk.dialog.FileName = "the last use's";
        desk.dialog.Answers = {answer};
        DisplayRandomFile(desk.context, desk.dialog, desk.window);
    }
    ListDesk desk;
    FakeShell& shell = desk.desktop.shell;
    ScriptedMessageBox& messages = desk.desktop.messages;
};

TEST_F(SavedList, IsShownInTheBrowserWhenItIsAWebPage) {
    Choose("/x/list.HTM");
    EXPECT_EQ(shell.Started, Texts{"viewer /x/list.HTM"});
    EXPECT_EQ(shell.LastOwner, 77);
    EXPECT_EQ(desk.dialog.Shown, Texts{"open 0, the last use's|Select the random file" + Filter});
}

TEST_F(SavedList, WithoutABrowserThatStartsGetsAMessage) {
    shell.Starts = 32;
    Choose("/x/list.htm");
    EXPECT_EQ(messages.Take(), "(!) URL Failed: Web Page not Opened");
    shell.Found = 32;
    Choose("/x/list.htm");
    EXPECT_EQ(messages.Take(), "(!) Browser Not Found: Could not find associated Browser");
    EXPECT_EQ(shell.Started.size(), 1U);
}

TEST_F(SavedList, OfAnyOtherKindIsShownInTheWindowAndKept) {
    desk.desktop.files.Contents["/x/list.html"] = "a list";
    Choose("/x/list.html");
    EXPECT_EQ(desk.window.Shown, Texts{"a list"});
    EXPECT_FALSE(desk.window.Temporary);
}

TEST_F(SavedList, IsNotShownAfterACancelOrAFailure) {
    Choose(std::nullopt);
    EXPECT_EQ(messages.Take(), "");
    desk.dialog.Fails = {"open "};
    Choose("/x/list.txt");
    EXPECT_EQ(messages.Take(), Report("cannot open ", 5, "a fake"));
    EXPECT_EQ(desk.window.Shown, Texts{});
}

} // namespace
} // namespace orvane
