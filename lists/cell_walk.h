// The loop over the blocks and cells of a list, shared by all reports. The list is made in this loop: each
// block is drawn when the loop reaches it.
#pragma once

#include "lists/reports.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace orvane {

/// Characters from the start of one text column to the start of the next.
inline constexpr std::size_t ColumnDistance = 20;

/// What a report writes at each step of WalkCells. Columns count from 1.
class CellWriter {
  public:
    virtual ~CellWriter() = default;
    /// Between two rows of a block; not after the last row.
    virtual void RowBreak() = 0;
    virtual void FilledCell(std::int16_t column, const std::string& code, const std::string& groupName) = 0;
    virtual void BlankCell(std::int16_t column) = 0;
    /// After the last cell of a block.
    virtual void BlockEnd(bool lastBlock) = 0;
};

/// The number of cells in every row of the list.
std::int16_t GetMaxCol(const ListSettings& settings);

/// The width in characters of the ruled line under a block of the text and clipboard reports, by the number
/// of columns, 1 to 10.
std::int16_t GetMaxEq(std::int16_t columns);

/// Makes every block of BlockSizes in list order and calls the writer for its cells. Throws what
/// BuildSequenceArr and the writer throw, and an Overflow failure when the list exceeds 32767 subjects.
void WalkCells(const ReportContext& context, CellWriter& writer);

/// The text of a filled cell: the code, ": " and the group name, with all their spaces.
std::string CellText(const std::string& code, const std::string& groupName);

/// Throws an UnmappableCharacter failure when a group name contains a character that is not in the code
/// page. Reports that cannot replace such a character call this before they open the file or the clipboard.
void RequireMappableNames(const ReportContext& context);

} // namespace orvane
