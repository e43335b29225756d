// Runs other programs of the machine.
#pragma once

#include <string>
#include <vector>

namespace orvane::validation {

struct ProgramAnswer {
    bool Started = false;
    int ExitCode = -1; ///< 0 to 255; -1 if it did not start or was ended by a signal
    std::string Output;
    std::string Errors;
};

/// Starts a program from the search path without a shell, in the C locale, and waits until it ends. After
/// `seconds` it is killed.
ProgramAnswer Ask(const std::vector<std::string>& command, int seconds = 60);

} // namespace orvane::validation
