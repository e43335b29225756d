// Files of the desktop: bytes in, bytes out. Regular files only; a folder, a device or a pipe is a failure at
// once. Every failure names the path and says whether opening, reading, writing or closing went wrong; its
// number is the operating system's own, or NotARegularFile.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace orvane {

class WritableFile {
  public:
    /// Closes the file if Close was not called; what was written stays, and a failure of that close is
    /// silent.
    virtual ~WritableFile() = default;
    /// Appends all of `bytes` or throws; after a failure the file holds as much as could be written.
    virtual void Write(std::string_view bytes) = 0;
    /// Closes the file, or throws; closed either way.
    virtual void Close() = 0;
};

class ReadableFile {
  public:
    virtual ~ReadableFile() = default;
    /// Reads up to buffer.size() bytes; the number read, 0 at the end of the file.
    virtual std::size_t Read(std::span<char> buffer) = 0;
};

class Files {
  public:
    virtual ~Files() = default;
    /// Creates the file or empties an existing one. After a failure an existing file is as it was.
    virtual std::unique_ptr<WritableFile> OpenForOutput(const std::string& path) = 0;
    /// Creates a file that did not exist, readable and writable by its owner alone; an existing name, a link
    /// too, is a failure and is not followed.
    virtual std::unique_ptr<WritableFile> CreatePrivate(const std::string& path) = 0;
    virtual std::unique_ptr<ReadableFile> OpenForInput(const std::string& path) = 0;
    /// Copies `from` to `to`, replacing a file of that name; a file copied onto itself stays as it is.
    virtual void Copy(const std::string& from, const std::string& to) = 0;
    virtual void Delete(const std::string& path) = 0;
    /// Whether anything has this name, a link that leads nowhere included.
    virtual bool Exists(const std::string& path) = 0;
};

} // namespace orvane
