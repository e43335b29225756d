// The chapter of lists that the delivered program makes through its windows.
#pragma once

#include "validation/record.h"

#include <filesystem>

namespace orvane::validation {

struct ListWorkplace {
    std::filesystem::path Program;  ///< folder with the program and the files delivered with it
    std::filesystem::path Evidence; ///< folder of the record; the lists go into its folder "lists"
};

/// Makes the lists of a design on the display of this session, reads them back and checks them. Unless
/// tools/on_display provides the display, the checks are "not run".
void CheckLists(Record& record, const Scale& scale, const ListWorkplace& place);

/// Runs the checks of lists on faulty lists. Each fault must be found by the check for it. Needs no display.
void CheckListChecks(Record& record, const Scale& scale);

} // namespace orvane::validation
