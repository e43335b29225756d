// The options window. It changes the option values directly; Cancel restores the values from the opening.
#pragma once

#include "engine/list_settings.h"
#include "forms/group_name_editor.h"
#include "lists/generation.h"
#include "platform/platform.h"

namespace orvane {

class OptionsForm : public OptionsWindow {
  public:
    OptionsForm(ListSettings& settings, ListResults& results, const GroupNameEditor& groupNames,
                Platform& desktop)
        : settings_(settings), results_(results), groupNames_(groupNames), desktop_(desktop) {}

    /// Throws the failures of building the window, before it is shown. Failures while it is open are reported
    /// by the window itself.
    /// Requires: SampleSize above 0.
    void ShowModal() override;

  private:
    ListSettings& settings_;
    ListResults& results_;
    const GroupNameEditor& groupNames_;
    Platform& desktop_;
};

} // namespace orvane
