// Whether the system would start a program, judged before it is asked to.
#pragma once

#include <string>

namespace orvane {

/// Whether `program`, a name to be looked for in PATH or a path, is an executable file, and, if it is a
/// script, whether its interpreter is one. GIO starts a program through a helper, so a program that the
/// system refuses would seem to have started.
bool CanStart(const std::string& program);

} // namespace orvane
