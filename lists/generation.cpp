#include "lists/generation.h"

#include "engine/numbers.h"
#include "engine/subject_codes.h"
#include "lists/file_channel.h"
#include "platform/text.h"

namespace orvane {

void Generation::mnuSequence_Click(std::int16_t Index) {
    const Platform& desktop = context_.Desktop;
    ListResults& results = context_.Results;
    desktop.Pointer.ShowBusy();
    if (Index == GenerateItem) {
        results.MinPValue = 1;
        results.MaxPValue = 0;
        GenerateRandomList();
        const bool anyBlockTested = results.MinPValue <= results.MaxPValue;
        if (context_.Settings.PerformRuns && anyBlockTested)
            ShowRunsTestMessage();
    }
    desktop.Pointer.ShowNormal();
}

void Generation::GenerateRandomList() {
    const ListSettings& settings = context_.Settings;
    if (settings.SampleSize <= 0)
        return refuseSampleSize_();
    options_.ShowModal();
    if (settings.SelectedCmd == ClosedByCancel)
        return;
    CreateCodeArr(settings, context_.Results, context_.Desktop.Random, context_.Desktop.Clock);
    switch (settings.OutputOption) {
    case ToFile:
        return OutputToFile(context_, CMDialog_);
    case ToWindow:
        return OutputToWindow(context_, output_);
    case ToClipboard:
        return OutputToClipBoard(context_);
    }
}

void Generation::ShowRunsTestMessage() {
    const ListResults& results = context_.Results;
    MessageBox& messages = context_.Desktop.Messages;
    const std::string lowest = FourDecimals(results.MinPValue);
    if (results.MinPValue == results.MaxPValue)
        return messages.Show("P value of Runs test = " + lowest);
    const std::string lineEnd(LineEnd);
    messages.Show("Runs test:" + lineEnd + "Minimum P value = " + lowest + lineEnd +
                  "Maximum P value = " + FourDecimals(results.MaxPValue));
}

} // namespace orvane
