// Where the program file stands.
#pragma once

#include <string>

namespace orvane {

/// The folder of the program file, in the bytes of the file system, without a separator at its end; "/." for
/// the root. Never empty: "." where the system does not tell.
[[nodiscard]] std::string ProgramDirectory();

} // namespace orvane
