// The list as plain text, with cells at fixed character positions.
#pragma once

#include "output/cell_walk.h"
#include "output/report_context.h"
#include "output/text_file.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace orvane {

/// Writes the list into the file `S`, replacing it, and opens it in its associated program. Reports a
/// failure itself and returns normally; the file then contains the lines written so far, and no program is
/// started.
void GenerateText(const ReportContext& context, const std::string& S);

/// The cells of the text report and of the window report: the cell of column c starts at position 20 (c - 1)
/// + 1 of its line, or of a new line if the cell before it ends after that position.
class PositionedCells : public CellProductions {
  public:
    /// A blank cell consists of `blankWidth` spaces, the ruled line under a block of `ruleWidth` characters
    /// "=".
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
    std::size_t position_ = 1; ///< of the next character in the line, counted from 1
};

} // namespace orvane
