// The overall result of all checks.
#pragma once

#include "validation/record.h"

#include <string>
#include <vector>

namespace orvane::validation {

/// "passed", "failed" or "not run", as printed in the record.
std::string Name(Result result);

/// Whether every check passed; false if there are no checks.
bool AllPassed(const Record& record);

int Count(const Record& record, Result result);

/// The checks of one requirement, in the order in which they ran.
std::vector<const Check*> ChecksOf(const Record& record, const std::string& requirement);

/// The identifiers of requirements that no check covers.
std::vector<std::string> Unchecked(const Record& record);

/// The conclusion as lines for a terminal: first the overall result, then one line for each check that did
/// not pass.
std::vector<std::string> Conclusion(const Record& record);

} // namespace orvane::validation
