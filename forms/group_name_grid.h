// The rules of the grid of group names and of the editor above it, apart from any toolkit.
#pragma once

#include "engine/list_settings.h"
#include "platform/ms_flex_grid.h"

#include <cstdint>
#include <string>

namespace orvane {

/// The editor as the rules see it. What its handlers throw comes out of these operations.
class NameBox {
  public:
    virtual ~NameBox() = default;
    [[nodiscard]] virtual std::string Text() const = 0;
    /// Runs TempTxt_Change when the text differs.
    virtual void SetText(const std::string& text) = 0;
    /// Its whole text is selected then.
    virtual void SetFocus() = 0;
    /// Selects the whole text if the user is in the box.
    virtual void SelectIfFocused() = 0;
};

/// The handlers run inside one another: a text that a handler loads into the editor is written back to the
/// cell that it came from, and changes nothing there.
///
/// The editor edits names. While a number is the current cell, as at a start without settings, it holds the
/// name of that row, and typing there moves on to the name.
class GroupNameEditor {
  public:
    GroupNameEditor(const ListSettings& settings, MSFlexGrid& GroupNameGrid, NameBox& TempTxt)
        : settings_(settings), GroupNameGrid_(GroupNameGrid), TempTxt_(TempTxt) {}

    /// Numbers the groups 1 to `groups` and ends on row 1.
    void NumberGroups(std::int16_t groups);
    /// Gives the grid a row for each group. A name that is empty becomes "Group " and its number. The editor
    /// has no target afterwards: what is typed there reaches no name until a cell is selected.
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
    std::int16_t EditRow_ = 0; ///< 0: no target among the groups
    std::int16_t EditCol_ = 0;
};

} // namespace orvane
