// The command line of the validation.
#pragma once

#include "validation/identity.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orvane::validation {

struct Arguments {
    std::filesystem::path App;    ///< folder of the delivered program
    std::filesystem::path Output; ///< folder of the record
    bool Quick = false;
    SourceState Sources;
};

inline constexpr const char* Usage =
    "validation APP_FOLDER OUTPUT_FOLDER [--quick] [--commit NAME] [--tree STATE] [--built PROGRAM]";

/// Throws std::runtime_error for arguments that Usage does not allow.
Arguments ReadArguments(const std::vector<std::string>& words);

} // namespace orvane::validation
