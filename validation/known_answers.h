// Compares the program's results with results that are known in advance because they are published or were
// calculated by hand.
#pragma once

#include "validation/record.h"

namespace orvane::validation {

/// Takes a second or two, also in a quick validation.
void CheckKnownAnswers(Record& record, const Scale& scale);

} // namespace orvane::validation
