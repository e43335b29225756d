// Checks of the program's windows for which no list is made.
#pragma once

#include "validation/list_maker.h"
#include "validation/record.h"

namespace orvane::validation {

/// Checks that missing and unusable input is refused, and that the typed text is kept.
void CheckRefusals(Evidence& evidence, ListMaker& maker);

/// Checks that set-ups that are loaded and saved twice give the same bytes each time.
void CheckSettingsFiles(Evidence& evidence, ListMaker& maker, const std::vector<ListSetup>& setups);

/// Checks that each command of the main window can be given by keyboard only.
void CheckCommandsByKeys(Evidence& evidence, ListMaker& maker);

} // namespace orvane::validation
