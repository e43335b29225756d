// An example list in all four output forms, the positions of subjects in a table, and characters that a file
// cannot hold.
#include "output/clipboard_report.h"
#include "output/html_report.h"
#include "output/shown_file.h"
#include "output/text_report.h"
#include "output/window_report.h"
#include "platform/failure.h"
#include "validation/known_answers_parts.h"
#include "validation/memory_desktop.h"

#include <functional>

namespace orvane::validation {
namespace {

/// Random values that produce given exchanges in blocks. All later exchanges of a block exchange position 1
/// with itself.
class Exchanges {
  public:
    /// `before`: the number of values that are drawn before the first block.
    explicit Exchanges(std::size_t before = 0) : values_(before, 0) {}
    Exchanges& Block(int size, const std::vector<int>& positions) {
        const std::size_t end = values_.size() + static_cast<std::size_t>(20 * size * size);
        for (const int position : positions)
            values_.push_back(ValueFor(1, size, position));
        values_.resize(end, 0);
        return *this;
    }
    [[nodiscard]] const std::vector<float>& Values() const { return values_; }

  private:
    std::vector<float> values_;
};

/// The example list: blocks of 6 and 4, with the groups 1 2 2 1 2 1 and 2 1 1 2, in three columns.
struct WorkedList {
    explicit WorkedList(std::size_t drawnBefore = 0)
        : Source(Exchanges(drawnBefore).Block(6, {3, 4, 5, 6}).Block(4, {1, 2}).Values()) {
        List.Settings.Columns = 3;
        List.Results.BlockSizes = {0, 6, 4};
        for (int subject = 1; subject <= 10; ++subject) {
            const std::string number = std::to_string(subject);
            List.Results.CodeArr.push_back(std::string(3 - number.size(), '0') + number);
        }
    }

    ListedValues Source;
    MemoryList List{Source, {"Group 1", "Group 2"}};
};

/// Cells, each padded with spaces to 20 characters except the last one of its row.
std::string Cells(const Texts& cells, std::size_t behindLast) {
    std::string line;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        line += cells[i];
        line.append(i + 1 < cells.size() ? 20 - cells[i].size() : behindLast, ' ');
    }
    return line;
}

/// The six lines of the example list as text. `behindFilled` is the number of spaces after a filled last
/// cell, `blank` that of a blank cell, and `rule` the number of "=" in the ruled line.
Texts WorkedLines(std::size_t behindFilled, std::size_t blank, std::size_t rule) {
    const std::string line(rule, '=');
    return {Cells({"001: Group 1", "003: Group 2", "005: Group 2"}, behindFilled),
            Cells({"002: Group 2", "004: Group 1", "006: Group 1"}, behindFilled),
            line,
            Cells({"007: Group 2", "009: Group 1", ""}, blank),
            Cells({"008: Group 1", "010: Group 2", ""}, blank),
            line};
}

constexpr const char* WorkedSource = "worked by hand: groups 1 2 2 1 2 1 and 2 1 1 2";

void CompareTextFile(Evidence& evidence) {
    WorkedList worked;
    GenerateText(worked.List.Context, "list.txt");
    evidence.Compare("Messages", "", worked.List.Desktop.Messages.Take());
    evidence.Compare("Bytes of the worked list", "308", [&] {
        return std::to_string(worked.List.Desktop.FileSystem.Contents["list.txt"].size());
    }());
    CompareLines(evidence, WorkedLines(0, 1, 55), worked.List.Desktop.FileSystem.Contents["list.txt"],
                 WorkedSource);
}

void CompareWebPage(Evidence& evidence) {
    const std::string table = "<table border='0' cellspacing='1' width='100%' nowrap=1><tr>";
    const Texts lines = {"<html><head><title>Random Sequence</title></head><body style='font-family:Arial'>",
                         table,
                         "<td>001: <b>Group 1</b></td>",
                         "<td>003: <b>Group 2</b></td>",
                         "<td>005: <b>Group 2</b></td>",
                         "</tr><tr>",
                         "<td>002: <b>Group 2</b></td>",
                         "<td>004: <b>Group 1</b></td>",
                         "<td>006: <b>Group 1</b></td>",
                         "</tr></table>",
                         "<hr>",
                         table,
                         "<td>007: <b>Group 2</b></td>",
                         "<td>009: <b>Group 1</b></td>",
                         "<td>&nbsp;</td>",
                         "</tr><tr>",
                         "<td>008: <b>Group 1</b></td>",
                         "<td>010: <b>Group 2</b></td>",
                         "<td>&nbsp;</td>",
                         "</tr></table>",
                         "<hr>",
                         "</body></html>"};
    WorkedList worked;
    GenerateHtm(worked.List.Context, "list.htm");
    CompareLines(evidence, lines, worked.List.Desktop.FileSystem.Contents["list.htm"], WorkedSource);
}

/// A prompt that always gives the same path.
class OnePath : public CommonDialog {
  public:
    void ShowOpen() override { FileName = "saved.txt"; }
    void ShowSave() override { FileName = "saved.txt"; }
};

/// The output window: keeps its text, saves it once, and closes.
class WindowThatSaves : public OutputWindow, public TextBox {
  public:
    explicit WindowThatSaves(Platform& desktop) : file_(desktop, dialog_) {}
    void OutputFileName(const std::string& strOutputFileName, bool temporary) override {
        file_.OutputFileName(strOutputFileName, temporary);
    }
    void ShowModal() override {
        file_.ReadInto(*this);
        file_.SaveAs();
        file_.DeleteIfTemporary();
    }
    void AppendLine(const std::string& text) override { Text += text + "\r\n"; }

    std::string Text;

  private:
    OnePath dialog_;
    ShownFile file_;
};

void CompareWindow(Evidence& evidence) {
    constexpr std::size_t temporaryName = 8;
    WorkedList worked(temporaryName);
    WindowThatSaves window(worked.List.Desktop.All);
    OutputToWindow(worked.List.Context, window);
    auto& files = worked.List.Desktop.FileSystem.Contents;
    evidence.Compare("Messages", "", worked.List.Desktop.Messages.Take());
    evidence.Compare("Bytes of the worked list", "280", std::to_string(window.Text.size()), WorkedSource);
    evidence.Compare("Files left besides the saved one", "0",
                     std::to_string(files.size() - files.count("saved.txt")));
    evidence.Demand(files["saved.txt"] == window.Text, "The saved file differs from the text in the window.");
    CompareLines(evidence, WorkedLines(0, 3, 39), window.Text, WorkedSource);
}

void CompareClipboard(Evidence& evidence) {
    WorkedList worked;
    OutputToClipBoard(worked.List.Context);
    evidence.Compare("Messages", "Data were copied into clipboard successfuly!",
                     worked.List.Desktop.Messages.Take());
    evidence.Compare("Characters of the worked list", "358",
                     std::to_string(worked.List.Desktop.Board.Content.size()), WorkedSource);
    CompareLines(evidence, WorkedLines(8, 18, 55), worked.List.Desktop.Board.Content, WorkedSource);
}

/// The cells of the table of a block, row by row.
std::string Places(int size, std::int16_t columns) {
    ListedValues source;
    MemoryList list(source, {"A", "B"});
    list.Settings.Columns = columns;
    for (int subject = 1; subject <= size; ++subject)
        list.Results.CodeArr.push_back(std::to_string(subject));
    Texts groups(static_cast<std::size_t>(size));
    Texts codes = groups;
    list.Builder.BuildSequenceArr(groups, codes, 0);
    std::string places;
    for (std::size_t cell = 0; cell < codes.size(); ++cell) {
        places += cell == 0 ? "" : cell % static_cast<std::size_t>(columns) == 0 ? " | " : " ";
        places += codes[cell].empty() ? "-" : codes[cell];
    }
    return places;
}

void ComparePlaces(Evidence& evidence) {
    const struct {
        int Size;
        std::int16_t Columns;
        const char* Places;
    } rows[] = {{10, 6, "1 3 5 7 9 - | 2 4 6 8 10 -"},
                {4, 6, "1 2 3 4 - -"},
                {14, 6, "1 4 7 10 13 - | 2 5 8 11 14 - | 3 6 9 12 - -"},
                {7, 6, "1 3 5 7 - - | 2 4 6 - - -"},
                {3, 1, "1 | 2 | 3"},
                {6, 3, "1 3 5 | 2 4 6"}};
    for (const auto& row : rows)
        evidence.Compare("Block of " + std::to_string(row.Size) + " in " + std::to_string(row.Columns) +
                             " columns",
                         row.Places, Places(row.Size, row.Columns), ByHand);
    evidence.Paragraph("Rows are separated by \"|\". A \"-\" is a blank cell.");
}

/// A list of two subjects. One has a group name that Windows-1252 cannot represent.
struct UnmappableList {
    UnmappableList() {
        List.Results.BlockSizes = {0, 2};
        List.Results.CodeArr = {"1", "2"};
        List.Settings.Columns = 2;
        List.Desktop.Board.Content = "earlier content";
    }
    ListedValues Source;
    MemoryList List{Source, {"\u2265 5 mg", "Caf\u00E9"}};
};

void CompareUnmappableCharacters(Evidence& evidence) {
    const auto isNamed = [](const std::string& message) {
        return message.find("U+2265") != std::string::npos &&
                       message.find("Windows-1252") != std::string::npos
                   ? "refused, with the character and the page"
                   : message;
    };
    const std::string refused = "refused, with the character and the page";
    UnmappableList text;
    GenerateText(text.List.Context, "list.txt");
    evidence.Compare("Text file with \"\u2265\"", refused, isNamed(text.List.Desktop.Messages.Take()),
                     ByHand);
    evidence.Compare("Files begun", "0", std::to_string(text.List.Desktop.FileSystem.Contents.size()),
                     ByHand);

    UnmappableList board;
    OutputToClipBoard(board.List.Context);
    evidence.Compare("Clipboard with \"\u2265\"", refused, isNamed(board.List.Desktop.Messages.Take()),
                     ByHand);
    evidence.Compare("Clipboard afterwards", "earlier content", board.List.Desktop.Board.Content, ByHand);

    UnmappableList page;
    GenerateHtm(page.List.Context, "list.htm");
    const std::string& bytes = page.List.Desktop.FileSystem.Contents["list.htm"];
    evidence.Demand(bytes.find("<b>&#8805; 5 mg</b>") != std::string::npos,
                    "The web page does not contain \u2265 as the reference &#8805;.");
    evidence.Demand(bytes.find("<b>Caf\xE9</b>") != std::string::npos,
                    "The web page does not contain \u00E9 as the byte E9.");
}

} // namespace

void CheckKnownLists(Record& record) {
    RunKnown(record, "REP-1.1", "The worked list as a text file", CompareTextFile);
    RunKnown(record, "REP-2.1", "The worked list as a web page", CompareWebPage);
    RunKnown(record, "REP-3.1", "The worked list in the window", CompareWindow);
    RunKnown(record, "REP-4.1", "The worked list on the clipboard", CompareClipboard);
    RunKnown(record, "REP-5.1", "Positions of the subjects in a table", ComparePlaces);
    RunKnown(record, "REP-6.1", "Characters that a file cannot hold", CompareUnmappableCharacters);
}

} // namespace orvane::validation
