#include "output/output_document.h"

#include "engine/text.h"
#include "output/glb_util.h"
#include "output/text_file.h"

#include <utility>

namespace orvane {

OutputDocument::OutputDocument(Platform& desktop, CommonDialog& CMDialog)
    : desktop_(desktop), CMDialog_(CMDialog) {
    CMDialog_.DialogTitle = "Save to File As...";
    CMDialog_.Filter = "Text file (*.txt)|*.txt";
    CMDialog_.FileName = "output";
    CMDialog_.DefaultExt = "htm";
}

void OutputDocument::OutputFileName(const std::string& strOutputFileName, bool temporary) {
    OutputFileName_ = strOutputFileName;
    temporary_ = temporary;
}

void OutputDocument::Form_Load(OutputText& text) {
    WithFailurePath(desktop_.Messages, false, [&] {
        ReadInto(text);
        desktop_.Pointer.ShowNormal();
    });
}

void OutputDocument::ReadInto(OutputText& text) {
    TextFileReader file(desktop_.FileSystem.OpenForInput(OutputFileName_), desktop_.Page, OutputFileName_);
    std::size_t shown = 0;
    while (!file.AtEnd()) {
        const std::string line = file.ReadLine();
        shown += line.size() + LineEnd.size();
        if (shown > LargestFile)
            throw Failure("The file " + OutputFileName_ + " is too large to be shown as a whole",
                          failure_number::TooLarge, "OutputFrm");
        text.AppendLine(line);
    }
}

void OutputDocument::SaveCmd_Click() {
    WithFailurePath(desktop_.Messages, true, [this] {
        for (;;) {
            CMDialog_.Flags = CommonDialog::OverwritePrompt;
            CMDialog_.FileName = "output";
            CMDialog_.ShowSave();
            const std::string name = CMDialog_.FileName;
            if (UpperLastThree(name) == "TXT")
                return SaveToText(name);
            desktop_.Messages.Show("Only text files allowed!");
        }
    });
}

void OutputDocument::SaveToText(const std::string& strFileName) {
    WithFailurePath(desktop_.Messages, false,
                    [&] { desktop_.FileSystem.Copy(OutputFileName_, strFileName); });
}

void OutputDocument::Form_Unload() {
    if (!std::exchange(temporary_, false))
        return;
    try {
        desktop_.FileSystem.Delete(OutputFileName_);
    } catch (...) {
        // Somebody else deleted it, or it stays: nothing that the user could do at the close of a window.
    }
}

} // namespace orvane
