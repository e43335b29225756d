// Associated programs. Finding one and starting it are separate operations, each with its own result.
#pragma once

#include <cstdint>
#include <string>

namespace orvane {

class Shell32 {
  public:
    virtual ~Shell32() = default;

    /// Finds the program associated with the type of the file `path`. A result above 32 means found;
    /// `program` is then the text that ShellExecuteA expects. A file that does not exist has no associated
    /// program.
    virtual std::int32_t FindExecutableA(const std::string& path, std::string& program) = 0;

    /// Starts `program` with the single argument `path` and does not wait for it. No shell is used, so
    /// `path` needs no quotes. `owner` is the handle of the calling window, 0 for none. A result above 32
    /// means started.
    /// Requires: `program` comes from FindExecutableA.
    virtual std::int32_t ShellExecuteA(std::intptr_t owner, const std::string& program,
                                       const std::string& path) = 0;

    /// Starts the program file `path` in a normal window and returns at once. Throws a Failure if it cannot
    /// be started.
    virtual void StartProgram(const std::string& path) = 0;
};

} // namespace orvane
