// Tells before the start whether the system can start a program.
#pragma once

#include <string>

namespace orvane {

/// Whether `program`, a path or a name to be searched in PATH, is an executable file and, if it is a script,
/// whether its interpreter is one too. Needed because GIO starts programs through a helper process, and so
/// reports success for a program that the system refuses to start.
bool CanStart(const std::string& program);

} // namespace orvane
