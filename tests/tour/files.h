// Files byte by byte.
#pragma once

#include <filesystem>
#include <string>

namespace orvane::tour {

/// The bytes of a file; empty if it cannot be read.
std::string ReadFile(const std::filesystem::path& path);
/// Writes a file, and its folder if need be. Throws Fault.
void WriteFile(const std::filesystem::path& path, const std::string& bytes);

} // namespace orvane::tour
