// The controls of the windows, without the windows.
#pragma once

#include "engine/numbers.h"
#include "fakes/memory_grid.h"
#include "options/options_controls.h"
#include "output/output_channels.h"
#include "platform/failure.h"
#include "settings/settings_file.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace orvane::fakes {

/// The options window: keeps what was asked of it in order.
class RecordingOptions : public OptionsControls {
  public:
    void FocusEqBlockSizeTxt() override { Log.emplace_back("EqBlockSizeTxt"); }
    void FocusUnEqBlockSizeTxt() override { Log.emplace_back("UnEqBlockSizeTxt"); }
    void FocusTxtLevel() override { Log.emplace_back("txtLevel"); }
    [[nodiscard]] std::string LevelText() const override { return Level; }
    void SelectTab(std::int16_t tab) override { Log.push_back("tab " + std::to_string(tab)); }
    [[nodiscard]] bool TableBorderChecked() const override { return TableBorder; }
    [[nodiscard]] std::int16_t CellSpacingPosition() const override { return CellSpacing; }
    void Close() override { Log.emplace_back("close"); }

    std::vector<std::string> Log;
    std::string Level = "0.05";
    bool TableBorder = false;
    std::int16_t CellSpacing = 1;
};

/// The scroll bar and the sample size box of the main form.
class FakeMainControls : public MainControls {
  public:
    FakeMainControls(ListSettings& settings, MSFlexGrid& grid) : settings_(settings), grid_(grid) {}

    void SetNogHsb(std::int16_t position) override {
        if (position < FewestGroups || position > MostGroups)
            throw Failure("no such position", failure_number::OutOfRange, "FakeMainControls");
        settings_.NumberOfGroups = position;
        grid_.SetRows(Add16(position, 1));
    }
    void SetSampSizeTxt(const std::string& text) override {
        SampSizeTxt = text;
        settings_.SampleSize = SampleSizeOf(text);
    }
    std::string SampSizeTxt;

  private:
    ListSettings& settings_;
    MSFlexGrid& grid_;
};

class FakeOutputMenu : public OutputMenu {
  public:
    [[nodiscard]] std::int16_t Count() const override { return 3; }
    void SetChecked(std::int16_t Index, bool checked) override {
        Checked.at(static_cast<std::size_t>(Index)) = checked;
    }
    std::array<bool, 3> Checked{true, false, false};
};

} // namespace orvane::fakes
