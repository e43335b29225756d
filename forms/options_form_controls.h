// Adapter through which the buttons of the options window use its controls.
#pragma once

#include "engine/numbers.h"
#include "forms/event_guard.h"
#include "forms/line_box.h"
#include "options/options_controls.h"
#include "ui_options_form.h"

#include <QDialog>

#include <cstdint>
#include <string>

namespace orvane {

class OptionsFormControls : public OptionsControls {
  public:
    OptionsFormControls(QDialog& window, const Ui::frmOptions& ui, EventGuard& guard)
        : window_(window), ui_(ui), guard_(guard) {}

    void FocusEqBlockSizeTxt() override { Focus(*ui_.EqBlockSizeTxt); }
    void FocusUnEqBlockSizeTxt() override { Focus(*ui_.UnEqBlockSizeTxt); }
    void FocusTxtLevel() override { Focus(*ui_.txtLevel); }
    [[nodiscard]] std::string LevelText() const override { return ui_.txtLevel->Text(); }
    void SelectTab(std::int16_t tab) override {
        guard_.Calling([&] { ui_.tbsOptions->setCurrentIndex(tab - 1); });
    }
    [[nodiscard]] bool TableBorderChecked() const override { return ui_.chkTableBorder->isChecked(); }
    [[nodiscard]] std::int16_t CellSpacingPosition() const override {
        return ToInt16(ui_.hsbCellSp->value());
    }
    void Close() override { window_.done(QDialog::Accepted); }

  private:
    void Focus(LineBox& field) {
        if (field.isVisible() && field.isEnabled())
            guard_.Calling([&] { field.TakeFocus(); });
    }

    QDialog& window_;
    const Ui::frmOptions& ui_;
    EventGuard& guard_;
};

} // namespace orvane
