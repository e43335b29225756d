// Programs of the machine that the validation asks.
#pragma once

#include <string>
#include <vector>

namespace orvane::validation {

struct ProgramAnswer {
    bool Started = false;
    int ExitCode = -1; ///< 0 to 255; -1 when it did not start or was ended by a signal
    std::string Output;
    std::string Errors;
};

/// Starts a program of the search path without a shell and waits for its end, at most `seconds`, after which
/// it is ended. Its messages come in the C locale.
ProgramAnswer Ask(const std::vector<std::string>& command, int seconds = 60);

} // namespace orvane::validation
