// The file behind the output window: read into the window's text, copied by Save, deleted at the close when
// it is temporary.
#pragma once

#include "platform/common_dialog.h"
#include "platform/platform.h"

#include <cstddef>
#include <string>

namespace orvane {

/// The text box of the window.
class TextBox {
  public:
    virtual ~TextBox() = default;
    /// Appends `text` and a line end.
    virtual void AppendLine(const std::string& text) = 0;
};

class ShownFile {
  public:
    /// Gives the dialog the values that the window's prompts start with.
    ShownFile(Platform& desktop, CommonDialog& CMDialog);

    void OutputFileName(const std::string& strOutputFileName, bool temporary);

    /// Reads the file into `text` and shows the normal pointer. Reports a failure itself; the lines read by
    /// then stay.
    void ReadInto(TextBox& text);
    /// Asks for a name and copies the file there. Reports a failure itself.
    void SaveAs();
    /// Copies the file to `strFileName`, replacing it. Reports a failure itself.
    void SaveToText(const std::string& strFileName);
    /// Deletes the file if it is temporary; that it cannot be deleted is ignored.
    void DeleteIfTemporary();

    /// What the window shows of a file; what goes beyond it is a TooLarge failure behind the lines that were
    /// read. The largest list that the program makes has 32,767 subjects: with names of 1,000 characters it
    /// has 33 MB and fewer than 100,000 lines. A text box needs a second for as many, and minutes for ten
    /// times as many lines; it becomes slow to scroll with lines much longer than these.
    static constexpr std::size_t LargestFile = std::size_t{1} << 26U; ///< bytes of the file
    static constexpr std::size_t MostLines = std::size_t{1} << 17U;
    static constexpr std::size_t LongestLine = std::size_t{1} << 14U; ///< bytes of the file

  private:
    void ReadLines(TextBox& text);

    Platform& desktop_;
    CommonDialog& CMDialog_;
    std::string OutputFileName_;
    bool temporary_ = false;
};

} // namespace orvane
