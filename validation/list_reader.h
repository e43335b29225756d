// Reads a finished list back from its bytes. Written against the description of the four forms alone: nothing
// here is shared with the program's reports.
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

/// A row of a table, with a place for every column; blank cells are empty.
using TableRow = std::vector<std::optional<Subject>>;

/// One block as it is printed, row by row.
using BlockTable = std::vector<TableRow>;

/// The bytes are not those of a list of this form. Tells the place.
struct LayoutFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The tables of a list. Every byte is judged: line ends, the place of each cell, blank cells, ruled lines,
/// and that nothing stands before, between or behind them. Throws LayoutFault.
std::vector<BlockTable> ReadList(const std::string& bytes, const ListSetup& setup);

/// The subjects of a block down its columns, blank cells left out.
std::vector<Subject> DownTheColumns(const BlockTable& table);

/// Empty if the filled cells are the first ones down the columns, in as few rows as can be; else what is
/// wrong.
std::string BlankFault(const BlockTable& table);

} // namespace orvane::validation
