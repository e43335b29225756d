// Associated programs, found and started with GIO. No shell is used.
#pragma once

#include "platform/shell32.h"

#include <cstdint>
#include <string>

namespace orvane {

class GioShell : public Shell32 {
  public:
    /// Sets `program` to the path of the program's desktop entry.
    std::int32_t FindExecutableA(const std::string& path, std::string& program) override;
    /// Does not start an entry whose program is missing or not executable.
    /// Requires: `program` is the path of a desktop entry.
    std::int32_t ShellExecuteA(std::intptr_t owner, const std::string& program,
                               const std::string& path) override;
    void StartProgram(const std::string& path) override;
};

} // namespace orvane
