// How well an investigator can guess the next assignment, and what the secrecy of the draws rests on.
#pragma once

#include "validation/record.h"

namespace orvane::validation {

void CheckConcealment(Record& record, const Scale& scale);

} // namespace orvane::validation
