// A folder for files that must not outlive the validation.
#pragma once

#include <filesystem>

namespace orvane::validation {

/// A new folder among the machine's temporary files, readable by its owner alone, removed with the object.
class WorkFolder {
  public:
    /// Throws std::runtime_error when it cannot be made.
    WorkFolder();
    ~WorkFolder();
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

    /// From now on SIGINT, SIGTERM and SIGHUP remove the folder before they end the program. To be called
    /// once, before other threads start.
    void RemoveOnSignals() const;

  private:
    std::filesystem::path path_;
};

} // namespace orvane::validation
