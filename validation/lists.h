// The chapter of lists that the real program makes through its windows.
#pragma once

#include "validation/record.h"

#include <filesystem>

namespace orvane::validation {

struct ListWorkplace {
    std::filesystem::path Program;  ///< folder of the program and of what is delivered beside it
    std::filesystem::path Evidence; ///< folder of the record; the lists are kept in its folder "lists"
};

/// Makes the lists of a design on the display of this session, reads them back and judges them. Without a
/// display of its own (tools/on_display) the checks are "not run".
void CheckLists(Record& record, const Scale& scale, const ListWorkplace& place);

/// Hands wrong lists to the checks of lists. Each must be found by the check that is there for it. Needs no
/// display.
void CheckListChecks(Record& record, const Scale& scale);

} // namespace orvane::validation
