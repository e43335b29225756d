#include "forms/group_name_editor.h"

namespace orvane {

namespace {

constexpr std::int16_t NumberColumn = 0;
constexpr std::int16_t NameColumn = 1;

} // namespace

std::vector<std::string> GroupNameEditor::Names() const {
    std::vector<std::string> names;
    for (std::int16_t g = 1; g <= settings_.NumberOfGroups; ++g)
        names.push_back(GroupNameGrid_.TextMatrix(g, NameColumn));
    return names;
}

void GroupNameEditor::NumberGroups(std::int16_t groups) {
    GroupNameGrid_.SetCol(NumberColumn);
    for (std::int16_t g = groups; g >= 1; --g) {
        GroupNameGrid_.SetRow(g);
        GroupNameGrid_.SetText(std::to_string(g));
    }
}

void GroupNameEditor::SetGroups() {
    GroupNameGrid_.SetRows(static_cast<std::int16_t>(settings_.NumberOfGroups + 1));
    GroupNameGrid_.SetCol(NameColumn);
    for (std::int16_t g = 1; g <= settings_.NumberOfGroups; ++g) {
        GroupNameGrid_.SetRow(g);
        if (GroupNameGrid_.Text().empty()) {
            GroupNameGrid_.SetCol(NumberColumn);
            GroupNameGrid_.SetText(std::to_string(g));
            GroupNameGrid_.SetCol(NameColumn);
            GroupNameGrid_.SetText("Group " + std::to_string(g));
        }
    }
    EditRow_ = 0;
    TempTxt_.SetText("");
}

void GroupNameEditor::GroupNameGrid_Click() {
    LoadEditor();
    TempTxt_.TakeFocus();
}

void GroupNameEditor::GroupNameGrid_RowColChange() {
    LoadEditor();
    if (GroupNameGrid_.Row() == 0)
        GroupNameGrid_.SetRow(1);
}

void GroupNameEditor::TempTxt_Change() {
    if (EditCol_ == NumberColumn)
        return MoveTypedTextToName();
    const bool hadTarget = EditRow_ != 0;
    GroupNameGrid_.SetRow(EditRow_);
    GroupNameGrid_.SetText(TempTxt_.Text());
    // The editor now shows the name of group 1. It is selected so that the next key replaces it.
    if (!hadTarget && TempTxt_.hasFocus())
        TempTxt_.selectAll();
}

void GroupNameEditor::LoadEditor() {
    EditRow_ = GroupNameGrid_.Row();
    EditCol_ = GroupNameGrid_.Col();
    TempTxt_.SetText(GroupNameGrid_.TextMatrix(EditRow_, NameColumn));
}

void GroupNameEditor::MoveTypedTextToName() {
    const std::string typed = TempTxt_.Text();
    const bool loaded = typed == GroupNameGrid_.TextMatrix(EditRow_, NameColumn);
    if (loaded)
        return;
    GroupNameGrid_.SetCol(NameColumn);
    TempTxt_.SetText(typed);
}

} // namespace orvane
