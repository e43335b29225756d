// What is demanded of a finished list: one check for each requirement that a list can meet or miss.
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
    bool NeedsBlocks; ///< judges what was read; else the bytes or the windows themselves
    bool (*Applies)(const ListSetup&);
    /// What is wrong with a list to which the check applies, and that could be read if `NeedsBlocks`.
    Faults (*Judge)(const MadeList&);
    /// What was found, for the table of the record.
    std::string (*Found)(const MadeList&);
};

const std::vector<ListCheck>& ListChecks();

/// Number and sizes of the blocks, such as "3 of 4, 1 of 6".
std::string BlocksText(const MadeList& list);

} // namespace orvane::validation
