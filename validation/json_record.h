// The record in a form for other programs.
#pragma once

#include "validation/page.h"
#include "validation/record.h"

#include <string>

namespace orvane::validation {

/// One JSON object; "conclusion" is "passed" or "failed", "checks" lists each check with its result.
std::string RecordJson(const Record& record, const Run& run);

} // namespace orvane::validation
