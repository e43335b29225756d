// The rules of the group name grid and of the text box above it.
#pragma once

#include "engine/list_settings.h"
#include "forms/line_box.h"
#include "platform/ms_flex_grid.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

/// The handlers run inside one another: when a handler loads a text into the editor, TempTxt_Change writes
/// the same text back to its cell.
///
/// Only names are edited. While a number cell is the current cell, as after a start without settings, the
/// editor holds the name in the same row, and typing makes the name cell the current one.
class GroupNameEditor {
  public:
    GroupNameEditor(const ListSettings& settings, MSFlexGrid& GroupNameGrid, LineBox& TempTxt)
        : settings_(settings), GroupNameGrid_(GroupNameGrid), TempTxt_(TempTxt) {}

    /// The names of the groups, that of group 1 first.
    [[nodiscard]] std::vector<std::string> Names() const;
    /// Writes the numbers 1 to `groups` into the number column. Row 1 is the current row afterwards.
    void NumberGroups(std::int16_t groups);
    /// Gives the grid a row for each group. An empty name becomes "Group " and its number. The editor belongs
    /// to no cell afterwards: typing changes no name until a cell is selected.
    void SetGroups();
    void GroupNameGrid_Click();
    void GroupNameGrid_RowColChange();
    void TempTxt_Change();

  private:
    void LoadEditor();
    void MoveTypedTextToName();

    const ListSettings& settings_;
    MSFlexGrid& GroupNameGrid_;
    LineBox& TempTxt_;
    std::int16_t EditRow_{}; ///< 0: the editor belongs to no group
    std::int16_t EditCol_{};
};

} // namespace orvane
