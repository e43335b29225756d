// What all checks together say.
#pragma once

#include "validation/record.h"

#include <string>
#include <vector>

namespace orvane::validation {

/// "passed", "failed" or "not run", as it stands in the record.
std::string Name(Result result);

/// Whether every check passed; false without any check.
bool AllPassed(const Record& record);

int Count(const Record& record, Result result);

/// The checks of one requirement, in the order in which they ran.
std::vector<const Check*> ChecksOf(const Record& record, const std::string& requirement);

/// The identifiers of requirements that no check covers.
std::vector<std::string> Unchecked(const Record& record);

/// The conclusion as lines for a terminal: one of the result, then one for each check that did not pass.
std::vector<std::string> Conclusion(const Record& record);

} // namespace orvane::validation
