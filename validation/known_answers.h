// Results that are known beforehand, because they are published or were worked out by hand, beside what the
// program gives.
#pragma once

#include "validation/record.h"

namespace orvane::validation {

/// Takes a second or two, in a quick validation too.
void CheckKnownAnswers(Record& record, const Scale& scale);

} // namespace orvane::validation
