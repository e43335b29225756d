// The window of the list's options. It edits the option values in place; Cancel goes back to how they were.
#pragma once

#include "engine/generation.h"
#include "engine/list_settings.h"
#include "platform/ms_flex_grid.h"
#include "platform/platform.h"

namespace orvane {

class OptionsForm : public OptionsWindow {
  public:
    OptionsForm(ListSettings& settings, ListResults& results, const MSFlexGrid& groupNames, Platform& desktop)
        : settings_(settings), results_(results), groupNames_(groupNames), desktop_(desktop) {}

    /// SampleSize must be above 0. Throws what building the window throws; nothing is on the screen then.
    /// Failures while it is open are reported by the window itself.
    void ShowModal() override;

  private:
    ListSettings& settings_;
    ListResults& results_;
    const MSFlexGrid& groupNames_;
    Platform& desktop_;
};

} // namespace orvane
