// Files of the desktop by the calls of the system.
#pragma once

#include "platform/files.h"

#include <memory>
#include <string>

namespace orvane {

class LinuxFiles : public Files {
  public:
    /// From here on a write that passes the user's limit of a file's size is a failure like any other;
    /// without that the system would end the program.
    LinuxFiles();

    std::unique_ptr<WritableFile> OpenForOutput(const std::string& path) override;
    std::unique_ptr<WritableFile> CreatePrivate(const std::string& path) override;
    std::unique_ptr<ReadableFile> OpenForInput(const std::string& path) override;
    void Copy(const std::string& from, const std::string& to) override;
    void Delete(const std::string& path) override;
    bool Exists(const std::string& path) override;
};

} // namespace orvane
