// The folder of the program file.
#pragma once

#include <string>

namespace orvane {

/// The folder of the program file, as bytes of the file system, without a final separator; "/." for the root
/// folder. "." if the system does not tell the path. Never empty.
[[nodiscard]] std::string ProgramDirectory();

} // namespace orvane
