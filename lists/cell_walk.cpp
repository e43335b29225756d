#include "lists/cell_walk.h"

#include "engine/numbers.h"
#include "engine/sequence_builder.h"

#include <array>
#include <cstddef>
#include <vector>

namespace orvane {

namespace {

/// Calls the writer for the cells of one block and adds the number of filled cells to `OffSet`.
void WalkBlock(const std::vector<std::string>& ArrStr, const std::vector<std::string>& BlockCodeArr,
               std::int16_t columns, std::int16_t& OffSet, CellWriter& writer) {
    std::int16_t column = 0;
    for (std::size_t cell = 0; cell < ArrStr.size(); ++cell) {
        ++column;
        if (column > columns) {
            writer.RowBreak();
            column = 1;
        }
        // Codes are never empty, group names can be: an empty code marks a blank cell.
        if (BlockCodeArr[cell].empty()) {
            writer.BlankCell(column);
        } else {
            OffSet = Add16(OffSet, 1);
            writer.FilledCell(column, BlockCodeArr[cell], ArrStr[cell]);
        }
    }
}

} // namespace

std::int16_t GetMaxCol(const ListSettings& settings) {
    return settings.Columns;
}

std::int16_t GetMaxEq(std::int16_t columns) {
    static constexpr auto widths = std::to_array<std::int16_t>({20, 35, 55, 75, 95, 110, 130, 137, 142, 148});
    return widths.at(static_cast<std::size_t>(columns - 1));
}

void WalkCells(const ReportContext& context, CellWriter& writer) {
    const std::vector<std::int16_t>& blockSizes = context.Results.BlockSizes;
    SequenceBuilder builder(context.Settings, context.Results, context.Desktop);
    std::int16_t OffSet = 0;
    for (std::size_t slot = 1; slot < blockSizes.size(); ++slot) {
        const auto size = static_cast<std::size_t>(blockSizes[slot]);
        std::vector<std::string> ArrStr(size);
        std::vector<std::string> BlockCodeArr(size);
        builder.BuildSequenceArr(ArrStr, BlockCodeArr, OffSet);
        WalkBlock(ArrStr, BlockCodeArr, GetMaxCol(context.Settings), OffSet, writer);
        writer.BlockEnd(slot + 1 == blockSizes.size());
    }
}

std::string CellText(const std::string& code, const std::string& groupName) {
    return code + ": " + groupName;
}

void RequireMappableNames(const ReportContext& context) {
    for (const std::string& name : context.Settings.GroupNames)
        static_cast<void>(context.Desktop.Page.Encode(name, Unmappable::Fail));
}

} // namespace orvane
