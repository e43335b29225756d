// The libraries that the delivered program loads.
#pragma once

#include "validation/record.h"

#include <filesystem>
#include <vector>

namespace orvane::validation {

/// Of each library its name, its version and the file that the loader takes. The version is that of the
/// system's package; a library in the program's own folder is told by its file name. Sorted by name. Empty
/// when the loader cannot be asked.
std::vector<Row> LoadedLibraries(const std::filesystem::path& program);

} // namespace orvane::validation
