// The Generate command from the button to the bytes of the list, and its three channels.

#include "list_desk.h"

namespace orvane {
namespace {

std::string Rule(std::size_t width) {
    return std::string(width, '=') + "\r\n";
}
std::string Blanks(std::size_t count) {
    return std::string().append(count, ' ');
}

TEST(Lists, StandInFilesTheWindowAndOnTheClipboard) {
    ListDesk desk;
    auto& [messages, pointer, files, clock, random, shell, board, keys, platform] = desk.desktop;
    const auto shuffle = [&] {
        desk.Exchange(6, {3, 4, 5, 6}); // leaves 1, 2, 2, 1, 2, 1
        desk.Exchange(4, {1, 2});       // leaves 2, 1, 1, 2
    };
    const std::string rows = "001: Group 1        003: Group 2        005: Group 2\r\n"
                             "002: Group 2        004: Group 1        006: Group 1\r\n";
    const std::string row3 = "007: Group 2        009: Group 1        ";
    const std::string row4 = "008: Group 1        010: Group 2        ";
    for (const int index : {35, 0, 34, 20, 1, 9, 10, 35, 0, 0, 0, 0, 0, 0, 0, 0})
        random.Values.insert(random.Values.begin(), UniformFor(0, 35, index));
    shuffle();
    files.Contents["/program/00000000.tmp"] = "another program's"; // so a second name is drawn
    EXPECT_EQ(desk.ToTheWindow(), rows + Rule(39) + row3 + "   \r\n" + row4 + "   \r\n" + Rule(39));
    EXPECT_EQ(random.ReseededAt, (std::vector<std::size_t>{16, 16 + 720})) << "once a block";
    EXPECT_EQ(files.Log, Texts{"CreatePrivate /program/ZA91KY0Z.tmp"});
    EXPECT_TRUE(desk.window.Name.second);

    shuffle();
    EXPECT_EQ(desk.ToTheBoard(), "001: Group 1        003: Group 2        005: Group 2        \r\n"
                                 "002: Group 2        004: Group 1        006: Group 1        \r\n" +
                                     Rule(55) + row3 + Blanks(18) + "\r\n" + row4 + Blanks(18) + "\r\n" +
                                     Rule(55));
    EXPECT_EQ(messages.Take(), BoardSuccess);

    shuffle();
    EXPECT_EQ(desk.ToTheFile("/lists/a.txt"), rows + Rule(55) + row3 + " \r\n" + row4 + " \r\n" + Rule(55));
    EXPECT_EQ(std::exchange(shell.LastOwner, 0), 77);

    shuffle();
    const std::string head = "<table border='0' cellspacing='1' width='100%' nowrap=1><tr>\r\n";
    EXPECT_EQ(
        desk.ToTheFile("/lists/a.htm"),
        "<html><head><title>Random Sequence</title></head><body style='font-family:Arial'>\r\n" + head +
            "<td>001: <b>Group 1</b></td>\r\n<td>003: <b>Group 2</b></td>\r\n<td>005: <b>Group 2</b></td>\r\n"
            "</tr><tr>\r\n"
            "<td>002: <b>Group 2</b></td>\r\n<td>004: <b>Group 1</b></td>\r\n<td>006: <b>Group 1</b></td>\r\n"
            "</tr></table>\r\n<hr>\r\n" +
            head +
            "<td>007: <b>Group 2</b></td>\r\n<td>009: <b>Group 1</b></td>\r\n<td>&nbsp;</td>\r\n"
            "</tr><tr>\r\n"
            "<td>008: <b>Group 1</b></td>\r\n<td>010: <b>Group 2</b></td>\r\n<td>&nbsp;</td>\r\n"
            "</tr></table>\r\n<hr>\r\n</body></html>\r\n");
    EXPECT_EQ(shell.Started, (Texts{"viewer /lists/a.txt", "viewer /lists/a.htm"}));
    EXPECT_EQ(shell.LastOwner, 77);
    EXPECT_EQ(files.Open, 0);
}

TEST(Generation, TellsThePValuesOfTheBlocksThatWereTested) {
    ListDesk desk;
    desk.settings.SigLevel = 0.01F;
    const std::string range = "Runs test:\r\nMinimum P value = 0.0109\r\nMaximum P value = 0.1884";
    const std::vector<std::tuple<std::vector<std::int16_t>, bool, std::string>> rows = {
        {{4, 10}, true, range},
        {{10, 10}, true, "P value of Runs test = 0.0109"}, // each generation starts anew
        {{4}, true, "P value of Runs test = 0.1884"},
        {{4}, false, ""}};
    for (const auto& [blocks, performRuns, message] : rows) {
        desk.Blocks = blocks;
        desk.settings.PerformRuns = performRuns;
        desk.ToTheFile("a.txt");
        EXPECT_EQ(desk.desktop.messages.Take(), message);
        EXPECT_EQ(desk.desktop.pointer.Calls.substr(0, 1) + desk.desktop.pointer.Calls.back(), "BN");
    }
}

TEST(TextReport, PlacesCellsAtTheirColumns) {
    const std::string n15(15, 'n'); // with its code 20 characters
    const std::string n20(20, 'n');
    const std::string rule = Rule(35);
    const std::vector<std::tuple<Texts, std::vector<std::int16_t>, std::string>> table = {
        {{n15, "B"}, {2}, "001: " + n15 + "002: B\r\n" + rule},
        {{"ääääääääääääää", "B"}, {2}, "001: " + std::string(14, '\xE4') + " 002: B\r\n" + rule},
        {{n20, n20}, {2}, "001: " + n20 + "\r\n" + Blanks(20) + "002: " + n20 + "\r\n" + rule},
        {{n20, "B"}, {1}, "001: " + n20 + "\r\n" + Blanks(21) + "\r\n" + rule},
        {{"", ""}, {2, 1}, "001: " + Blanks(15) + "002: \r\n" + rule + "003: " + Blanks(16) + "\r\n" + rule}};
    for (const auto& [names, blocks, text] : table)
        EXPECT_EQ(ListDesk(2, names, blocks).ToTheFile("list.txt"), text);
}

TEST(ClipboardReport, RefusesACellWiderThanItsColumn) {
    const std::string refused = Report(
        "\"0000000001: Group 1\" has 19 characters, and a column on the clipboard has 18: choose fewer "
        "columns, a shorter code or shorter group names",
        20003, "OutputToClipBoard");
    const std::string cutShort =
        Report("The clipboard cannot hold the character U+0000", 20007, "CopyTextToClipboard");
    for (const auto& [columns, name, message, text] :
         {std::tuple(7, std::string("äöüäöüäö"), BoardSuccess, ": \xE4\xF6\xFC\xE4\xF6\xFC\xE4\xF6"),
          {8, "Group 1", refused, "ntent"},
          {7, std::string(1, '\0'), cutShort, "ntent"}}) {
        ListDesk desk(columns, {name, "B"}, {2, 2}, 10);
        EXPECT_EQ(desk.ToTheBoard().substr(10, 10), text);
        EXPECT_EQ(desk.desktop.messages.Take(), message);
    }
}

TEST(HtmlReport, FollowsTheSettings) {
    ListDesk desk(1, {"<&≥é>", ""}, {2});
    desk.settings.TableBorder = true;
    desk.settings.CellSpacing = 0;
    const std::string page = desk.ToTheFile("list.xhtm");
    EXPECT_EQ(page.substr(page.find("<table")),
              "<table border='1' cellspacing='0' width='100%' nowrap=1><tr>\r\n"
              "<td>001: <b><&&#8805;\xE9></b></td>\r\n</tr><tr>\r\n<td>002: <b></b></td>\r\n"
              "</tr></table>\r\n<hr>\r\n</body></html>\r\n");
}

using Channel = std::function<std::string(ListDesk&)>;
const std::vector<Channel> FileReports = {
    [](ListDesk& desk) { return desk.ToTheFile("list.txt"); },
    [](ListDesk& desk) { return desk.ToTheFile("list.htm"); },
    [](ListDesk& desk) { return desk.ToTheWindow(); },
};

/// What a failed report left in its file, after one error report with this text.
std::string LeftBehind(const Channel& report, ListDesk& desk, const std::string& error) {
    report(desk);
    const std::string message = desk.desktop.messages.Take();
    EXPECT_NE(message.find(error), std::string::npos) << message;
    EXPECT_EQ(desk.desktop.shell.Started, Texts{});
    EXPECT_EQ(desk.window.Shown, Texts{});
    EXPECT_EQ(desk.desktop.files.Open, 0);
    EXPECT_EQ(desk.desktop.board.Content, "earlier content");
    EXPECT_EQ(desk.desktop.pointer.Calls.back(), 'N');
    const auto& contents = desk.desktop.files.Contents;
    return contents.empty() ? "no file" : contents.begin()->second;
}

TEST(Reports, KeepWhatTheDiskTookAndReportOnce) {
    for (const Channel& report : FileReports) {
        ListDesk whole;
        const std::string all = report(whole);
        const std::vector<std::pair<std::set<std::string, std::less<>>, std::string>> rows = {
            {{"OpenForOutput", "CreatePrivate"}, "no file"},
            {{"Write"}, all.substr(0, all.size() / 2)},
            {{"Close"}, all}};
        for (const auto& [calls, left] : rows) {
            ListDesk desk;
            desk.desktop.files.Fails = calls;
            EXPECT_EQ(LeftBehind(report, desk, "Error Description: cannot "), left);
            desk.desktop.files = {};
            EXPECT_EQ(report(desk), all) << "the next list";
        }
    }
}

TEST(Reports, KeepTheBlocksBeforeTheOneThatFails) {
    for (const Channel& report :
         {FileReports[0], FileReports[1], FileReports[2], Channel(&ListDesk::ToTheBoard)}) {
        ListDesk desk(3, {"Group 1", "Group 2"}, {6, LargestBlock + 1}, 5);
        const std::string left = LeftBehind(report, desk, "Error Number: 20001");
        EXPECT_TRUE(left == "no file" || left.ends_with(left[0] == '<' ? "nowrap=1><tr>\r\n" : "=\r\n"))
            << left;
    }
}

TEST(Reports, FindANameThatThePageCannotHoldBeforeTheyTouchAnything) {
    for (const Channel& report : {FileReports[0], FileReports[2], Channel(&ListDesk::ToTheBoard)})
        for (const Texts& names : {Texts{"Group 1", "Ж"}, Texts{"Ж", "Group 2"}}) {
            ListDesk desk(3, names);
            desk.desktop.files.Contents["list.txt"] = "old";
            EXPECT_EQ(LeftBehind(report, desk, "Windows-1252"), "old");
            EXPECT_EQ(desk.desktop.files.Log, Texts{});
            EXPECT_EQ(desk.desktop.board.Calls, "");
            EXPECT_LE(desk.desktop.random.Consumed, 8U); // the name of the temporary file
        }
}

TEST(WindowReport, FailsOutsideOfItsFailurePathWhenItHasNoName) {
    ListDesk taken;
    taken.desktop.files.Contents["/program/00000000.tmp"] = "";
    EXPECT_EQ(FailureOf([&] { taken.ToTheWindow(); }).Number, failure_number::OutOfRange);
    EXPECT_EQ(taken.desktop.random.Consumed, 8000U) << "a thousand names";
    EXPECT_EQ(taken.window.Shown, Texts{});
}

const std::string ListFilter = "|htm file (*.htm)|*.htm|Text file (*.txt)|*.txt";

/// Writes down prompts and messages, each with the pointer under which it stands.
struct Prompts : testing::Test {
    Prompts() {
        desk.dialog.WhileShown = [this] { Note(desk.dialog.Shown.back()); };
        desk.desktop.messages.WhileShown = [this] { Note(desk.desktop.messages.Take()); };
    }
    void Note(const std::string& text) {
        events.push_back((desk.desktop.pointer.Busy ? "busy: " : "normal: ") + text);
    }
    static std::string Save(const std::string& name) {
        return "normal: save 2, " + name + "|Save Orvane File As..." + ListFilter;
    }
    ListDesk desk;
    Texts events;
    const std::string extension = "busy: Only htm ot text files allowed!";
    const std::string reserved = "/program/randomization.htm";
};

TEST_F(Prompts, RepeatUntilANameIsAccepted) {
    desk.dialog.Answers = {reserved, reserved, "/x/list.html", reserved, "htm"};
    desk.Generate(ToFile);
    const std::string inUse = "normal: Selected file is in use by the program";
    EXPECT_EQ(events, (Texts{Save("output"), inUse, Save(reserved), inUse, Save(reserved), extension,
                             Save("output"), inUse, Save(reserved)}));
    EXPECT_EQ(desk.desktop.files.Log, Texts{"OpenForOutput htm"});
    EXPECT_EQ(desk.desktop.pointer.Calls, "BNBNBN");
}

TEST_F(Prompts, DrawNothingAfterACancelOrAFailure) {
    desk.settings.PerformRuns = true;
    desk.dialog.Answers = {"/x/list.doc", std::nullopt};
    desk.Generate(ToFile);
    EXPECT_EQ(events, (Texts{Save("output"), extension, Save("output")}));
    desk.dialog.Fails = {"save "};
    desk.Generate(ToFile);
    EXPECT_EQ(events.back(), "normal: " + Report("cannot save ", 5, "a fake"));
    EXPECT_EQ(desk.desktop.files.Log, Texts{});
    EXPECT_EQ(desk.desktop.random.Consumed, 0U);
}

TEST_F(Prompts, JudgeTheLastThreeCharacters) {
    for (const char* name : {"LIST.HTM", "list.xhtm", "listtxt", "TxT", "/program/Randomization.htm",
                             "/program/../program/randomization.htm"})
        EXPECT_NE(ListDesk().ToTheFile(name), "no file") << name;
    for (const char* name : {"list.html", "tm", "", "list.htm ", "list.tx"}) {
        EXPECT_EQ(desk.ToTheFile(name), "no file") << name;
        EXPECT_EQ(*(events.end() - 2), extension) << name;
    }
}

TEST(DisplayRandomFile, ShowsWebPagesInTheBrowserAndAllElseInTheWindow) {
    const std::vector<std::tuple<std::optional<std::string>, int, int, std::string>> table = {
        {"/x/list.HTM", 33, 33, "viewer /x/list.HTM77"},
        {"/x/list.HTM", 32, 33, "(!) Browser Not Found: Could not find associated Browser"},
        {"/x/list.HTM", 33, 32, "(!) URL Failed: Web Page not Openedviewer /x/list.HTM77"},
        {"/x/list.html", 33, 33, "/x/list.html1"},
        {std::nullopt, 33, 33, ""},
        {"fails", 33, 33, Report("cannot open ", 5, "a fake")},
    };
    for (const auto& [answer, found, starts, outcome] : table) {
        ListDesk desk;
        desk.desktop.shell.Found = found;
        desk.desktop.shell.Starts = starts;
        desk.dialog.FileName = "the last use's";
        desk.dialog.Answers = {answer};
        if (answer == "fails")
            desk.dialog.Fails = {"open "};
        desk.channels.DisplayRandomFile();
        std::string seen = desk.desktop.messages.Take();
        for (const std::string& started : desk.desktop.shell.Started)
            seen += started + std::to_string(desk.desktop.shell.LastOwner);
        EXPECT_EQ(seen + (desk.window.Shown.size() == 1 ? desk.window.Name.first + "1" : ""), outcome);
        EXPECT_FALSE(desk.window.Name.second);
        EXPECT_EQ(desk.dialog.Shown, Texts{"open 0, the last use's|Select the random file" + ListFilter});
    }
}

} // namespace
} // namespace orvane
