// The Generate command, from the button to the closing message.
#pragma once

#include "lists/reports.h"
#include "platform/common_dialog.h"

#include <cstdint>
#include <functional>
#include <utility>

namespace orvane {

/// The options window, as the commands that show it see it.
class OptionsWindow {
  public:
    virtual ~OptionsWindow() = default;
    /// Shows the window and returns when it has closed. How it was closed stands in SelectedCmd.
    virtual void ShowModal() = 0;
};

/// The items of the "Sequence" menu: the Index of mnuSequence_Click.
enum SequenceItems : std::int16_t { OutputItem = 0, GenerateItem = 2 };

class Generation {
  public:
    /// `refuseSampleSize` tells the user that the sample size cannot be used.
    Generation(const ReportContext& context, OptionsWindow& options, CommonDialog& CMDialog,
               OutputWindow& output, std::function<void()> refuseSampleSize)
        : context_(context), options_(options), CMDialog_(CMDialog), output_(output),
          refuseSampleSize_(std::move(refuseSampleSize)) {}

    void cmdGenerate_Click() { mnuSequence_Click(GenerateItem); }
    /// Every Index but GenerateItem only shows the busy pointer and the normal one.
    void mnuSequence_Click(std::int16_t Index);
    void GenerateRandomList();

  private:
    void ShowRunsTestMessage();

    const ReportContext& context_;
    OptionsWindow& options_;
    CommonDialog& CMDialog_;
    OutputWindow& output_;
    std::function<void()> refuseSampleSize_;
};

} // namespace orvane
