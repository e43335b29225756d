// The list in a window, by way of a temporary file beside the program.
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
    /// Returns when the window has closed.
    virtual void ShowModal() = 0;
};

/// Writes the list into a new file of a random name in the program's directory and shows it in the window.
/// A failure to find a free name comes out, with no file made. Reports any other failure itself and returns
/// normally; a file already begun stays.
void OutputToWindow(const ReportContext& context, OutputWindow& window);

} // namespace orvane
