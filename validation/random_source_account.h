// Explains and checks what the security of the random source depends on.
#pragma once

#include "validation/record.h"

namespace orvane::validation {

void CheckSourceAccount(Record& record);

} // namespace orvane::validation
