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
    /// Creates the folder, or empties that of an earlier validation, its record first. Throws
    /// std::runtime_error if the folder contains anything else, before removing anything, or if it cannot be
    /// emptied or written to.
    explicit OutputFolder(const std::filesystem::path& path);

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

    /// Writes the record: `files` maps names to contents. All files are first written under temporary names,
    /// and renamed when every byte is on the disk. Throws std::runtime_error on failure, and then none of the
    /// files exists.
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
