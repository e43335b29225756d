// What lists and settings lean on: text files, the file behind the output window, reports of failures, the
// clipboard.

#include "list_desk.h"
#include "output/shown_file.h"
#include "output/text_file.h"

namespace orvane {
namespace {

TEST(TextFileReader, EndsLinesAtCrAndCrLfAlone) {
    const std::string end = std::to_string(failure_number::EndOfFile);
    const std::string chunk(std::size_t{1} << 16U, 'x');
    const std::string almost = chunk.substr(1);
    const std::vector<std::pair<std::string, Texts>> table = {
        {"", {end}},
        {"a\r\nb\r\n", {"a", "b", end}},
        {"a\nb\r\n\n", {"a\nb", "\n", end}},
        {"a\r\r\nb\r", {"a", "", "b", end}},
        {"\xE9\x80\r\n", {"é€", end}},
        {almost + "\r\ny", {almost, "y", end}}, // the pair on both sides of a chunk's end
        {almost + "\r", {almost, end}},
        {chunk + "\r" + almost, {chunk, almost, end}},
        {chunk + "x\r", {std::to_string(failure_number::TooLarge)}},
    };
    for (const auto& [bytes, expected] : table) {
        MemoryFiles files;
        files.Contents["f"] = bytes;
        TextFileReader reader(files.OpenForInput("f"), WesternPage(), "f", {false, chunk.size(), 1'000'000});
        Texts lines;
        Failure failure = FailureOf([&] {
            for (;;)
                lines.push_back(reader.ReadLine());
        });
        EXPECT_EQ(reader.AtEnd(), failure.Number == failure_number::EndOfFile);
        lines.push_back(std::to_string(failure.Number));
        EXPECT_EQ(lines, expected) << bytes.substr(0, 20) << " of " << bytes.size();
    }
}

TEST(TextFileWriter, WritesEverythingOnceWhateverFails) {
    const std::string chunk((std::size_t{1} << 16U) - 2, 'x');
    MemoryFiles files;
    std::string& bytes = files.Contents["f"];
    {
        TextFileWriter writer(files.OpenForOutput("f"), WesternPage(), Unmappable::Fail);
        writer.WriteLine(chunk.substr(1));
        EXPECT_EQ(bytes, "") << "the buffer is not full";
        writer.Write("é");
        EXPECT_EQ(bytes, chunk.substr(1) + "\r\n\xE9");
        writer.Write("€");
        EXPECT_THROW(writer.Write("≥"), Failure); // the page has no such character
    }
    EXPECT_EQ(bytes, chunk.substr(1) + "\r\n\xE9\x80");
    {
        TextFileWriter writer(files.OpenForOutput("f"), WesternPage(), Unmappable::Fail);
        writer.Write("abcd");
        files.Fails = {"Write"};
        EXPECT_THROW(writer.Close(), Failure);
        files.Fails.clear();
    }
    EXPECT_EQ(bytes, "ab");
    EXPECT_EQ(files.Open, 0);
}

struct ShownText : TextBox {
    void AppendLine(const std::string& text) override { Lines += text + "\r\n"; }
    std::string Lines;
};

TEST(ShownFile, ShowsWhatItCanReadOfAFileAndDeletesItQuietly) {
    const std::string chunk = std::string(ShownFile::LongestLine - 2, 'x') + "\r\n";
    std::string lines;
    while (lines.size() < 2 * ShownFile::MostLines)
        lines += "\r\n";
    std::string largest;
    while (largest.size() < ShownFile::LargestFile)
        largest += chunk;
    FakeDesktop desktop;
    ScriptedDialog dialog;
    ShownFile file(desktop.platform, dialog);
    file.OutputFileName("f", true);
    const auto show = [&](const std::string& bytes, const std::string& shown) {
        desktop.pointer.Calls.clear();
        desktop.files.Contents["f"] = bytes;
        ShownText text;
        file.ReadInto(text);
        EXPECT_TRUE(text.Lines == shown);
        EXPECT_EQ(desktop.files.Open, 0);
        return desktop.messages.Take() + desktop.pointer.Calls;
    };
    EXPECT_EQ(show("caf\xE9\rb\nb\r\n\r\nlast", "café\r\nb\r\nb\r\n\r\nlast\r\n"), "N");
    EXPECT_EQ(show(std::string(ShownFile::MostLines, '\n'), lines), "N");
    EXPECT_EQ(
        show(lines + "x", lines),
        Report("The file f has more than 131072 lines and is not shown to its end", 20012, "OutputFrm"));
    EXPECT_EQ(show("a\n" + chunk + "xxx" + chunk, "a\r\n" + chunk),
              Report("A line of the file f is longer than 16384 characters", 20012, "reading a line"));
    EXPECT_EQ(show(largest + "more", largest),
              Report("The file f is larger than 67108864 bytes and is not read to its end", 20012,
                     "reading a line"));
    desktop.files.Fails = {"Read", "Delete"};
    desktop.files.Before = 1;
    EXPECT_EQ(show(chunk + "more", chunk), Report("cannot Read", 5, "a fake"))
        << "a line that was read is shown";
    file.DeleteIfTemporary();
    EXPECT_EQ(desktop.messages.TakeAll(), Texts{});
}

TEST(WithFailurePath, CleansUpThenReportsAnyExceptionOnce) {
    const auto cancel = [] { throw Failure("Cancel", failure_number::Cancelled, "a prompt"); };
    const std::vector<std::tuple<std::function<void()>, bool, std::string>> table = {
        {cancel, true, ""},
        {cancel, false, Report("Cancel", 32755, "a prompt")},
        {[] { throw Failure("", -7, ""); }, true, Report("", -7, "")},
        {[] { throw std::bad_alloc(); }, false, Report("Out of memory", 20010, "memory")},
        {[] { throw std::logic_error("odd"); }, true, Report("odd", 20099, "the program")},
        {[] { throw 1; }, false, Report("An unknown failure", 20099, "the program")},
    };
    for (const auto& [body, quietCancel, report] : table) {
        ScriptedMessageBox messages;
        Texts atCleanUp{"not cleaned up"};
        WithFailurePath(messages, quietCancel, body, [&] { atCleanUp = messages.TakeAll(); });
        EXPECT_EQ(atCleanUp, Texts{});
        EXPECT_EQ(messages.Take(), report);
    }
}

TEST(CopyTextToClipboard, GoesDownTheLadder) {
    const std::string filled = "66*359 GlobalAlloc GlobalLock GlobalUnlock ";
    const std::string given = filled + "OpenClipboard EmptyClipboard 1 SetClipboardData CloseClipboard ";
    const std::string noClose = "Could not close Clipboard.";
    const std::vector<std::tuple<std::set<std::string, std::less<>>, std::string, Texts>> table = {
        {{}, given, {BoardSuccess}},
        {{"CloseClipboard"}, given, {noClose, BoardSuccess}},
        {{"GlobalAlloc"},
         "66*359 GlobalAlloc ",
         {Report("There is no memory for the 359 bytes of the list", 20010, "GlobalAlloc")}},
        {{"GlobalLock"},
         "66*359 GlobalAlloc GlobalLock GlobalFree ",
         {Report("The memory block for the clipboard cannot be locked", 20010, "GlobalLock")}},
        {{"GlobalUnlock", "CloseClipboard"},
         filled + "CloseClipboard GlobalFree ",
         {"Could not unlock memory location. Copy aborted.", noClose}},
        {{"OpenClipboard"},
         filled + "OpenClipboard GlobalFree ",
         {"Could not open the Clipboard. Copy aborted."}},
        {{"SetClipboardData"},
         given + "GlobalFree ",
         {Report("The clipboard did not take the list", 20011, "SetClipboardData")}},
    };
    for (const auto& [fails, calls, messages] : table) {
        ListDesk desk;
        desk.desktop.board.Fails = fails;
        desk.ToTheBoard();
        EXPECT_EQ(desk.desktop.messages.TakeAll(), messages);
        EXPECT_EQ(desk.desktop.board.Calls, calls);
    }
}

} // namespace
} // namespace orvane
