// What OK, Cancel and Apply of the options window do. A successful OK sets the block sizes of the list.
#pragma once

#include "engine/list_settings.h"
#include "options/block_size_list.h"
#include "options/option_properties.h"
#include "options/options_controls.h"
#include "platform/platform.h"

#include <string>

namespace orvane {

class OptionValidation {
  public:
    OptionValidation(ListSettings& settings, ListResults& results, OptionsControls& controls,
                     Platform& desktop)
        : settings_(settings), results_(results), controls_(controls), desktop_(desktop),
          list_(settings, results, controls, desktop) {}

    /// Stores the values that Cancel restores.
    /// Requires: called at every opening of the window, after the level was written into its field and
    /// before BringOptionsIntoRange.
    void TakeSnapshot() { snapshot_ = settings_; }

    /// Returns true if the options were refused; the first fault found was then reported. Returns false if
    /// they are valid; BlockSizes then holds a list that can be made. A failure of any kind while the list of
    /// block sizes is checked counts as a fault of its field. A failure while blocks of random size are drawn
    /// is thrown. After a refusal or a failure the content of BlockSizes is undefined; the next call starts
    /// again.
    /// Requires: there is a name for each group.
    bool NotValidInputs();

    /// After a refusal the window stays open. Otherwise shows the busy pointer, which the caller of
    /// ShowModal sets back to normal, and closes the window.
    void cmdOK_Click();
    void cmdCancel_Click();
    /// Does nothing.
    void cmdApply_Click();

  private:
    using Focus = void (OptionsControls::*)();
    /// Shows the message and puts the focus on the field. Always returns true.
    bool Refuse(const std::string& message, Focus focus);
    bool SampleSizeRefused();
    bool BlocksRefused();
    /// `size` is the numeric value of the field, rounded.
    bool EqualSizeRefused(double size);
    [[nodiscard]] bool ListHasFault();
    bool LevelRefused();
    bool ListRefused();
    void SetForEqualBlocks(std::int16_t size);
    void SetForRandomBlockSize();

    ListSettings& settings_;
    ListResults& results_;
    OptionsControls& controls_;
    Platform& desktop_;
    BlockSizeList list_;
    ListSettings snapshot_;
};

} // namespace orvane
