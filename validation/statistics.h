// The distributions of what the program draws.
#pragma once

#include "validation/record.h"

namespace orvane::validation {

/// Draws with the delivered program's routines, the system's randomness and clock, and judges each
/// distribution. A right program fails any of it with a chance below AllFalseAlarms.
void CheckStatistics(Record& record, const Scale& scale);

} // namespace orvane::validation
