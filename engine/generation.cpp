#include "engine/generation.h"

#include "engine/numbers.h"
#include "engine/subject_codes.h"
#include "engine/text.h"

namespace orvane {

void RefuseSampleSize(SampleSizeBox& box, MessageBox& messages) {
    messages.Show(IsAboveSampleSizes(box.Text())
                      ? "the sample size can be at most " + std::to_string(LargestList)
                      : "please specify the sample size");
    box.SetFocus();
}

void Generation::cmdGenerate_Click() {
    mnuSequence_Click(GenerateItem);
}

void Generation::mnuSequence_Click(std::int16_t Index) {
    desktop_.Pointer.ShowBusy();
    if (Index == GenerateItem) {
        results_.MinPValue = 1;
        results_.MaxPValue = 0;
        GenerateRandomList();
        const bool anyBlockTested = results_.MinPValue <= results_.MaxPValue;
        if (settings_.PerformRuns && anyBlockTested)
            ShowRunsTestMessage();
    }
    desktop_.Pointer.ShowNormal();
}

void Generation::GenerateRandomList() {
    if (settings_.SampleSize <= 0) {
        RefuseSampleSize(sampleSize_, desktop_.Messages);
        return;
    }
    options_.ShowModal();
    if (settings_.SelectedCmd == ClosedByCancel)
        return;
    CreateCodeArr(settings_, results_, desktop_.Random, desktop_.Clock);
    switch (settings_.OutputOption) {
    case ToFile:
        channels_.OutputToFile();
        break;
    case ToWindow:
        channels_.OutputToWindow();
        break;
    case ToClipboard:
        channels_.OutputToClipBoard();
        break;
    default:
        break;
    }
}

void Generation::ShowRunsTestMessage() {
    const std::string lowest = FourDecimals(results_.MinPValue);
    if (results_.MinPValue == results_.MaxPValue) {
        desktop_.Messages.Show("P value of Runs test = " + lowest);
        return;
    }
    const std::string lineEnd(LineEnd);
    desktop_.Messages.Show("Runs test:" + lineEnd + "Minimum P value = " + lowest + lineEnd +
                           "Maximum P value = " + FourDecimals(results_.MaxPValue));
}

} // namespace orvane
