// The libraries that the delivered program loads.
#pragma once

#include "validation/record.h"

#include <filesystem>
#include <vector>

namespace orvane::validation {

/// For each library its name, its package with the version, and the file that the loader uses. A library that
/// belongs to no package has its file name instead of a version. Sorted by name. Empty if the loader cannot
/// be run.
std::vector<Row> LoadedLibraries(const std::filesystem::path& program);

} // namespace orvane::validation
