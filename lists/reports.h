// The four reports of a list. A report makes the list while it writes it, so each report gives a new list.
#pragma once

#include "engine/list_settings.h"
#include "platform/platform.h"

#include <cstdint>
#include <string>

namespace orvane {

/// What a report needs.
struct ReportContext {
    const ListSettings& Settings;
    ListResults& Results;
    Platform& Desktop;
    std::intptr_t MainWindow = 0; ///< handle of the owner window for programs that a report starts; 0: none
};

/// The window that shows a list.
class OutputWindow {
  public:
    virtual ~OutputWindow() = default;
    /// The file to show; a temporary one is deleted when the window closes.
    virtual void OutputFileName(const std::string& strOutputFileName, bool temporary) = 0;
    /// Shows the window and returns when it has closed.
    virtual void ShowModal() = 0;
};

/// Writes the list as plain text into the file `S`, replacing it, and opens it in its associated program.
/// Reports a failure itself and returns normally; the file then contains the lines written so far, and no
/// program is started.
void GenerateText(const ReportContext& context, const std::string& S);

/// Writes the list as a web page into the file `S`, replacing it, and opens it in its associated program.
/// Throws every failure; the file then contains the lines written so far, and no program is started.
void GenerateHtm(const ReportContext& context, const std::string& S);

/// Writes the list into a new file with a random name in the program's directory and shows it in the window.
/// Throws, with no file created, if no name can be drawn or none is free. Reports any other failure itself
/// and returns normally; a file that was created then remains.
void OutputToWindow(const ReportContext& context, OutputWindow& window);

/// Builds the list as one text, each cell padded with spaces to the width of its column, and puts it on the
/// clipboard. Reports a failure itself and returns normally. After a failure the clipboard is unchanged, or
/// empty if it refused the finished text.
void OutputToClipBoard(const ReportContext& context);

} // namespace orvane
