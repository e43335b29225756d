// The walk over blocks and cells that every report of a list runs. It makes the list as it goes: each block
// is drawn when the walk reaches it.
#pragma once

#include "engine/list_settings.h"
#include "engine/sequence_builder.h"
#include "platform/code_page.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace orvane {

/// Characters from the start of one column of a text to the start of the next.
inline constexpr std::size_t ColumnDistance = 20;

/// What one report writes at each step of the walk. Columns count from 1.
class CellProductions {
  public:
    virtual ~CellProductions() = default;
    /// Between two rows of a block, never behind the last one.
    virtual void RowBreak() = 0;
    virtual void FilledCell(std::int16_t column, const std::string& code, const std::string& groupName) = 0;
    virtual void BlankCell(std::int16_t column) = 0;
    /// Behind the last cell of a block.
    virtual void BlockEnd(bool lastBlock) = 0;
};

/// The number of cells of every row of the list.
std::int16_t GetMaxCol(const ListSettings& settings);

/// Walks every block of results.BlockSizes in list order. Throws what SequenceBuilder::BuildSequenceArr and
/// the productions throw, and an Overflow failure when the list passes 32767 subjects.
void WalkCells(const ListSettings& settings, const ListResults& results, SequenceBuilder& builder,
               CellProductions& productions);

/// The text of a filled cell: the code, ": " and the group name, nothing trimmed.
std::string CellText(const std::string& code, const std::string& groupName);

/// Throws a Failure, before anything has been written, when a group name holds a character that the code page
/// does not.
void RequireMappableNames(const ListSettings& settings, const MSFlexGrid& groupNames, const CodePage& page);

} // namespace orvane
