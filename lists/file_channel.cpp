#include "lists/file_channel.h"

#include "lists/glb_util.h"
#include "platform/failure_report.h"

namespace orvane {

namespace {

constexpr const char* ListFilter = "htm file (*.htm)|*.htm|Text file (*.txt)|*.txt";
/// The help page, which lists must not overwrite.
constexpr const char* ReservedFile = "randomization.htm";

void PrepareSavePrompt(CommonDialog& CMDialog, MousePointer& pointer) {
    CMDialog.Flags = CommonDialog::OverwritePrompt;
    CMDialog.FileName = "output";
    CMDialog.DialogTitle = "Save Orvane File As...";
    CMDialog.Filter = ListFilter;
    pointer.ShowNormal();
}

/// Shows the prompt again as long as the chosen file is the reserved one.
std::string AskForListFile(CommonDialog& CMDialog, const Platform& desktop) {
    const std::string reserved = desktop.BesideProgram(ReservedFile);
    for (;;) {
        CMDialog.ShowSave();
        if (CMDialog.FileName != reserved)
            return CMDialog.FileName;
        desktop.Messages.Show("Selected file is in use by the program");
    }
}

/// The path chosen in an open prompt; empty after a cancel and after a failure, which was then reported.
std::string GetRandomFileName(CommonDialog& CMDialog, MessageBox& messages) {
    std::string name;
    WithFailurePath(messages, [&] {
        CMDialog.DialogTitle = "Select the random file";
        CMDialog.Filter = ListFilter;
        CMDialog.ShowOpen();
        name = CMDialog.FileName;
    });
    return name;
}

} // namespace

void OutputToFile(const ReportContext& context, CommonDialog& CMDialog) {
    const Platform& desktop = context.Desktop;
    WithFailurePath(desktop.Messages, [&] {
        for (;;) {
            PrepareSavePrompt(CMDialog, desktop.Pointer);
            const std::string name = AskForListFile(CMDialog, desktop);
            desktop.Pointer.ShowBusy();
            const std::string extension = UpperLastThree(name);
            if (extension == "HTM")
                return GenerateHtm(context, name);
            if (extension == "TXT")
                return GenerateText(context, name);
            desktop.Messages.Show("Only htm ot text files allowed!");
        }
    });
}

void DisplayRandomFile(const ReportContext& context, CommonDialog& CMDialog, OutputWindow& window) {
    const Platform& desktop = context.Desktop;
    WithFailurePath(desktop.Messages, [&] {
        const std::string name = GetRandomFileName(CMDialog, desktop.Messages);
        if (name.empty())
            return;
        if (UpperLastThree(name) == "HTM")
            return OpenInBrowser(name, context.MainWindow, desktop.Shell, desktop.Messages);
        window.OutputFileName(name, false);
        window.ShowModal();
    });
}

} // namespace orvane
