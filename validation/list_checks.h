// The checks of a finished list.
#pragma once

#include "validation/made_list.h"

#include <string>
#include <vector>

namespace orvane::validation {

using Faults = std::vector<std::string>;

struct ListCheck {
    std::string Identifier;
    std::string Requirement;
    std::string Title;
    bool NeedsBlocks; ///< needs the blocks that were read back
    bool (*Applies)(const ListSetup&);
    /// The faults of a list.
    /// Requires: the check applies to the list, and the list could be read if `NeedsBlocks`.
    Faults (*Judge)(const MadeList&);
    /// The finding for the table of the record.
    std::string (*Found)(const MadeList&);
};

const std::vector<ListCheck>& ListChecks();

/// Number and sizes of the blocks, such as "3 of 4, 1 of 6".
std::string BlocksText(const MadeList& list);

} // namespace orvane::validation
