// Checks of the distributions of the program's draws.
#pragma once

#include "validation/record.h"

namespace orvane::validation {

/// Draws with the delivered program's routines and the system's entropy and clock, and checks each
/// distribution. The probability that a correct program fails any check is below AllFalseAlarms.
void CheckStatistics(Record& record, const Scale& scale);

} // namespace orvane::validation
