// What was checked, on which machine, when and by whom.
#pragma once

#include "validation/record.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orvane::validation {

/// The sources of the validation, as given by its caller.
struct SourceState {
    std::string Commit = "unknown";
    std::string Tree = "unknown"; ///< "clean", or what was changed
    std::filesystem::path Built;  ///< the program that was built from these sources; may be empty
};

struct Identity {
    std::string Program;
    std::string Version;
    std::string Commit;
    std::string Tree;
    std::string Started;    ///< date, time of day and time zone
    std::vector<Row> Facts; ///< name and value
    std::vector<Row> Files; ///< of each delivered file the name, the size in bytes and the SHA-256
    std::vector<Row>
        Libraries; ///< of each library that the program loads the name, the version and the place
};

/// Throws std::runtime_error, with words for the user, when the folder holds no program.
void RequireProgram(const std::filesystem::path& appFolder);

/// Throws std::runtime_error when the folder holds no program or a file of it cannot be read.
Identity Identify(const std::filesystem::path& appFolder, const SourceState& sources);

/// The files below a folder, sorted: of each its name, its size in bytes and its SHA-256.
std::vector<Row> FilesBelow(const std::filesystem::path& folder);

} // namespace orvane::validation
