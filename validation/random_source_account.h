// What the source of the draws rests on.
#pragma once

#include "validation/record.h"

namespace orvane::validation {

void CheckSourceAccount(Record& record);

} // namespace orvane::validation
