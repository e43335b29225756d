// Associated programs as the desktop keeps them, found and started with GIO. No shell sees a path.
#pragma once

#include "platform/shell32.h"

#include <cstdint>
#include <string>

namespace orvane {

class GioShell : public Shell32 {
  public:
    /// `program` becomes the path of the program's desktop entry.
    std::int32_t FindExecutableA(const std::string& path, std::string& program) override;
    /// Requires: `program` is the path of a desktop entry. An entry whose program is missing or cannot be run
    /// is not started.
    std::int32_t ShellExecuteA(std::intptr_t owner, const std::string& program,
                               const std::string& path) override;
    void StartProgram(const std::string& path) override;
};

} // namespace orvane
