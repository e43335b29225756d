// The folder that a validation writes into.
#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace orvane::validation {

/// The file that the folder holds while a validation runs.
inline constexpr const char* UnfinishedMark = "unfinished.txt";

/// While a validation runs, the folder holds the mark above and no record.
class OutputFolder {
  public:
    /// Makes the folder, or empties the one of an earlier validation, its record first. Throws
    /// std::runtime_error with nothing removed when the folder holds anything else, and when it cannot be
    /// emptied or written to.
    explicit OutputFolder(const std::filesystem::path& path);

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

    /// The record appears: all files, by name and content, are written under other names first and renamed
    /// when every byte is on the disk. Throws std::runtime_error when that fails; none of them is then there.
    void Finish(const std::map<std::string, std::string>& files) const;

  private:
    std::filesystem::path path_;
};

/// Writes a file and waits until it is on the disk. Throws std::runtime_error, with the file removed, when it
/// cannot be written in full.
void WriteWhole(const std::filesystem::path& path, const std::string& content);

/// The content of a file. Throws std::runtime_error when it cannot be read.
std::string ReadWhole(const std::filesystem::path& path);

} // namespace orvane::validation
