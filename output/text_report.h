// The list as plain text, with cells at fixed character positions.
#pragma once

#include "output/cell_walk.h"
#include "output/report_context.h"
#include "output/text_file.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace orvane {

/// Writes the list into the file `S`, replacing it, and opens it in its associated program. Reports a failure
/// itself and returns normally; the lines written by then stay, and no program is started.
void GenerateText(const ReportContext& context, const std::string& S);

/// The productions that the text report and the window report share: each cell at position
/// 20 (column - 1) + 1 of its line, on a new line when the cell before it reaches past that.
class PositionedCells : public CellProductions {
  public:
    /// A blank cell is `blankWidth` spaces, the ruled line under a block `ruleWidth` times "=".
    PositionedCells(TextFileWriter& file, std::int32_t blankWidth, std::int32_t ruleWidth)
        : file_(file), blankWidth_(blankWidth), ruleWidth_(ruleWidth) {}

    void RowBreak() override;
    void FilledCell(std::int16_t column, const std::string& code, const std::string& groupName) override;
    void BlankCell(std::int16_t column) override;
    void BlockEnd(bool lastBlock) override;

  private:
    void MoveTo(std::int16_t column);
    void WriteText(const std::string& text);
    void EndLine();

    TextFileWriter& file_;
    std::int32_t blankWidth_;
    std::int32_t ruleWidth_;
    std::size_t position_ = 1; ///< of the next character in its line, counted from 1
};

} // namespace orvane
