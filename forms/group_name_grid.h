// The rules of the group name grid and of the text box above it, independent of the toolkit.
#pragma once

#include "engine/list_settings.h"
#include "platform/ms_flex_grid.h"

#include <cstdint>
#include <string>

namespace orvane {

/// The text box in which a group name is edited. An operation throws what the handlers that it runs throw.
class NameBox {
  public:
    virtual ~NameBox() = default;
    [[nodiscard]] virtual std::string Text() const = 0;
    /// Runs TempTxt_Change when the text differs.
    virtual void SetText(const std::string& text) = 0;
    /// Gives the box the focus and selects its whole text.
    virtual void SetFocus() = 0;
    /// Selects the whole text if the box has the focus.
    virtual void SelectIfFocused() = 0;
};

/// The handlers run inside one another: when a handler loads a text into the editor, TempTxt_Change writes
/// the same text back to its cell.
///
/// Only names are edited. While a number cell is the current cell, as after a start without settings, the
/// editor holds the name in the same row, and typing makes the name cell the current one.
class GroupNameEditor {
  public:
    GroupNameEditor(const ListSettings& settings, MSFlexGrid& GroupNameGrid, NameBox& TempTxt)
        : settings_(settings), GroupNameGrid_(GroupNameGrid), TempTxt_(TempTxt) {}

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
    NameBox& TempTxt_;
    std::int16_t EditRow_ = 0; ///< 0: the editor belongs to no group
    std::int16_t EditCol_ = 0;
};

} // namespace orvane
