// The window that shows a list: a new one from the window report, or a saved file.
#pragma once

#include "lists/reports.h"
#include "lists/shown_file.h"
#include "platform/common_dialog.h"
#include "platform/platform.h"

#include <string>

namespace orvane {

class OutputForm : public OutputWindow {
  public:
    /// `CMDialog` is used by this window only.
    OutputForm(Platform& desktop, CommonDialog& CMDialog) : desktop_(desktop), file_(desktop, CMDialog) {}

    void OutputFileName(const std::string& strOutputFileName, bool temporary) override {
        file_.OutputFileName(strOutputFileName, temporary);
    }
    /// If the file cannot be read, this is reported and the window opens with the lines read so far. A
    /// temporary file is deleted before the return.
    void ShowModal() override;

  private:
    Platform& desktop_;
    ShownFile file_;
};

} // namespace orvane
