#include "validation/list_reader.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace orvane::validation {

namespace {

constexpr std::size_t TextColumn = 20; // width of a column in characters
constexpr std::string_view LineEnd = "\r\n";

// Length of the ruled line in text files and on the clipboard, for 1 to 10 columns.
constexpr std::array<std::size_t, 10> RuledLines = {20, 35, 55, 75, 95, 110, 130, 137, 142, 148};
constexpr std::size_t WindowRuledLine = 13; // for each column

/// Reads the bytes of a list once, from the first to the last.
class Cursor {
  public:
    Cursor(std::string_view bytes, const ListSetup& setup) : bytes_(bytes), setup_(setup) {}

    [[nodiscard]] bool AtEnd() const { return at_ == bytes_.size(); }
    [[nodiscard]] bool At(std::string_view text) const { return bytes_.substr(at_).starts_with(text); }
    /// Characters since the start of the line.
    [[nodiscard]] std::size_t Column() const { return at_ - lineStart_; }

    void Expect(std::string_view text, const std::string& what) {
        if (!At(text))
            Fail(what);
        at_ += text.size();
    }
    void ExpectSpaces(std::size_t count) {
        Expect(std::string(count, ' '), std::to_string(count) + " spaces");
    }
    void ExpectLineEnd() {
        Expect(LineEnd, "the line end CR LF");
        lineStart_ = at_;
        ++line_;
    }

    /// Reads a code, the text `between`, and the name of a group.
    Subject ReadSubject(std::string_view between) {
        const std::string_view code = bytes_.substr(at_, static_cast<std::size_t>(setup_.CodeLength));
        if (code.find_first_of("\r\n:=<> ") != std::string_view::npos ||
            code.size() < static_cast<std::size_t>(setup_.CodeLength))
            Fail("a code of " + std::to_string(setup_.CodeLength) + " characters");
        at_ += code.size();
        Expect(between, "\"" + std::string(between) + "\" after the code");
        return {std::string(code), ReadGroup()};
    }

    [[noreturn]] void Fail(const std::string& expected) const {
        throw LayoutFault("line " + std::to_string(line_) + ", character " + std::to_string(Column() + 1) +
                          ": expected " + expected);
    }

  private:
    /// Reads the longest group name that matches, because one name can be the start of another.
    int ReadGroup() {
        std::size_t longest = 0;
        int group = 0;
        for (int g = 1; g <= setup_.GroupCount(); ++g) {
            const std::string& name = setup_.Groups[static_cast<std::size_t>(g) - 1];
            if (At(name) && name.size() > longest) {
                longest = name.size();
                group = g;
            }
        }
        if (group == 0)
            Fail("the name of a group");
        at_ += longest;
        return group;
    }

    std::string_view bytes_;
    const ListSetup& setup_;
    std::size_t at_ = 0;
    std::size_t lineStart_ = 0;
    std::size_t line_ = 1;
};

/// Reads the three text forms. They differ in the blank cell, in the ruled line, and in how the cells are
/// positioned.
class TextReader {
  public:
    TextReader(const std::string& bytes, const ListSetup& setup)
        : cursor_(bytes, setup), form_(setup.Output), columns_(static_cast<std::size_t>(setup.Columns)) {}

    std::vector<BlockTable> Read() {
        std::vector<BlockTable> blocks;
        do
            blocks.push_back(ReadBlock());
        while (!cursor_.AtEnd());
        return blocks;
    }

  private:
    BlockTable ReadBlock() {
        BlockTable table;
        do {
            table.push_back(form_ == Form::Clipboard ? ReadFilledUpRow() : ReadPlacedRow());
            cursor_.ExpectLineEnd();
        } while (!cursor_.At("="));
        cursor_.Expect(std::string(RuledLine(), '='),
                       "a ruled line of " + std::to_string(RuledLine()) + " characters");
        cursor_.ExpectLineEnd();
        return table;
    }

    /// Column c starts at character 20 * (c - 1) + 1. A cell whose position has already been passed is on a
    /// new line.
    TableRow ReadPlacedRow() {
        TableRow row;
        for (std::size_t column = 0; column < columns_; ++column) {
            const std::size_t place = TextColumn * column;
            if (cursor_.Column() > place)
                cursor_.ExpectLineEnd();
            cursor_.ExpectSpaces(place - cursor_.Column());
            row.push_back(ReadCell(form_ == Form::Window ? 3 : 1));
        }
        return row;
    }

    /// Each cell is padded with spaces to the width of a column; a blank cell is two characters shorter.
    TableRow ReadFilledUpRow() {
        const std::size_t width = std::min(TextColumn, 150 / columns_);
        TableRow row;
        for (std::size_t column = 0; column < columns_; ++column) {
            const std::size_t start = cursor_.Column();
            row.push_back(ReadCell(width - 2));
            const std::size_t used = cursor_.Column() - start;
            if (used > width)
                cursor_.Fail("a cell of at most " + std::to_string(width) + " characters");
            if (row.back())
                cursor_.ExpectSpaces(width - used);
        }
        return row;
    }

    std::optional<Subject> ReadCell(std::size_t blankWidth) {
        if (!cursor_.At(" "))
            return cursor_.ReadSubject(": ");
        cursor_.ExpectSpaces(blankWidth);
        return std::nullopt;
    }

    [[nodiscard]] std::size_t RuledLine() const {
        return form_ == Form::Window ? WindowRuledLine * columns_ : RuledLines.at(columns_ - 1);
    }

    Cursor cursor_;
    Form form_;
    std::size_t columns_;
};

/// Reads a web page, in which every cell is on its own line.
class PageReader {
  public:
    PageReader(const std::string& bytes, const ListSetup& setup)
        : cursor_(bytes, setup), columns_(static_cast<std::size_t>(setup.Columns)),
          tableHead_(std::string("<table border='") + (setup.Border ? "1" : "0") + "' cellspacing='" +
                     std::to_string(setup.Spacing) + "' width='100%' nowrap=1><tr>") {}

    std::vector<BlockTable> Read() {
        Line("<html><head><title>Random Sequence</title></head><body style='font-family:Arial'>");
        std::vector<BlockTable> blocks;
        do
            blocks.push_back(ReadBlock());
        while (!cursor_.At("</body>"));
        Line("</body></html>");
        if (!cursor_.AtEnd())
            cursor_.Fail("the end of the page");
        return blocks;
    }

  private:
    BlockTable ReadBlock() {
        Line(tableHead_);
        BlockTable table = {ReadRow()};
        while (cursor_.At("</tr><tr>")) {
            Line("</tr><tr>");
            table.push_back(ReadRow());
        }
        Line("</tr></table>");
        Line("<hr>");
        return table;
    }

    TableRow ReadRow() {
        TableRow row;
        while (row.size() < columns_)
            row.push_back(ReadCell());
        return row;
    }

    std::optional<Subject> ReadCell() {
        if (cursor_.At("<td>&nbsp;")) {
            Line("<td>&nbsp;</td>");
            return std::nullopt;
        }
        cursor_.Expect("<td>", "a cell");
        Subject subject = cursor_.ReadSubject(": <b>");
        Line("</b></td>");
        return subject;
    }

    void Line(const std::string& text) {
        cursor_.Expect(text, "\"" + text + "\"");
        cursor_.ExpectLineEnd();
    }

    Cursor cursor_;
    std::size_t columns_;
    std::string tableHead_;
};

} // namespace

std::vector<BlockTable> ReadList(const std::string& bytes, const ListSetup& setup) {
    if (setup.Output == Form::WebPage)
        return PageReader(bytes, setup).Read();
    return TextReader(bytes, setup).Read();
}

std::vector<Subject> DownTheColumns(const BlockTable& table) {
    std::vector<Subject> subjects;
    for (std::size_t column = 0; column < table.front().size(); ++column)
        for (const TableRow& row : table)
            if (row[column])
                subjects.push_back(*row[column]);
    return subjects;
}

std::string BlankFault(const BlockTable& table) {
    const std::size_t columns = table.front().size();
    const std::size_t filled = DownTheColumns(table).size();
    if ((filled + columns - 1) / columns != table.size())
        return std::to_string(filled) + " subjects are in " + std::to_string(table.size()) + " rows";
    for (std::size_t column = 0; column < columns; ++column)
        for (std::size_t row = 0; row < table.size(); ++row)
            if (table[row][column].has_value() != (column * table.size() + row < filled))
                return "the cell in row " + std::to_string(row + 1) + ", column " +
                       std::to_string(column + 1) + " is " + (table[row][column] ? "not blank" : "blank");
    return "";
}

} // namespace orvane::validation
