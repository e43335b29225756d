// Text files: UTF-8 in the program, bytes of the 8-bit code page in the file, CR LF at every line end.
#pragma once

#include "platform/code_page.h"
#include "platform/files.h"

#include <cstddef>
#include <exception>
#include <memory>
#include <string>
#include <string_view>

namespace orvane {

/// Writes through a buffer. Close must be called at the end: only Close reports that the last bytes could
/// not be written, for example because the disk is full. The destructor of a writer that was not closed
/// writes the buffered bytes as far as possible and closes the file without a report. Bytes whose writing
/// failed are not written a second time.
class TextFileWriter {
  public:
    TextFileWriter(std::unique_ptr<WritableFile> file, const CodePage& page, Unmappable unmappable);
    TextFileWriter(const TextFileWriter&) = delete;
    TextFileWriter& operator=(const TextFileWriter&) = delete;
    ~TextFileWriter();

    /// Throws what the code page and the file throw.
    void Write(std::string_view text);
    /// Writes `text` and a line end.
    void WriteLine(std::string_view text);
    /// Writes the rest of the buffer and closes the file. Throws if either fails.
    /// Requires: called at most once, and nothing is written afterwards.
    void Close();

  private:
    void Flush();

    std::unique_ptr<WritableFile> file_;
    const CodePage& page_;
    Unmappable unmappable_;
    std::string buffer_; ///< bytes of the code page
};

/// How the file is divided into lines, and the largest sizes that are read. Sizes are bytes of the file.
struct LineRules {
    bool LineFeedEndsLine;   ///< LF alone ends a line; if false, it is a character of the line
    std::size_t LongestLine; ///< without the line end
    std::size_t LargestFile;
};

/// Reads lines that end in CR or CR LF, and in LF if the rules say so; the last line needs no line end.
class TextFileReader {
  public:
    /// Reads the whole file. A failure to do so, or a TooLarge failure if the file exceeds LargestFile, is
    /// thrown behind the last complete line that was read. `path` is used in messages only.
    TextFileReader(ReadableFile& file, const CodePage& page, std::string path, LineRules rules);

    /// Whether all characters have been read. Throws the failure of the reading.
    [[nodiscard]] bool AtEnd() const;
    /// The next line without its line end. Throws an EndOfFile failure when there is no further character; if
    /// an earlier line contains a lone LF, its text says that lines have to end in CR LF. Throws a TooLarge
    /// failure when the line exceeds LongestLine, and the failure of the reading.
    std::string ReadLine();

  private:
    void ReadAll(ReadableFile& file);

    const CodePage& page_;
    std::string path_;
    LineRules rules_;
    std::string bytes_; ///< of the file
    std::size_t next_ = 0;
    std::exception_ptr failure_;  ///< the file could not be read to its end
    bool lineFeedInLine_ = false; ///< an earlier line contains a lone LF
};

} // namespace orvane
