// Files, with the system calls of Linux.
#pragma once

#include "platform/files.h"

#include <memory>
#include <string>

namespace orvane {

class LinuxFiles : public Files {
  public:
    /// Ignores SIGXFSZ for the whole program: a write beyond the user's limit of the file size is then a
    /// failure like any other. Without this, the signal would end the program.
    LinuxFiles();

    std::unique_ptr<WritableFile> OpenForOutput(const std::string& path) override;
    std::unique_ptr<WritableFile> CreatePrivate(const std::string& path) override;
    std::unique_ptr<ReadableFile> OpenForInput(const std::string& path) override;
    void Copy(const std::string& from, const std::string& to) override;
    void Delete(const std::string& path) override;
    bool Exists(const std::string& path) override;
};

} // namespace orvane
