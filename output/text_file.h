// Lines of text in files: UTF-8 inside, the 8-bit code page on the disk, CR LF at every line end.
#pragma once

#include "platform/code_page.h"
#include "platform/files.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace orvane {

/// Writes through a buffer. Close must be called when all is written: it tells of a full disk. An object that
/// is destroyed without it writes what the buffer holds, as far as that goes, and closes silently; bytes
/// whose writing has failed are not written a second time.
class TextFileWriter {
  public:
    TextFileWriter(std::unique_ptr<WritableFile> file, const CodePage& page, Unmappable unmappable);
    TextFileWriter(const TextFileWriter&) = delete;
    TextFileWriter& operator=(const TextFileWriter&) = delete;
    ~TextFileWriter();

    void Write(std::string_view text);
    /// `text` and a line end.
    void WriteLine(std::string_view text);
    void Close();

  private:
    void Flush();

    std::unique_ptr<WritableFile> file_;
    const CodePage& page_;
    Unmappable unmappable_;
    std::string buffer_; ///< bytes of the code page
};

/// What a line of a file is, and how much is read. Sizes are bytes of the file.
struct LineRules {
    bool LineFeedEndsLine;   ///< a lone LF ends a line too; otherwise it is a character of its line
    std::size_t LongestLine; ///< without the line end
    std::size_t LargestFile;
};

/// Reads lines that end in CR or CR LF; the last line needs no end.
class TextFileReader {
  public:
    /// `path` is for messages.
    TextFileReader(std::unique_ptr<ReadableFile> file, const CodePage& page, std::string path,
                   LineRules rules);

    /// True when no character is left. Throws a TooLarge failure when a file passes LargestFile.
    bool AtEnd();
    /// The next line without its end. Throws an EndOfFile failure when no character is left; its description
    /// names CR LF if a line before held a lone LF. Throws a TooLarge failure for a line that passes
    /// LongestLine and for a file that passes LargestFile.
    std::string ReadLine();

  private:
    void SkipLineFeed();
    /// Where the line that starts at next_ ends, searched from `from`; npos when its end is not in the
    /// buffer.
    [[nodiscard]] std::size_t LineEndFrom(std::size_t from) const;
    /// Adds a chunk of the file to what is left in the buffer, which moves to its start. False at the end.
    bool Fill();

    std::unique_ptr<ReadableFile> file_;
    const CodePage& page_;
    std::string path_;
    LineRules rules_;
    std::string buffer_;
    std::size_t next_ = 0;
    std::size_t read_ = 0;        ///< bytes of the file so far
    bool behindReturn_ = false;   ///< an LF that comes next belongs to the line already read
    bool lineFeedInLine_ = false; ///< a line that was read has a lone LF in it
};

} // namespace orvane
