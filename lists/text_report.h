// Plain text with cells at fixed character positions.
#pragma once

#include "lists/cell_walk.h"
#include "platform/text_file.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace orvane {

/// The cells of the text report and of the window report: the cell of column c starts at position 20 (c - 1)
/// + 1 of its line, or of a new line if the cell before it ends after that position.
class PositionedCells : public CellWriter {
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
