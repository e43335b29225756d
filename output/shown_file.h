// The file that the output window shows: read into the window's text box, copied by Save, deleted when the
// window closes if it is temporary.
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
    /// Sets the start values of the window's prompts in `CMDialog`.
    ShownFile(Platform& desktop, CommonDialog& CMDialog);

    /// Sets the file. The other operations work on this file.
    void OutputFileName(const std::string& strOutputFileName, bool temporary);

    /// Reads the file into `text` and shows the normal pointer. Reports a failure itself; `text` keeps the
    /// lines read so far.
    void ReadInto(TextBox& text);
    /// Asks for a name and copies the file there. Reports a failure itself.
    void SaveAs();
    /// Copies the file to `strFileName`, replacing it. Reports a failure itself.
    void SaveToText(const std::string& strFileName);
    /// Deletes the file if it is temporary. A failure of the deletion is ignored.
    void DeleteIfTemporary();

    /// Limits of a file that the window shows. A file that exceeds one is a TooLarge failure; `text` keeps
    /// the lines read so far. The largest list of the program has 32,767 subjects: with names of 1,000
    /// characters that is 33 MB in fewer than 100,000 lines. A text box needs one second for that many lines
    /// and minutes for ten times as many; lines much longer than LongestLine make scrolling slow.
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
