#include "platform/linux/linux_files.h"

#include "platform/failure.h"

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <span>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace orvane {

namespace {

constexpr const char* Source = "File system";
constexpr mode_t AnyoneByMask = 0666;
constexpr mode_t OwnerAlone = 0600;

[[noreturn]] void Fail(const std::string& path, std::string_view what, int error) {
    throw Failure("The file " + path + " could not be " + std::string(what) + ": " +
                      std::generic_category().message(error),
                  error, Source);
}

void RequireRegular(const std::string& path, std::string_view what, const struct stat& status) {
    if (!S_ISREG(status.st_mode))
        throw Failure("The file " + path + " could not be " + std::string(what) + ": it is no regular file",
                      failure_number::NotARegularFile, Source);
}

/// The path for a system call. A path that contains a zero byte is a failure: the system call would use only
/// the part before it.
const char* SystemPath(const std::string& path) {
    if (path.find('\0') != std::string::npos)
        Fail(path, "opened", ENOENT);
    return path.c_str();
}

/// Owns a file descriptor.
class FileNumber {
  public:
    explicit FileNumber(int number) : number_(number) {}
    FileNumber(const FileNumber&) = delete;
    FileNumber& operator=(const FileNumber&) = delete;
    FileNumber(FileNumber&&) = delete;
    FileNumber& operator=(FileNumber&&) = delete;
    ~FileNumber() {
        if (number_ != None)
            ::close(number_);
    }
    [[nodiscard]] int Get() const { return number_; }
    int Release() { return std::exchange(number_, None); }

    static constexpr int None = -1;

  private:
    int number_;
};

/// Opens without waiting, whatever kind of file `path` is, and without changing the content.
int OpenWithoutWaiting(const std::string& path, int flags, mode_t mode) {
    const char* const name = SystemPath(path);
    const bool mustBeNew = (flags & O_EXCL) != 0;
    struct stat status {};
    // Opening a device can have side effects, so only regular files are opened.
    if (!mustBeNew && ::stat(name, &status) == 0)
        RequireRegular(path, "opened", status);
    const auto number =
        static_cast<int>(TEMP_FAILURE_RETRY(::open(name, flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, mode)));
    if (number == FileNumber::None)
        Fail(path, mustBeNew ? "created" : "opened", errno);
    return number;
}

/// An open regular file.
class RegularFile {
  public:
    RegularFile(std::string path, int flags, mode_t mode)
        : path_(std::move(path)), number_(OpenWithoutWaiting(path_, flags, mode)) {
        struct stat status {};
        if (::fstat(number_.Get(), &status) == -1)
            Fail(path_, "opened", errno);
        RequireRegular(path_, "opened", status);
    }

    void Empty() {
        if (TEMP_FAILURE_RETRY(::ftruncate(number_.Get(), 0)) == -1)
            Fail(path_, "opened for writing", errno);
    }

    std::size_t Read(std::span<char> buffer) {
        const ssize_t count = TEMP_FAILURE_RETRY(::read(number_.Get(), buffer.data(), buffer.size()));
        if (count == -1)
            Fail(path_, "read", errno);
        return static_cast<std::size_t>(count);
    }

    void Write(std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t count = TEMP_FAILURE_RETRY(::write(number_.Get(), bytes.data(), bytes.size()));
            if (count <= 0)
                Fail(path_, "written", count == 0 ? EIO : errno);
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
    }

    void Close() {
        if (number_.Get() != FileNumber::None && ::close(number_.Release()) == -1)
            Fail(path_, "closed", errno);
    }

    [[nodiscard]] bool IsAt(const std::string& path) const {
        struct stat own {};
        struct stat other {};
        return ::fstat(number_.Get(), &own) == 0 && ::stat(SystemPath(path), &other) == 0 &&
               own.st_dev == other.st_dev && own.st_ino == other.st_ino;
    }

  private:
    std::string path_;
    FileNumber number_;
};

class LinuxWritableFile : public WritableFile {
  public:
    LinuxWritableFile(const std::string& path, int flags, mode_t mode)
        : file_(path, O_WRONLY | O_CREAT | flags, mode) {
        file_.Empty();
    }
    void Write(std::string_view bytes) override { file_.Write(bytes); }
    void Close() override { file_.Close(); }

  private:
    RegularFile file_;
};

class LinuxReadableFile : public ReadableFile {
  public:
    explicit LinuxReadableFile(const std::string& path) : file_(path, O_RDONLY, 0) {}
    std::size_t Read(std::span<char> buffer) override { return file_.Read(buffer); }

  private:
    RegularFile file_;
};

} // namespace

LinuxFiles::LinuxFiles() {
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
}

std::unique_ptr<WritableFile> LinuxFiles::OpenForOutput(const std::string& path) {
    return std::make_unique<LinuxWritableFile>(path, 0, AnyoneByMask);
}

std::unique_ptr<WritableFile> LinuxFiles::CreatePrivate(const std::string& path) {
    return std::make_unique<LinuxWritableFile>(path, O_EXCL | O_NOFOLLOW, OwnerAlone);
}

std::unique_ptr<ReadableFile> LinuxFiles::OpenForInput(const std::string& path) {
    return std::make_unique<LinuxReadableFile>(path);
}

void LinuxFiles::Copy(const std::string& from, const std::string& to) {
    RegularFile source(from, O_RDONLY, 0);
    if (source.IsAt(to))
        return;
    LinuxWritableFile target(to, 0, AnyoneByMask);
    std::vector<char> buffer(std::size_t{1} << 16U);
    while (const std::size_t count = source.Read(buffer))
        target.Write({buffer.data(), count});
    target.Close();
}

void LinuxFiles::Delete(const std::string& path) {
    struct stat status {};
    if (::lstat(SystemPath(path), &status) == -1)
        Fail(path, "deleted", errno);
    // A symbolic link is deleted itself, whatever its target is.
    if (!S_ISLNK(status.st_mode))
        RequireRegular(path, "deleted", status);
    if (::unlink(path.c_str()) == -1)
        Fail(path, "deleted", errno);
}

bool LinuxFiles::Exists(const std::string& path) {
    struct stat status {};
    return path.find('\0') == std::string::npos && ::lstat(path.c_str(), &status) == 0;
}

} // namespace orvane
