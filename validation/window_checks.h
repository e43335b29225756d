// Checks of the program's windows that need no whole list.
#pragma once

#include "validation/list_maker.h"
#include "validation/record.h"

namespace orvane::validation {

/// Missing and unusable input is refused in the real windows, and what was typed is still there.
void CheckRefusals(Evidence& evidence, ListMaker& maker);

/// Set-ups that are loaded, saved, loaded again and saved again are the same bytes each time.
void CheckSettingsFiles(Evidence& evidence, ListMaker& maker, const std::vector<ListSetup>& setups);

/// Each command of the main window is given with keys alone.
void CheckCommandsByKeys(Evidence& evidence, ListMaker& maker);

} // namespace orvane::validation
