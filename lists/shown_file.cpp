#include "lists/shown_file.h"

#include "lists/glb_util.h"
#include "platform/failure_report.h"
#include "platform/text_file.h"

namespace orvane {

ShownFile::ShownFile(Platform& desktop, CommonDialog& CMDialog) : desktop_(desktop), CMDialog_(CMDialog) {
    CMDialog_.DialogTitle = "Save to File As...";
    CMDialog_.Filter = "Text file (*.txt)|*.txt";
    CMDialog_.FileName = "output";
    CMDialog_.DefaultExt = "htm";
}

void ShownFile::OutputFileName(const std::string& strOutputFileName, bool temporary) {
    OutputFileName_ = strOutputFileName;
    temporary_ = temporary;
}

std::string ShownFile::Read() {
    std::string text;
    WithFailurePath(desktop_.Messages, [&] {
        TextFileReader file(*desktop_.FileSystem.OpenForInput(OutputFileName_), desktop_.Page,
                            OutputFileName_, {true, LongestLine, LargestFile});
        for (std::size_t lines = 0; !file.AtEnd(); ++lines) {
            if (lines == MostLines)
                throw Failure("The file " + OutputFileName_ + " has more than " + std::to_string(MostLines) +
                                  " lines and is not shown to its end",
                              failure_number::TooLarge, "OutputFrm");
            text.append(file.ReadLine()).push_back('\n');
        }
        desktop_.Pointer.ShowNormal();
    });
    return text;
}

void ShownFile::SaveAs() {
    WithFailurePath(desktop_.Messages, [this] {
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

void ShownFile::SaveToText(const std::string& strFileName) {
    WithFailurePath(desktop_.Messages, [&] { desktop_.FileSystem.Copy(OutputFileName_, strFileName); });
}

void ShownFile::DeleteIfTemporary() {
    if (!temporary_)
        return;
    try {
        desktop_.FileSystem.Delete(OutputFileName_);
    } catch (...) {
        // The file no longer exists or cannot be deleted. The user could do nothing about it while a window
        // closes.
    }
}

} // namespace orvane
