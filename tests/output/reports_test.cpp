#include "list_desk.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

std::string Rule(std::size_t width) {
    return std::string(width, '=') + "\r\n";
}
std::string Blanks(std::size_t count) {
    return std::string().append(count, ' ');
}

struct Example : testing::Test {
    Example() {
        desk.Exchange(6, {3, 4, 5, 6}); // leaves 1, 2, 2, 1, 2, 1
        desk.Exchange(4, {1, 2});       // leaves 2, 1, 1, 2
    }
    void ExpectViewerOf(const std::string& path) const {
        EXPECT_EQ(desk.desktop.shell.Started, Texts{"viewer " + path});
        EXPECT_EQ(desk.desktop.shell.LastOwner, 77);
    }
    ListDesk desk;
    const std::string rows = "001: Group 1        003: Group 2        005: Group 2\r\n"
                             "002: Group 2        004: Group 1        006: Group 1\r\n";
    const std::string row3 = "007: Group 2        009: Group 1        ";
    const std::string row4 = "008: Group 1        010: Group 2        ";
};

TEST_F(Example, AsTextFile) {
    const std::string text = desk.ToFile("/lists/a.txt");
    EXPECT_EQ(text, rows + Rule(55) + row3 + " \r\n" + row4 + " \r\n" + Rule(55));
    EXPECT_EQ(text.size(), 308U);
    ExpectViewerOf("/lists/a.txt");
}

TEST_F(Example, AsWebPage) {
    const std::string head = "<table border='0' cellspacing='1' width='100%' nowrap=1><tr>\r\n";
    EXPECT_EQ(
        desk.ToFile("/lists/a.htm"),
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
    ExpectViewerOf("/lists/a.htm");
}

TEST_F(Example, InTheWindow) {
    auto& values = desk.desktop.random.Values;
    for (const int index : {35, 0, 34, 20, 1, 9, 10, 35, 0, 0, 0, 0, 0, 0, 0, 0})
        values.insert(values.begin(), fakes::UniformFor(0, 35, index));
    auto& files = desk.desktop.files;
    files.Contents["/program/00000000.tmp"] = "another program's"; // so a second name is drawn
    std::string bytes;
    desk.window.WhileOpen = [&] { bytes = files.Contents["/program/ZA91KY0Z.tmp"]; };
    const std::string text = desk.ToWindow();
    EXPECT_EQ(text, rows + Rule(39) + row3 + "   \r\n" + row4 + "   \r\n" + Rule(39));
    EXPECT_EQ(text.size(), 280U);
    EXPECT_EQ(bytes, text);
    EXPECT_EQ(desk.desktop.random.ReseededAt, (std::vector<std::size_t>{16, 16 + 720})) << "once a block";
    EXPECT_EQ(files.Log, (Texts{"create /program/ZA91KY0Z.tmp", "read /program/ZA91KY0Z.tmp",
                                "delete /program/ZA91KY0Z.tmp"}));
}

TEST_F(Example, OnTheClipboard) {
    const std::string text = desk.ToBoard();
    EXPECT_EQ(text, "001: Group 1        003: Group 2        005: Group 2        \r\n"
                    "002: Group 2        004: Group 1        006: Group 1        \r\n" +
                        Rule(55) + row3 + Blanks(18) + "\r\n" + row4 + Blanks(18) + "\r\n" + Rule(55));
    EXPECT_EQ(text.size(), 358U);
    EXPECT_EQ(desk.desktop.messages.Take(), BoardSuccess);
}

TEST(TextReport, PlacesCellsAtTheirColumns) {
    struct Row {
        std::int16_t columns;
        Texts names;
        std::vector<std::int16_t> blocks;
        std::string text;
    };
    const std::string n20(20, 'n'); // with its code 25 characters
    const std::string cell20 = "001: " + std::string(15, 'a');
    const std::string gap = Blanks(14);
    const std::vector<Row> table = {
        {1, {"A", "B"}, {2}, "001: A\r\n002: B\r\n" + Rule(20)},
        {6,
         {"A", "B"},
         {7},
         "001: A" + gap + "003: A" + gap + "005: A" + gap + "007: A" + gap + Blanks(21) + "\r\n002: B" + gap +
             "004: B" + gap + "006: B" + gap + Blanks(41) + "\r\n" + Rule(110)},
        {6, {"A", "B"}, {2}, "001: A" + gap + "002: B" + Blanks(75) + "\r\n" + Rule(110)},
        {2, {cell20.substr(5), "B"}, {2}, cell20 + "002: B\r\n" + Rule(35)},
        {2, {"ääääääääääääää", "B"}, {2}, "001: " + std::string(14, '\xE4') + " 002: B\r\n" + Rule(35)},
        {2, {n20, n20}, {2}, "001: " + n20 + "\r\n" + Blanks(20) + "002: " + n20 + "\r\n" + Rule(35)},
        {2, {n20, "B"}, {1}, "001: " + n20 + "\r\n" + Blanks(21) + "\r\n" + Rule(35)},
        {2,
         {"", ""},
         {2, 1},
         "001: " + Blanks(15) + "002: \r\n" + Rule(35) + "003: " + Blanks(16) + "\r\n" + Rule(35)},
    };
    for (const Row& row : table) {
        ListDesk desk(row.columns, row.names, row.blocks);
        EXPECT_EQ(desk.ToFile("list.txt"), row.text);
    }
}

TEST(Reports, HaveTheirOwnRuledLinesAndColumnWidths) {
    const std::vector<std::size_t> rules = {20, 35, 55, 75, 95, 110, 130, 137, 142, 148};
    const std::vector<std::size_t> widths = {20, 20, 20, 20, 20, 20, 20, 18, 16, 15};
    for (std::size_t columns = 2; columns <= 10; ++columns) {
        ListDesk desk(static_cast<std::int16_t>(columns), {"A", "B"}, {1});
        const std::string row = "001: A" + Blanks(20 * (columns - 1) - 6);
        const std::size_t rule = rules[columns - 1];
        const std::size_t width = widths[columns - 1];
        EXPECT_EQ(desk.ToFile("list.txt"), row + " \r\n" + Rule(rule));
        EXPECT_EQ(desk.ToWindow(), row + "   \r\n" + Rule(13 * columns));
        EXPECT_EQ(desk.ToBoard(),
                  "001: A" + Blanks(width - 6 + (columns - 1) * (width - 2)) + "\r\n" + Rule(rule));
        EXPECT_EQ(desk.desktop.messages.Take(), BoardSuccess);
    }
}

TEST(ClipboardReport, RefusesACellWiderThanItsColumn) {
    struct Row {
        std::int16_t columns;
        std::string name;
        std::string refused; ///< the cell and the widths; "" when the report works
    };
    const std::vector<Row> table = {
        {7, "Group 1", ""},
        {7, "äöüäöüäö", ""}, // 20 characters with its code
        {7, "Group 10x", "\"0000000001: Group 10x\" has 21 characters, and a column on the clipboard has 20"},
        {8, "Group 1", "\"0000000001: Group 1\" has 19 characters, and a column on the clipboard has 18"},
        {10, "Group 1", "\"0000000001: Group 1\" has 19 characters, and a column on the clipboard has 15"},
    };
    const std::string advice = ": choose fewer columns, a shorter code or shorter group names";
    for (const Row& row : table) {
        ListDesk desk(row.columns, {row.name, "B"}, {2, 2}, 10);
        desk.channels.OutputToClipBoard();
        EXPECT_EQ(desk.desktop.messages.Take(),
                  row.refused.empty() ? BoardSuccess
                                      : Report(row.refused + advice, 20003, "OutputToClipBoard"));
        EXPECT_EQ(desk.desktop.board.Calls.empty(), !row.refused.empty());
        if (row.name == "äöüäöüäö") {
            EXPECT_EQ(desk.desktop.board.Content.substr(10, 10), ": \xE4\xF6\xFC\xE4\xF6\xFC\xE4\xF6");
        }
        EXPECT_EQ(desk.desktop.random.Consumed, row.refused.empty() ? 160U : 80U);
    }
}

TEST(HtmlReport, FollowsTheSettings) {
    ListDesk desk(1, {"<&≥é>", ""}, {2});
    desk.settings.TableBorder = true;
    desk.settings.CellSpacing = 0;
    const std::string page = desk.ToFile("list.xhtm");
    EXPECT_EQ(page.substr(page.find("<table")),
              "<table border='1' cellspacing='0' width='100%' nowrap=1><tr>\r\n"
              "<td>001: <b><&&#8805;\xE9></b></td>\r\n</tr><tr>\r\n<td>002: <b></b></td>\r\n"
              "</tr></table>\r\n<hr>\r\n</body></html>\r\n");
}

using Channel = std::function<std::string(ListDesk&)>;
const std::vector<Channel> FileReports = {
    [](ListDesk& desk) { return desk.ToFile("list.txt"); },
    [](ListDesk& desk) { return desk.ToFile("list.htm"); },
    [](ListDesk& desk) { return desk.ToWindow(); },
};

/// What a failed report left in its file, after one error report of this start.
std::string LeftBehind(const Channel& report, ListDesk& desk, const std::string& error) {
    report(desk);
    const Texts messages = desk.desktop.messages.TakeAll();
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_NE(messages.at(0).find(error), std::string::npos) << messages[0];
    EXPECT_EQ(desk.desktop.shell.Asked, Texts{});
    EXPECT_EQ(desk.window.Shows, 0);
    EXPECT_EQ(desk.desktop.files.Open, 0);
    EXPECT_EQ(desk.desktop.board.Content, "earlier content");
    const auto& contents = desk.desktop.files.Contents;
    return contents.empty() ? "no file" : contents.begin()->second;
}

TEST(Reports, KeepWhatTheDiskTookAndReportOnce) {
    for (const Channel& report : FileReports) {
        ListDesk whole;
        const std::string all = report(whole);
        for (std::size_t capacity = 0; capacity < all.size(); capacity += 13) {
            ListDesk desk;
            desk.desktop.files.Capacity = capacity;
            EXPECT_EQ(LeftBehind(report, desk, "cannot write"), all.substr(0, capacity));
            desk.desktop.files.Capacity = all.size();
            desk.desktop.files.Contents.clear();
            EXPECT_EQ(report(desk), all) << "the next list";
        }
        ListDesk unclosed;
        unclosed.desktop.files.CloseFails = true;
        EXPECT_EQ(LeftBehind(report, unclosed, "cannot close"), all);
        ListDesk unopened;
        unopened.desktop.files.Closed = {"list.txt", "list.htm", "/program/00000000.tmp"};
        EXPECT_EQ(LeftBehind(report, unopened, "cannot open"), "no file");
    }
}

TEST(Reports, KeepTheBlocksBeforeTheOneThatFails) {
    const Texts names = {"Group 1", "Group 2"};
    for (const Channel& report : FileReports) {
        ListDesk blocked(3, names, {6, LargestBlock + 1}, 5);
        const std::string firstBlock = LeftBehind(report, blocked, "Error Number: 20001");
        EXPECT_TRUE(firstBlock.ends_with(firstBlock[0] == '<' ? "nowrap=1><tr>\r\n" : "=\r\n")) << firstBlock;
    }
    ListDesk blocked(3, names, {6, LargestBlock + 1}, 5);
    LeftBehind(&ListDesk::ToBoard, blocked, "Error Number: 20001");
    ListDesk tooLong(1, names, std::vector<std::int16_t>(LargestList + 1, 1), 5);
    const std::string text = LeftBehind(FileReports[0], tooLong, "Error Number: 20001");
    EXPECT_EQ(text.size(), std::size_t{LargestList} * (16 + 22));
}

TEST(Reports, FindANameThatThePageCannotHoldBeforeTheyTouchAnything) {
    for (const Channel& report : {FileReports[0], FileReports[2], Channel(&ListDesk::ToBoard)}) {
        ListDesk desk(3, {"Group 1", "Ж"});
        desk.desktop.files.Contents["list.txt"] = "old";
        EXPECT_EQ(LeftBehind(report, desk, "Windows-1252"), "old");
        EXPECT_EQ(desk.desktop.files.Log, Texts{});
        EXPECT_EQ(desk.desktop.board.Calls, Texts{});
        EXPECT_LE(desk.desktop.random.Consumed, 8U); // the name of the temporary file
    }
}

TEST(WindowReport, FailsOutsideOfItsFailurePathWhenItHasNoName) {
    ListDesk taken;
    taken.desktop.files.Contents["/program/00000000.tmp"] = "";
    EXPECT_THROW(taken.channels.OutputToWindow(), Failure);
    ListDesk broken;
    broken.desktop.random.Broken = true;
    EXPECT_THROW(broken.channels.OutputToWindow(), Failure);
    EXPECT_EQ(taken.window.Shows + broken.window.Shows, 0);
}

} // namespace
} // namespace orvane
