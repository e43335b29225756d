// Adapters through which the other folders use the controls of the main form.
#pragma once

#include "engine/generation.h"
#include "forms/event_guard.h"
#include "forms/group_name_grid.h"
#include "forms/line_box.h"
#include "output/output_channels.h"
#include "settings/settings_file.h"

#include <QAction>
#include <QScrollBar>

#include <array>
#include <cstdint>
#include <string>

namespace orvane {

/// SampSizeTxt, for the routines that refuse a sample size.
class SampSizeTxtBox : public SampleSizeBox {
  public:
    SampSizeTxtBox(LineBox& box, EventGuard& guard) : box_(box), guard_(guard) {}
    [[nodiscard]] std::string Text() const override { return box_.Text(); }
    void SetFocus() override {
        guard_.Calling([this] { box_.TakeFocus(); });
    }

  private:
    LineBox& box_;
    EventGuard& guard_;
};

/// TempTxt, for the rules of the group names.
class TempTxtBox : public NameBox {
  public:
    TempTxtBox(LineBox& box, EventGuard& guard) : box_(box), guard_(guard) {}
    [[nodiscard]] std::string Text() const override { return box_.Text(); }
    void SetText(const std::string& text) override {
        guard_.Calling([&] { box_.SetText(text); });
    }
    void SetFocus() override {
        guard_.Calling([this] { box_.TakeFocus(); });
    }
    void SelectIfFocused() override {
        if (box_.hasFocus())
            box_.selectAll();
    }

  private:
    LineBox& box_;
    EventGuard& guard_;
};

/// The controls that are changed when settings are loaded.
class LoadedControls : public MainControls {
  public:
    LoadedControls(QScrollBar& nogHsb, LineBox& SampSizeTxt, EventGuard& guard)
        : nogHsb_(nogHsb), SampSizeTxt_(SampSizeTxt), guard_(guard) {}

    /// Throws an OutOfRange failure for a position outside the bar's range. The toolkit's own bar would use
    /// the nearest position instead.
    void SetNogHsb(std::int16_t position) override {
        if (position < nogHsb_.minimum() || position > nogHsb_.maximum())
            throw Failure("The number of groups cannot be " + std::to_string(position) +
                              ": it must be from " + std::to_string(nogHsb_.minimum()) + " to " +
                              std::to_string(nogHsb_.maximum()),
                          failure_number::OutOfRange, "nogHsb");
        guard_.Calling([&] { nogHsb_.setValue(position); });
    }
    void SetSampSizeTxt(const std::string& text) override {
        guard_.Calling([&] { SampSizeTxt_.SetText(text); });
    }

  private:
    QScrollBar& nogHsb_;
    LineBox& SampSizeTxt_;
    EventGuard& guard_;
};

/// The items of the submenu mnuOutput.
class OutputItems : public OutputMenu {
  public:
    explicit OutputItems(const std::array<QAction*, 3>& items) : items_(items) {}
    [[nodiscard]] std::int16_t Count() const override { return static_cast<std::int16_t>(items_.size()); }
    /// Checks the item of `channel` and no other. The toolkit checks an item as soon as it is chosen, even if
    /// the command is then ignored.
    void Check(std::int32_t channel) {
        for (std::int16_t Index = 0; Index < Count(); ++Index)
            SetChecked(Index, Index == channel);
    }
    void SetChecked(std::int16_t Index, bool checked) override {
        items_.at(static_cast<std::size_t>(Index))->setChecked(checked);
    }

  private:
    std::array<QAction*, 3> items_;
};

} // namespace orvane
