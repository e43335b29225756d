// Files byte by byte, and settings files as a person would write them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace orvane::tour {

/// The bytes of a file; empty if it cannot be read.
std::string ReadFile(const std::filesystem::path& path);
/// Writes a file, and its folder if need be. Throws Fault.
void WriteFile(const std::filesystem::path& path, const std::string& bytes);

/// A set-up, at first the one of a first start.
struct Settings {
    std::vector<std::string> Groups = {"Group 1", "Group 2"};
    std::string SampleSize{};
    int CodeAlphaNum = 1;
    int CodeSeqRandom = 0;
    int CodeLength = 3;
    int BlockOption = 0;
    std::string EqBlockSize{};
    std::string UnEqBlockSize{};
    int OutputOption = 0;
};

/// The bytes of its settings file.
std::string BytesOf(const Settings& settings);

} // namespace orvane::tour
