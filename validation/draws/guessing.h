// How often an investigator guesses the next assignment right with the convergence strategy of Blackwell and
// Hodges (1957): always name the group with the fewest assignments so far. The investigator sees every
// earlier assignment, does not know where blocks end, and names any of the groups that have the fewest.
#pragma once

#include "validation/record.h"

namespace orvane::validation {

/// The check CON-5.1: the share of right guesses for each block option, calculated exactly.
void CheckGuessing(Record& record);

} // namespace orvane::validation
