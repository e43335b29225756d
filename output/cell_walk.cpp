#include "output/cell_walk.h"

#include "engine/numbers.h"

#include <cstddef>
#include <vector>

namespace orvane {

namespace {

/// Calls the productions for the cells of one block and adds the number of filled cells to `OffSet`.
void WalkBlock(const std::vector<std::string>& ArrStr, const std::vector<std::string>& BlockCodeArr,
               std::int16_t columns, std::int16_t& OffSet, CellProductions& productions) {
    std::int16_t column = 0;
    for (std::size_t cell = 0; cell < ArrStr.size(); ++cell) {
        ++column;
        if (column > columns) {
            productions.RowBreak();
            column = 1;
        }
        // Codes are never empty, group names can be: an empty code marks a blank cell.
        if (BlockCodeArr[cell].empty()) {
            productions.BlankCell(column);
        } else {
            OffSet = Add16(OffSet, 1);
            productions.FilledCell(column, BlockCodeArr[cell], ArrStr[cell]);
        }
    }
}

} // namespace

std::int16_t GetMaxCol(const ListSettings& settings) {
    return settings.Columns;
}

void WalkCells(const ListSettings& settings, const ListResults& results, SequenceBuilder& builder,
               CellProductions& productions) {
    std::int16_t OffSet = 0;
    for (std::size_t slot = 1; slot < results.BlockSizes.size(); ++slot) {
        const auto size = static_cast<std::size_t>(results.BlockSizes[slot]);
        std::vector<std::string> ArrStr(size);
        std::vector<std::string> BlockCodeArr(size);
        builder.BuildSequenceArr(ArrStr, BlockCodeArr, OffSet);
        WalkBlock(ArrStr, BlockCodeArr, GetMaxCol(settings), OffSet, productions);
        productions.BlockEnd(slot + 1 == results.BlockSizes.size());
    }
}

std::string CellText(const std::string& code, const std::string& groupName) {
    return code + ": " + groupName;
}

void RequireMappableNames(const ListSettings& settings, const MSFlexGrid& groupNames, const CodePage& page) {
    for (std::int16_t group = 1; group <= settings.NumberOfGroups; ++group)
        static_cast<void>(page.Encode(groupNames.TextMatrix(group, 1), Unmappable::Fail));
}

} // namespace orvane
