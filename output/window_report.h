// The list in a window, which reads it from a temporary file in the program's directory.
#pragma once

#include "output/report_context.h"

#include <string>

namespace orvane {

/// The window that shows a list.
class OutputWindow {
  public:
    virtual ~OutputWindow() = default;
    /// The file to show; a temporary one is deleted when the window closes.
    virtual void OutputFileName(const std::string& strOutputFileName, bool temporary) = 0;
    /// Shows the window and returns when it has closed.
    virtual void ShowModal() = 0;
};

/// Writes the list into a new file with a random name in the program's directory and shows it in the window.
/// Throws, with no file created, if no free name is found. Reports any other failure itself and returns
/// normally; a file that was created then remains.
void OutputToWindow(const ReportContext& context, OutputWindow& window);

} // namespace orvane
