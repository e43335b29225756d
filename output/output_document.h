// The file behind the output window: read into the window's text, copied by Save, deleted at the close when
// it is temporary.
#pragma once

#include "platform/common_dialog.h"
#include "platform/platform.h"

#include <cstddef>
#include <string>

namespace orvane {

/// The text box of the window.
class OutputText {
  public:
    virtual ~OutputText() = default;
    /// Appends `text` and a line end.
    virtual void AppendLine(const std::string& text) = 0;
};

class OutputDocument {
  public:
    /// Gives the dialog the values that the window's prompts start with.
    OutputDocument(Platform& desktop, CommonDialog& CMDialog);

    void OutputFileName(const std::string& strOutputFileName, bool temporary);

    /// Reads the file into `text` and shows the normal pointer. Reports a failure itself; the lines read by
    /// then stay.
    void Form_Load(OutputText& text);
    /// Asks for a name and copies the file there. Reports a failure itself.
    void SaveCmd_Click();
    /// Copies the file to `strFileName`, replacing it. Reports a failure itself.
    void SaveToText(const std::string& strFileName);
    /// Deletes the file if it is temporary; that it cannot be deleted is ignored.
    void Form_Unload();

    /// Bytes of UTF-8 text that the window shows of a file, line ends included; a larger file is a TooLarge
    /// failure behind them.
    static constexpr std::size_t LargestFile = std::size_t{1} << 24U;

  private:
    void ReadInto(OutputText& text);

    Platform& desktop_;
    CommonDialog& CMDialog_;
    std::string OutputFileName_;
    bool temporary_ = false;
};

} // namespace orvane
