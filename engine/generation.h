// The Generate command, from the button to the closing message.
#pragma once

#include "engine/list_settings.h"
#include "platform/message_box.h"
#include "platform/platform.h"

#include <cstdint>
#include <string>

namespace orvane {

/// The options window, as the commands that show it see it.
class OptionsWindow {
  public:
    virtual ~OptionsWindow() = default;
    /// Shows the window and returns when it has closed. How it was closed stands in SelectedCmd.
    virtual void ShowModal() = 0;
};

/// The three ways in which a list leaves the program. Each runs its report and returns normally also after a
/// failure, which it has reported itself. Only a failure of OutputToWindow to find a name for its temporary
/// file comes out, before the report begins.
class OutputChannels {
  public:
    virtual ~OutputChannels() = default;
    virtual void OutputToFile() = 0;
    virtual void OutputToWindow() = 0;
    virtual void OutputToClipBoard() = 0;
};

/// The box in which the sample size is typed.
class SampleSizeBox {
  public:
    virtual ~SampleSizeBox() = default;
    [[nodiscard]] virtual std::string Text() const = 0;
    /// Gives the box the keyboard focus, its whole text selected.
    virtual void SetFocus() = 0;
};

/// Says in a message why the sample size cannot be used and puts the focus on its box.
void RefuseSampleSize(SampleSizeBox& box, MessageBox& messages);

/// The items of the "Sequence" menu: the Index of mnuSequence_Click.
enum SequenceItems : std::int16_t { OutputItem = 0, SeparatorItem = 1, GenerateItem = 2 };

class Generation {
  public:
    Generation(const ListSettings& settings, ListResults& results, OptionsWindow& options,
               OutputChannels& channels, SampleSizeBox& sampleSize, Platform& desktop)
        : settings_(settings), results_(results), options_(options), channels_(channels),
          sampleSize_(sampleSize), desktop_(desktop) {}

    void cmdGenerate_Click();
    /// Index is one of SequenceItems; all but "Generate" only show the busy pointer and the normal one.
    void mnuSequence_Click(std::int16_t Index);
    void GenerateRandomList();

  private:
    void ShowRunsTestMessage();

    const ListSettings& settings_;
    ListResults& results_;
    OptionsWindow& options_;
    OutputChannels& channels_;
    SampleSizeBox& sampleSize_;
    Platform& desktop_;
};

} // namespace orvane
