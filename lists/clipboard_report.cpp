#include "lists/cell_walk.h"
#include "lists/glb_util.h"
#include "platform/failure_report.h"
#include "platform/text.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr std::size_t WidestRow = 150;

/// Collects the list, every cell padded with spaces to the width of its column.
class PaddedCells : public CellWriter {
  public:
    PaddedCells(std::size_t columnWidth, std::size_t ruleWidth)
        : columnWidth_(columnWidth), ruleWidth_(ruleWidth) {}

    [[nodiscard]] const std::string& ListText() const { return text_; }

    void RowBreak() override { text_ += LineEnd; }

    void FilledCell(std::int16_t /*column*/, const std::string& code, const std::string& groupName) override {
        const std::string cell = CellText(code, groupName);
        const std::size_t blanks = BlanksBehind(cell);
        text_.append(cell).append(blanks, ' ');
    }

    void BlankCell(std::int16_t /*column*/) override { text_.append(BlanksBehind(CellText("", "")), ' '); }

    void BlockEnd(bool /*lastBlock*/) override {
        text_.append(LineEnd).append(ruleWidth_, '=').append(LineEnd);
    }

  private:
    [[nodiscard]] std::size_t BlanksBehind(const std::string& cell) const {
        const std::size_t cellLength = CharacterCount(cell);
        if (cellLength > columnWidth_)
            throw Failure("\"" + cell + "\" has " + std::to_string(cellLength) +
                              " characters, and a column on the clipboard has " +
                              std::to_string(columnWidth_) +
                              ": choose fewer columns, a shorter code or shorter group names",
                          failure_number::InvalidArgument, "OutputToClipBoard");
        return columnWidth_ - cellLength;
    }

    std::size_t columnWidth_;
    std::size_t ruleWidth_;
    std::string text_;
};

} // namespace

void OutputToClipBoard(const ReportContext& context) {
    const Platform& desktop = context.Desktop;
    WithFailurePath(desktop.Messages, [&] {
        const auto ruleWidth = static_cast<std::size_t>(GetMaxEq(context.Settings.Columns));
        RequireMappableNames(context);
        const std::size_t columnWidth =
            std::min(ColumnDistance, WidestRow / static_cast<std::size_t>(GetMaxCol(context.Settings)));
        PaddedCells cells(columnWidth, ruleWidth);
        WalkCells(context, cells);
        if (!CopyTextToClipboard(cells.ListText(), desktop.Clipboard, desktop.Page, desktop.Messages))
            desktop.Messages.Show("Data were copied into clipboard successfuly!");
    });
}

} // namespace orvane
