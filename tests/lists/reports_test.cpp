// The four reports: the bytes of a list at each place, and what a failure leaves there.

#include "list_desk.h"

namespace orvane {
namespace {

/// A list of a block of 6 and a block of 4, in 3 columns.
struct FourReports : testing::Test {
    /// The groups become 1, 2, 2, 1, 2, 1 and 2, 1, 1, 2.
    void ShuffleBoth() {
        desk.Exchange(6, {3, 4, 5, 6});
        desk.Exchange(4, {1, 2});
    }
    ListDesk desk;
    FakeDesktop& desktop = desk.desktop;
    const std::string row1 = "001: Group 1        003: Group 2        005: Group 2";
    const std::string row2 = "002: Group 2        004: Group 1        006: Group 1";
    const std::string row3 = "007: Group 2        009: Group 1        ";
    const std::string row4 = "008: Group 1        010: Group 2        ";
};

TEST_F(FourReports, ToTheWindowGoThroughANewTemporaryFile) {
    for (const int digit : {0, 0, 0, 0, 0, 0, 0, 0, 35, 10, 9, 1, 20, 34, 0, 35})
        desktop.random.Values.push_back(UniformFor(0, 35, digit));
    ShuffleBoth();
    desktop.files.Contents["/program/00000000.tmp"] = "another program's";
    EXPECT_EQ(desk.ToTheWindow(), row1 + "\r\n" + row2 + "\r\n" + Rule(39) + row3 + Blanks(3) + "\r\n" +
                                      row4 + Blanks(3) + "\r\n" + Rule(39));
    EXPECT_EQ(desktop.files.Log, Texts{"CreatePrivate /program/ZA91KY0Z.tmp"});
    EXPECT_TRUE(desk.window.Temporary);
    EXPECT_EQ(desktop.random.ReseededAt, (std::vector<std::size_t>{16, 16 + 720})) << "once a block";
}

TEST_F(FourReports, OnTheClipboardHaveCellsOfEqualWidth) {
    ShuffleBoth();
    EXPECT_EQ(desk.ToTheClipboard(), row1 + Blanks(8) + "\r\n" + row2 + Blanks(8) + "\r\n" + Rule(55) + row3 +
                                         Blanks(18) + "\r\n" + row4 + Blanks(18) + "\r\n" + Rule(55));
    EXPECT_EQ(desktop.messages.Take(), Copied);
}

TEST_F(FourReports, InATextFileAreOpenedInItsProgram) {
    ShuffleBoth();
    EXPECT_EQ(desk.ToTheFile("/lists/a.txt"),
              row1 + "\r\n" + row2 + "\r\n" + Rule(55) + row3 + " \r\n" + row4 + " \r\n" + Rule(55));
    EXPECT_EQ(desktop.shell.Started, Texts{"viewer /lists/a.txt"});
    EXPECT_EQ(desktop.shell.LastOwner, 77);
}

TEST_F(FourReports, InAWebPageAreOpenedInItsProgram) {
    ShuffleBoth();
    const std::string table = "<table border='0' cellspacing='1' width='100%' nowrap=1><tr>\r\n";
    EXPECT_EQ(
        desk.ToTheFile("/lists/a.htm"),
        "<html><head><title>Random Sequence</title></head><body style='font-family:Arial'>\r\n" + table +
            "<td>001: <b>Group 1</b></td>\r\n<td>003: <b>Group 2</b></td>\r\n<td>005: <b>Group 2</b></td>\r\n"
            "</tr><tr>\r\n"
            "<td>002: <b>Group 2</b></td>\r\n<td>004: <b>Group 1</b></td>\r\n<td>006: <b>Group 1</b></td>\r\n"
            "</tr></table>\r\n<hr>\r\n" +
            table +
            "<td>007: <b>Group 2</b></td>\r\n<td>009: <b>Group 1</b></td>\r\n<td>&nbsp;</td>\r\n"
            "</tr><tr>\r\n"
            "<td>008: <b>Group 1</b></td>\r\n<td>010: <b>Group 2</b></td>\r\n<td>&nbsp;</td>\r\n"
            "</tr></table>\r\n<hr>\r\n</body></html>\r\n");
    EXPECT_EQ(desktop.shell.Started, Texts{"viewer /lists/a.htm"});
    EXPECT_EQ(desktop.shell.LastOwner, 77);
}

TEST(HtmlReport, FollowsTheSettings) {
    ListDesk desk(1, {"<&≥é>", ""}, {2});
    desk.settings.TableBorder = true;
    desk.settings.CellSpacing = 0;
    const std::string page = desk.ToTheFile("list.htm");
    EXPECT_EQ(page.substr(page.find("<table")),
              "<table border='1' cellspacing='0' width='100%' nowrap=1><tr>\r\n"
              "<td>001: <b><&&#8805;\xE9></b></td>\r\n</tr><tr>\r\n<td>002: <b></b></td>\r\n"
              "</tr></table>\r\n<hr>\r\n</body></html>\r\n");
}

TEST(TextReport, PlacesCellsAtTheirColumnsOrOnTheNextLine) {
    const auto list = [](int columns, const Texts& names, std::int16_t size) {
        return ListDesk(columns, names, {size}).ToTheFile("list.txt");
    };
    const std::string n15(15, 'n'); // with its code 20 characters
    const std::string n20(20, 'n');
    EXPECT_EQ(list(2, {n15, "B"}, 2), "001: " + n15 + "002: B\r\n" + Rule(35));
    EXPECT_EQ(list(2, {n20, n20}, 2),
              "001: " + n20 + "\r\n" + Blanks(20) + "002: " + n20 + "\r\n" + Rule(35));
    EXPECT_EQ(list(4, {"ää", "B"}, 2),
              "001: \xE4\xE4" + Blanks(13) + "002: B" + Blanks(35) + "\r\n" + Rule(75));
    EXPECT_EQ(list(9, {"A", "B"}, 1), "001: A" + Blanks(155) + "\r\n" + Rule(142));
    EXPECT_EQ(list(10, {n20, "B"}, 1), "001: " + n20 + "\r\n" + Blanks(181) + "\r\n" + Rule(148));
}

TEST(ClipboardReport, FillsItsColumnsAndRefusesAWiderCell) {
    ListDesk full(7, {"äöüäöüäö", "B"}, {1}, 8);
    EXPECT_EQ(full.ToTheClipboard(),
              "00000001: \xE4\xF6\xFC\xE4\xF6\xFC\xE4\xF6" + Blanks(2 + 6 * 18) + "\r\n" + Rule(130));
    EXPECT_EQ(full.desktop.messages.Take(), Copied);
    ListDesk wide(8, {"Group 1", "B"}, {1}, 10);
    EXPECT_EQ(wide.ToTheClipboard(), "earlier content");
    EXPECT_EQ(
        wide.desktop.messages.Take(),
        Report("\"0000000001: Group 1\" has 19 characters, and a column on the clipboard has 18: choose "
               "fewer columns, a shorter code or shorter group names",
               20003, "OutputToClipBoard"));
    ListDesk cut(7, {std::string(1, '\0'), "B"});
    EXPECT_EQ(cut.ToTheClipboard(), "earlier content");
    EXPECT_EQ(cut.desktop.messages.Take(),
              Report("The clipboard cannot hold the character U+0000", 20007, "CopyTextToClipboard"));
}

/// A report, run to its end on a desk.
struct Channel {
    const char* name;
    std::function<std::string(ListDesk&)> run;
};
const Channel ToTextFile{"text file", [](ListDesk& desk) { return desk.ToTheFile("list.txt"); }};
const Channel ToWebPage{"web page", [](ListDesk& desk) { return desk.ToTheFile("list.htm"); }};
const Channel ToOutputWindow{"window", [](ListDesk& desk) { return desk.ToTheWindow(); }};
const Channel ToTheBoard{"clipboard", [](ListDesk& desk) { return desk.ToTheClipboard(); }};

/// What a report that fails leaves in its file, after one message that contains `error`.
std::string LeftBehind(const Channel& channel, ListDesk& desk, const std::string& error) {
    channel.run(desk);
    const std::string message = desk.desktop.messages.Take();
    EXPECT_NE(message.find(error), std::string::npos) << message;
    EXPECT_EQ(desk.desktop.shell.Started, Texts{});
    EXPECT_EQ(desk.window.Shown, Texts{});
    EXPECT_EQ(desk.desktop.files.Open, 0);
    EXPECT_EQ(desk.desktop.clipboard.Content, "earlier content");
    EXPECT_FALSE(desk.desktop.pointer.Busy);
    const auto& contents = desk.desktop.files.Contents;
    return contents.empty() ? "no file" : contents.begin()->second;
}

TEST(Reports, KeepWhatTheDiskTookAndReportOnce) {
    for (const Channel& channel : {ToTextFile, ToWebPage, ToOutputWindow}) {
        ListDesk whole;
        const std::string list = channel.run(whole);
        const struct {
            std::string call; ///< the one that fails
            std::string left;
        } rows[] = {
            {"OpenForOutput", "no file"}, {"Write", list.substr(0, list.size() / 2)}, {"Close", list}};
        for (const auto& row : rows) {
            SCOPED_TRACE(std::string(channel.name) + " whose " + row.call + " fails");
            ListDesk desk;
            desk.desktop.files.Fails = {row.call, row.call == "OpenForOutput" ? "CreatePrivate" : ""};
            EXPECT_EQ(LeftBehind(channel, desk, "Error Description: cannot "), row.left);
            desk.desktop.files = {};
            EXPECT_EQ(channel.run(desk), list) << "the next list";
        }
    }
}

TEST(Reports, KeepTheBlocksBeforeTheOneThatFails) {
    for (const Channel& channel : {ToTextFile, ToOutputWindow}) {
        SCOPED_TRACE(channel.name);
        ListDesk whole(3, {"Group 1", "Group 2"}, {6}, 5);
        ListDesk broken(3, {"Group 1", "Group 2"}, {6, LargestBlock + 1}, 5);
        EXPECT_EQ(LeftBehind(channel, broken, "Error Number: 20001"), channel.run(whole));
    }
}

TEST(Reports, FindANameThatThePageCannotHoldBeforeTheyTouchAnything) {
    for (const Channel& channel : {ToTextFile, ToOutputWindow, ToTheBoard}) {
        SCOPED_TRACE(channel.name);
        ListDesk desk(3, {"Group 1", "Ж"});
        desk.desktop.files.Contents["list.txt"] = "old";
        EXPECT_EQ(LeftBehind(channel, desk, "Windows-1252"), "old");
        EXPECT_EQ(desk.desktop.files.Log, Texts{});
        EXPECT_EQ(desk.desktop.clipboard.Calls, Texts{});
        EXPECT_LE(desk.desktop.random.Consumed, 8U) << "the name of the temporary file";
    }
}

TEST(WindowReport, FailsWhenAThousandNamesAreTaken) {
    ListDesk desk;
    desk.desktop.files.Contents["/program/00000000.tmp"] = "";
    EXPECT_EQ(FailureOf([&] { desk.ToTheWindow(); }).Number, failure_number::OutOfRange);
    EXPECT_EQ(desk.desktop.random.Consumed, 8000U);
}

} // namespace
} // namespace orvane
