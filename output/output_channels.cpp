#include "output/output_channels.h"

#include "output/clipboard_report.h"
#include "output/glb_util.h"
#include "output/html_report.h"
#include "output/text_report.h"

namespace orvane {

namespace {

constexpr const char* ListFilter = "htm file (*.htm)|*.htm|Text file (*.txt)|*.txt";
/// The help page, which lists must not overwrite.
constexpr const char* ReservedFile = "randomization.htm";

} // namespace

void mnuOutput_Click(std::int16_t Index, OutputMenu& menu, ListSettings& settings) {
    const std::int16_t count = menu.Count();
    for (std::int16_t item = 0; item < count; ++item)
        menu.SetChecked(item, false);
    if (Index < 0 || Index >= count)
        throw Failure("There is no output channel " + std::to_string(Index), failure_number::OutOfRange,
                      "mnuOutput_Click");
    menu.SetChecked(Index, true);
    settings.OutputOption = Index;
}

void ListChannels::OutputToFile() {
    const Platform& desktop = context_.Desktop;
    WithFailurePath(desktop.Messages, true, [&] {
        for (;;) {
            PrepareSavePrompt();
            const std::string name = AskForListFile();
            desktop.Pointer.ShowBusy();
            const std::string extension = UpperLastThree(name);
            if (extension == "HTM")
                return GenerateHtm(context_, name);
            if (extension == "TXT")
                return GenerateText(context_, name);
            desktop.Messages.Show("Only htm ot text files allowed!");
        }
    });
}

void ListChannels::PrepareSavePrompt() {
    CMDialog_.Flags = CommonDialog::OverwritePrompt;
    CMDialog_.FileName = "output";
    CMDialog_.DialogTitle = "Save Orvane File As...";
    CMDialog_.Filter = ListFilter;
    context_.Desktop.Pointer.ShowNormal();
}

std::string ListChannels::AskForListFile() {
    const std::string reserved = context_.Desktop.BesideProgram(ReservedFile);
    for (;;) {
        CMDialog_.ShowSave();
        if (CMDialog_.FileName != reserved)
            return CMDialog_.FileName;
        context_.Desktop.Messages.Show("Selected file is in use by the program");
    }
}

void ListChannels::OutputToWindow() {
    orvane::OutputToWindow(context_, window_);
}

void ListChannels::OutputToClipBoard() {
    orvane::OutputToClipBoard(context_);
}

void ListChannels::DisplayRandomFile() {
    const Platform& desktop = context_.Desktop;
    WithFailurePath(desktop.Messages, false, [&] {
        const std::string name = GetRandomFileName();
        if (name.empty())
            return;
        if (UpperLastThree(name) == "HTM")
            return OpenInBrowser(name, context_.MainWindow, desktop.Shell, desktop.Messages);
        window_.OutputFileName(name, false);
        window_.ShowModal();
    });
}

std::string ListChannels::GetRandomFileName() {
    std::string name;
    WithFailurePath(context_.Desktop.Messages, true, [&] {
        CMDialog_.DialogTitle = "Select the random file";
        CMDialog_.Filter = ListFilter;
        CMDialog_.ShowOpen();
        name = CMDialog_.FileName;
    });
    return name;
}

} // namespace orvane
