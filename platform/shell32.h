// Associated programs: found and started are two answers.
#pragma once

#include <cstdint>
#include <string>

namespace orvane {

class Shell32 {
  public:
    virtual ~Shell32() = default;

    /// Looks for the program associated with the type of the file `path`. A result above 32 means found, and
    /// `program` then holds what ShellExecuteA needs to start it. A file that does not exist has none.
    virtual std::int32_t FindExecutableA(const std::string& path, std::string& program) = 0;

    /// Starts `program` with `path` as its one parameter, unquoted and seen by no shell, without waiting for
    /// it. `owner` is the handle of the window that asks, 0 for none. A result above 32 means started.
    virtual std::int32_t ShellExecuteA(std::intptr_t owner, const std::string& program,
                                       const std::string& path) = 0;

    /// Starts the program file `path` in a normal window and returns at once; throws a Failure if it cannot.
    virtual void StartProgram(const std::string& path) = 0;
};

} // namespace orvane
