// The controls of the options window, as the validation and the buttons use them.
#pragma once

#include <cstdint>
#include <string>

namespace orvane {

class OptionsControls {
  public:
    virtual ~OptionsControls() = default;

    /// The focus operations do nothing while the field cannot take the focus, for example when its tab is
    /// not shown.
    virtual void FocusEqBlockSizeTxt() = 0;
    virtual void FocusUnEqBlockSizeTxt() = 0;
    virtual void FocusTxtLevel() = 0;
    /// The current text of txtLevel.
    [[nodiscard]] virtual std::string LevelText() const = 0;
    /// Selects a tab of tbsOptions, counted from 1.
    virtual void SelectTab(std::int16_t tab) = 0;
    [[nodiscard]] virtual bool TableBorderChecked() const = 0;
    /// The position of hsbCellSp, 0 to 5.
    [[nodiscard]] virtual std::int16_t CellSpacingPosition() const = 0;
    virtual void Close() = 0;
};

} // namespace orvane
