#include "validation/output_folder.h"

#include <cerrno>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace orvane::validation {
namespace {

namespace fs = std::filesystem;

constexpr const char* UnfinishedText =
    "A validation is running in this folder, or was stopped before it had finished. It has no record.\n";
constexpr const char* Records[] = {"validation-record.json", "validation-record.htm",
                                   "validation-record.pdf"};

[[noreturn]] void ThrowFor(const fs::path& path, const std::string& what) {
    throw std::runtime_error(path.string() + " " + what + ": " + std::generic_category().message(errno));
}

bool HoldsValidation(const fs::path& folder) {
    if (fs::exists(folder / UnfinishedMark))
        return true;
    for (const char* record : Records)
        if (fs::exists(folder / record))
            return true;
    return false;
}

void WriteAll(int file, const std::string& content, const fs::path& path) {
    std::size_t done = 0;
    while (done < content.size()) {
        const ssize_t count = ::write(file, content.data() + done, content.size() - done);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            ThrowFor(path, "cannot be written");
        done += static_cast<std::size_t>(count);
    }
    if (::fsync(file) != 0)
        ThrowFor(path, "cannot be written");
}

void RemoveQuietly(const fs::path& path) {
    std::error_code ignored;
    fs::remove(path, ignored);
}

} // namespace

OutputFolder::OutputFolder(const fs::path& path) : path_(fs::absolute(path)) {
    fs::create_directories(path_);
    if (!fs::is_empty(path_) && !HoldsValidation(path_))
        throw std::runtime_error(
            path_.string() +
            " contains files that do not belong to a validation; please name another folder.");
    for (const char* record : Records)
        fs::remove(path_ / record);
    // The mark is removed last, so that a folder that was only partly emptied can be used again.
    WriteWhole(path_ / UnfinishedMark, UnfinishedText);
    std::vector<fs::path> old;
    for (const fs::directory_entry& entry : fs::directory_iterator(path_))
        if (entry.path().filename() != UnfinishedMark)
            old.push_back(entry.path());
    for (const fs::path& entry : old)
        fs::remove_all(entry);
}

void OutputFolder::Finish(const std::map<std::string, std::string>& files) const {
    std::vector<fs::path> made;
    try {
        for (const auto& [name, content] : files) {
            made.push_back(path_ / (name + ".part"));
            WriteWhole(made.back(), content);
        }
        for (const auto& [name, content] : files) {
            fs::rename(path_ / (name + ".part"), path_ / name);
            made.push_back(path_ / name);
        }
        fs::remove(path_ / UnfinishedMark);
    } catch (...) {
        for (const fs::path& path : made)
            RemoveQuietly(path);
        throw;
    }
}

void WriteWhole(const fs::path& path, const std::string& content) {
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (file < 0)
        ThrowFor(path, "cannot be made");
    try {
        WriteAll(file, content, path);
    } catch (...) {
        ::close(file);
        RemoveQuietly(path);
        throw;
    }
    if (::close(file) != 0) {
        RemoveQuietly(path);
        ThrowFor(path, "cannot be written");
    }
}

std::string ReadWhole(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error(path.string() + " cannot be opened");
    std::string content{std::istreambuf_iterator<char>(file), {}};
    if (file.bad())
        throw std::runtime_error(path.string() + " cannot be read");
    return content;
}

} // namespace orvane::validation
