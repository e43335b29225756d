// Checks of the checks: the statistics applied to programs with deliberate faults.
#pragma once

#include "validation/record.h"

namespace orvane::validation {

/// Applies to each faulty program the statistics that must find its fault. A check passes only if all of them
/// find it.
void CheckStatisticsChecks(Record& record, const Scale& scale);

} // namespace orvane::validation
