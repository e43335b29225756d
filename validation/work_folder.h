// A folder for files that are deleted at the end of the validation.
#pragma once

#include <filesystem>

namespace orvane::validation {

/// A new temporary folder that only its owner can read. The destructor removes it.
class WorkFolder {
  public:
    /// Throws std::runtime_error when it cannot be made.
    WorkFolder();
    ~WorkFolder();
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

    /// From now on SIGINT, SIGTERM and SIGHUP remove the folder before they end the program.
    /// Requires: called once, before other threads start.
    void RemoveOnSignals() const;

  private:
    std::filesystem::path path_;
};

} // namespace orvane::validation
