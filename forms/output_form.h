// The window that shows a list: made for it by the report, or saved earlier.
#pragma once

#include "output/shown_file.h"
#include "output/window_report.h"
#include "platform/common_dialog.h"
#include "platform/platform.h"

#include <string>

namespace orvane {

class OutputForm : public OutputWindow {
  public:
    /// `CMDialog` is this window's own prompt.
    OutputForm(Platform& desktop, CommonDialog& CMDialog) : desktop_(desktop), file_(desktop, CMDialog) {}

    void OutputFileName(const std::string& strOutputFileName, bool temporary) override {
        file_.OutputFileName(strOutputFileName, temporary);
    }
    /// A file that cannot be read is reported, and the window opens with the lines read by then. A temporary
    /// file is gone on return.
    void ShowModal() override;

  private:
    Platform& desktop_;
    ShownFile file_;
};

} // namespace orvane
