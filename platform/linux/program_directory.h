// The folder of the program file.
#pragma once

#include <string>

namespace orvane {

/// The folder of the program file, as bytes of the file system, without a final separator; "/." for the root
/// folder. Never empty. Throws a Failure if the system does not tell where the program file lies.
/// Requires: the program has not changed its current folder.
[[nodiscard]] std::string ProgramDirectory();

} // namespace orvane
