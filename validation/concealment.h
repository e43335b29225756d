// Checks how well an investigator can guess the next assignment, and what keeps the draws secret.
#pragma once

#include "validation/record.h"

namespace orvane::validation {

void CheckConcealment(Record& record, const Scale& scale);

} // namespace orvane::validation
