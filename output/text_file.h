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
    TextFileWriter(std::unique_ptr<OutputFile> file, const CodePage& page, Unmappable unmappable);
    TextFileWriter(const TextFileWriter&) = delete;
    TextFileWriter& operator=(const TextFileWriter&) = delete;
    ~TextFileWriter();

    void Write(std::string_view text);
    /// `text` and a line end.
    void WriteLine(std::string_view text);
    void Close();

  private:
    void Flush();

    std::unique_ptr<OutputFile> file_;
    const CodePage& page_;
    Unmappable unmappable_;
    std::string buffer_; ///< bytes of the code page
};

/// Reads lines that end in CR or CR LF; a lone LF ends no line, and the last line needs no end.
class TextFileReader {
  public:
    TextFileReader(std::unique_ptr<InputFile> file, const CodePage& page, std::string path);

    /// True when no character is left.
    bool AtEnd();
    /// The next line without its end. Throws an EndOfFile failure when no character is left, and a TooLarge
    /// failure for a line of more than LongestLine bytes.
    std::string ReadLine();

    static constexpr std::size_t LongestLine = std::size_t{1} << 16U;

  private:
    void SkipLineFeed();
    /// Adds a chunk of the file to what is left in the buffer, which moves to its start. False at the end.
    bool Fill();

    std::unique_ptr<InputFile> file_;
    const CodePage& page_;
    std::string path_;
    std::string buffer_;
    std::size_t next_ = 0;
    bool behindReturn_ = false; ///< an LF that comes next belongs to the line already read
};

} // namespace orvane
