#include "lists/text_report.h"

#include "lists/glb_util.h"
#include "platform/failure_report.h"
#include "platform/text.h"

namespace orvane {

namespace {

constexpr std::int32_t BlankWidth = 1;

} // namespace

void GenerateText(const ReportContext& context, const std::string& S) {
    const Platform& desktop = context.Desktop;
    WithFailurePath(desktop.Messages, [&] {
        const std::int16_t ruleWidth = GetMaxEq(context.Settings.Columns);
        RequireMappableNames(context);
        TextFileWriter file(desktop.FileSystem.OpenForOutput(S), desktop.Page, Unmappable::Fail);
        PositionedCells cells(file, BlankWidth, ruleWidth);
        WalkCells(context, cells);
        file.Close();
        OpenInBrowser(S, context.MainWindow, desktop.Shell, desktop.Messages);
    });
}

void PositionedCells::RowBreak() {
    EndLine();
}

void PositionedCells::FilledCell(std::int16_t column, const std::string& code, const std::string& groupName) {
    MoveTo(column);
    WriteText(CellText(code, groupName));
}

void PositionedCells::BlankCell(std::int16_t column) {
    MoveTo(column);
    WriteText(std::string(static_cast<std::size_t>(blankWidth_), ' '));
}

void PositionedCells::BlockEnd(bool /*lastBlock*/) {
    EndLine();
    WriteText(std::string(static_cast<std::size_t>(ruleWidth_), '='));
    EndLine();
}

void PositionedCells::MoveTo(std::int16_t column) {
    const std::size_t target = ColumnDistance * static_cast<std::size_t>(column - 1) + 1;
    if (position_ > target)
        EndLine();
    WriteText(std::string(target - position_, ' '));
}

void PositionedCells::WriteText(const std::string& text) {
    file_.Write(text);
    position_ += CharacterCount(text);
}

void PositionedCells::EndLine() {
    file_.Write(LineEnd);
    position_ = 1;
}

} // namespace orvane
