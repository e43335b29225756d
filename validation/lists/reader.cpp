#include "validation/lists/list.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <functional>

namespace orvane::validation {
namespace {

constexpr std::size_t TextColumn = 20; // width of a column in characters
constexpr const char* LineEnd = "\r\n";

// Length of the ruled line in text files and on the clipboard, for 1 to 10 columns.
constexpr std::array<std::size_t, 10> RuledLines = {20, 35, 55, 75, 95, 110, 130, 137, 142, 148};
constexpr std::size_t WindowRuledLine = 13; // for each column

using Cells = std::vector<std::string>;

/// Writes the tables of one list, in which the subjects of a block go down its columns.
class Writer {
  public:
    explicit Writer(const ListSetup& setup)
        : setup_(setup), columns_(static_cast<std::size_t>(setup.Columns)) {}

    [[nodiscard]] std::string Table(const std::vector<Subject>& block) const {
        const std::size_t rows = (block.size() + columns_ - 1) / columns_;
        std::string text;
        for (std::size_t row = 0; row < rows; ++row) {
            Cells cells;
            for (std::size_t at = row; at < rows * columns_; at += rows)
                cells.push_back(at < block.size() ? Cell(block[at]) : "");
            if (setup_.Output == Form::WebPage)
                text += (row == 0 ? "" : "</tr><tr>\r\n") + PageRow(cells);
            else
                text += (setup_.Output == Form::Clipboard ? PaddedRow(cells) : PlacedRow(cells)) + LineEnd;
        }
        if (setup_.Output == Form::WebPage)
            return std::string("<table border='") + (setup_.Border ? "1" : "0") + "' cellspacing='" +
                   std::to_string(setup_.Spacing) + "' width='100%' nowrap=1><tr>\r\n" + text +
                   "</tr></table>\r\n<hr>\r\n";
        const std::size_t ruled =
            setup_.Output == Form::Window ? WindowRuledLine * columns_ : RuledLines.at(columns_ - 1);
        return text + std::string(ruled, '=') + LineEnd;
    }

  private:
    [[nodiscard]] std::string Cell(const Subject& subject) const {
        const std::string& name = setup_.Groups.at(static_cast<std::size_t>(subject.Group) - 1);
        if (setup_.Output == Form::WebPage)
            return subject.Code + ": <b>" + name + "</b>";
        return subject.Code + ": " + name;
    }

    static std::string PageRow(const Cells& cells) {
        std::string row;
        for (const std::string& cell : cells)
            row += "<td>" + (cell.empty() ? "&nbsp;" : cell) + "</td>" + LineEnd;
        return row;
    }

    /// Each column has a fixed place. A cell whose place has already been passed is on a new line.
    [[nodiscard]] std::string PlacedRow(const Cells& cells) const {
        const std::string blank(setup_.Output == Form::Window ? 3 : 1, ' ');
        std::string row;
        std::size_t used = 0; // characters of the last line
        for (std::size_t column = 0; column < cells.size(); ++column) {
            const std::size_t place = TextColumn * column;
            if (used > place) {
                row += LineEnd;
                used = 0;
            }
            const std::string& cell = cells[column].empty() ? blank : cells[column];
            row += std::string(place - used, ' ') + cell;
            used = place + cell.size();
        }
        return row;
    }

    /// Each cell is padded to the width of a column; a blank cell is two characters shorter.
    [[nodiscard]] std::string PaddedRow(const Cells& cells) const {
        const std::size_t width = std::min(TextColumn, 150 / columns_);
        std::string row;
        for (std::string cell : cells) {
            const std::size_t least = cell.empty() ? width - 2 : width;
            cell.resize(std::max(cell.size(), least), ' ');
            row += cell;
        }
        return row;
    }

    const ListSetup& setup_;
    std::size_t columns_;
};

/// Finds a code and the name of a group. Of names that begin alike the longest is found.
QRegularExpression SubjectPattern(const ListSetup& setup) {
    QStringList names;
    for (const std::string& name : setup.Groups)
        names << QRegularExpression::escape(QString::fromLatin1(QByteArray::fromStdString(name)));
    std::ranges::sort(names, std::greater<>(), &QString::size);
    return QRegularExpression(QString("(.{%1}): (?:<b>)?(%2)").arg(setup.CodeLength).arg(names.join('|')));
}

/// The subjects of one table, down its columns. In the bytes they stand row by row.
std::vector<Subject> SubjectsIn(const QString& table, const ListSetup& setup,
                                const QRegularExpression& pattern) {
    std::vector<Subject> byRow;
    for (const QRegularExpressionMatch& found : pattern.globalMatch(table)) {
        const auto name = std::ranges::find(setup.Groups, found.captured(2).toLatin1().toStdString());
        byRow.push_back({found.captured(1).toStdString(), static_cast<int>(name - setup.Groups.begin()) + 1});
    }
    const auto columns = static_cast<std::size_t>(setup.Columns);
    const std::size_t rows = (byRow.size() + columns - 1) / columns;
    std::vector<Subject> subjects(byRow.size());
    std::size_t next = 0;
    for (std::size_t row = 0; row < rows; ++row)
        for (std::size_t at = row; at < byRow.size(); at += rows)
            subjects[at] = byRow[next++];
    return subjects;
}

} // namespace

std::string WriteList(const Blocks& blocks, const ListSetup& setup) {
    const Writer writer(setup);
    std::string text;
    for (const auto& block : blocks)
        text += writer.Table(block);
    if (setup.Output != Form::WebPage)
        return text;
    return "<html><head><title>Random Sequence</title></head><body style='font-family:Arial'>\r\n" + text +
           "</body></html>\r\n";
}

void ReadBack(MadeList& list) {
    // Behind each table there is a line that begins with one of these.
    const QString rule = list.Setup.Output == Form::WebPage ? "\n<hr>" : "\n=";
    const QRegularExpression pattern = SubjectPattern(list.Setup);
    QStringList tables = QString::fromLatin1(QByteArray::fromStdString(list.Bytes)).split(rule);
    tables.removeLast();
    list.Blocks.clear();
    for (const QString& table : tables)
        list.Blocks.push_back(SubjectsIn(table, list.Setup, pattern));
    list.HasItsForm = !list.Blocks.empty() && WriteList(list.Blocks, list.Setup) == list.Bytes;
}

} // namespace orvane::validation
