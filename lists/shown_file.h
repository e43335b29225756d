// The file that the output window shows: read into the window, copied by Save, deleted when the
// window closes if it is temporary.
#pragma once

#include "platform/common_dialog.h"
#include "platform/platform.h"

#include <cstddef>
#include <string>

namespace orvane {

class ShownFile {
  public:
    /// Sets the start values of the window's prompts in `CMDialog`.
    ShownFile(Platform& desktop, CommonDialog& CMDialog);

    /// Sets the file. The other operations work on this file.
    void OutputFileName(const std::string& strOutputFileName, bool temporary);

    /// The lines of the file, each with LF behind it. Shows the normal pointer. Reports a failure itself;
    /// then the pointer stays and the result is the lines read so far.
    [[nodiscard]] std::string Read();
    /// Asks for a name and copies the file there. Reports a failure itself.
    void SaveAs();
    /// Copies the file to `strFileName`, replacing it. Reports a failure itself.
    void SaveToText(const std::string& strFileName);
    /// Deletes the file if it is temporary. A failure of the deletion is ignored.
    void DeleteIfTemporary();

    /// Limits of a file that the window shows. A file that exceeds one is a TooLarge failure. The largest
    /// list of the program has 32,767 subjects: with names of 1,000 characters that is 33 MB in fewer than
    /// 100,000 lines. A text box needs one second for that many lines and minutes for ten times as many;
    /// lines much longer than LongestLine make scrolling slow.
    static constexpr std::size_t LargestFile = std::size_t{1} << 26U; ///< bytes of the file
    static constexpr std::size_t MostLines = std::size_t{1} << 17U;
    static constexpr std::size_t LongestLine = std::size_t{1} << 14U; ///< bytes of the file

  private:
    Platform& desktop_;
    CommonDialog& CMDialog_;
    std::string OutputFileName_;
    bool temporary_ = false;
};

} // namespace orvane
