// Reads a finished list back from its bytes. Written from the description of the four output forms; shares no
// code with the program's reports.
#pragma once

#include "validation/list_setup.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace orvane::validation {

struct Subject {
    std::string Code;
    int Group = 0; ///< from 1, in the order of the set-up's names
};

/// A row of a table, with an element for every column; empty for blank cells.
using TableRow = std::vector<std::optional<Subject>>;

/// One block as it is printed, row by row.
using BlockTable = std::vector<TableRow>;

/// The bytes are not a list of this form. The text names the position.
struct LayoutFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The tables of a list. Every byte is checked: line ends, the position of each cell, blank cells, ruled
/// lines, and that there is nothing before, between or after them. Throws LayoutFault.
std::vector<BlockTable> ReadList(const std::string& bytes, const ListSetup& setup);

/// The subjects of a block down its columns, blank cells left out.
std::vector<Subject> DownTheColumns(const BlockTable& table);

/// Empty if the cells are filled column by column without gaps, in the smallest possible number of rows; else
/// the fault.
std::string BlankFault(const BlockTable& table);

} // namespace orvane::validation
