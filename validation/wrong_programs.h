// Checks of the checks: what the statistics say of programs that are wrong on purpose.
#pragma once

#include "validation/record.h"

namespace orvane::validation {

/// Judges each wrong program by the statistics that must notice its fault. A check passes only if all of them
/// fail that program.
void CheckStatisticsChecks(Record& record, const Scale& scale);

} // namespace orvane::validation
