// Reading and writing the bytes of files. Regular files only: a folder, a device or a pipe is a failure at
// once. Every failure names the path and says whether opening, reading, writing or closing failed; its
// number is the number of the operating system, or NotARegularFile.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace orvane {

class WritableFile {
  public:
    /// Closes the file if Close was not called; what was written remains. A failure of this close is
    /// ignored.
    virtual ~WritableFile() = default;
    /// Appends `bytes`. Throws if not all could be written; the file then contains the part that was.
    virtual void Write(std::string_view bytes) = 0;
    /// Closes the file. Throws if the system reports a failure; the file is closed even then.
    virtual void Close() = 0;
};

class ReadableFile {
  public:
    virtual ~ReadableFile() = default;
    /// Reads up to buffer.size() bytes. Returns the number of bytes read; 0 at the end of the file.
    virtual std::size_t Read(std::span<char> buffer) = 0;
};

class Files {
  public:
    virtual ~Files() = default;
    /// Creates the file or empties an existing one. After a failure an existing file is unchanged.
    virtual std::unique_ptr<WritableFile> OpenForOutput(const std::string& path) = 0;
    /// Creates a new file that only its owner can read and write. If the name exists already, even as a
    /// symbolic link, this is a failure; the link is not followed.
    virtual std::unique_ptr<WritableFile> CreatePrivate(const std::string& path) = 0;
    virtual std::unique_ptr<ReadableFile> OpenForInput(const std::string& path) = 0;
    /// Copies `from` to `to`, replacing an existing file. If both are the same file, it stays unchanged.
    virtual void Copy(const std::string& from, const std::string& to) = 0;
    virtual void Delete(const std::string& path) = 0;
    /// Whether this name exists, including a symbolic link without a target.
    virtual bool Exists(const std::string& path) = 0;
};

} // namespace orvane
