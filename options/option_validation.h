// What OK, Cancel and Apply of the options window do. A valid OK fixes the block structure of the list.
#pragma once

#include "engine/list_settings.h"
#include "options/block_size_list.h"
#include "options/option_properties.h"
#include "options/options_controls.h"
#include "platform/ms_flex_grid.h"
#include "platform/platform.h"

#include <string>

namespace orvane {

class OptionValidation {
  public:
    OptionValidation(ListSettings& settings, ListResults& results, const MSFlexGrid& groupNames,
                     OptionsControls& controls, Platform& desktop)
        : settings_(settings), results_(results), groupNames_(groupNames), controls_(controls),
          desktop_(desktop), list_(settings, results, controls, desktop) {}

    /// Keeps the values that Cancel goes back to. To be called at every opening, once the level has gone
    /// through its field and before BringOptionsIntoRange.
    void TakeSnapshot() { snapshot_ = OptionSnapshot(settings_); }

    /// True when the options were refused, after the messages of one fault; False when they are valid and
    /// BlockSizes holds a list that can be made. A failure of any kind in the judgement of a field counts as
    /// a fault of that field; a failure in drawing blocks of random size comes out. After a refusal or a
    /// failure BlockSizes may hold anything; the next call starts anew.
    /// Requires: SampleSize is above 0.
    bool NotValidInputs();

    /// Leaves the window open after a refusal. Otherwise shows the busy pointer, for the opener to take back,
    /// and closes the window.
    void cmdOK_Click();
    void cmdCancel_Click();
    /// Neither checks nor stores anything.
    void cmdApply_Click();

  private:
    using Focus = void (OptionsControls::*)();
    /// Shows the message, puts the focus on the field and returns true.
    bool Refuse(const std::string& message, Focus focus);
    bool BlocksRefused();
    bool EqualSizeRefused();
    bool LevelRefused();
    bool ListRefused();
    void SetForEqualBlocks();
    void SetForRandomBlockSize();

    ListSettings& settings_;
    ListResults& results_;
    const MSFlexGrid& groupNames_;
    OptionsControls& controls_;
    Platform& desktop_;
    BlockSizeList list_;
    OptionSnapshot snapshot_;
};

} // namespace orvane
