// The rules of a randomization list. Each routine returns the faults of one list that was read back.
#pragma once

#include "validation/list_checks.h"

namespace orvane::validation {

// Assignment.
Faults EvenBlocks(const MadeList& list);
Faults FirstGroupsHaveOneMore(const MadeList& list);

// Blocks.
Faults OneBlockOfTheSample(const MadeList& list);
Faults EqualBlocks(const MadeList& list);
Faults BlocksOfListedSizes(const MadeList& list);
Faults BlocksOfRandomSizes(const MadeList& list);
Faults WholeBlocks(const MadeList& list);

// Codes.
Faults UniqueCodes(const MadeList& list);
Faults WellFormedCodes(const MadeList& list);
Faults NumberedCodes(const MadeList& list);

// Runs test.
Faults ValuesAboveTheLevel(const MadeList& list);
Faults ToldValues(const MadeList& list);
/// The smallest and the largest P value of the blocks.
std::string ValuesText(const MadeList& list);

// Bytes and windows.
Faults Layout(const MadeList& list);
Faults WindowShowsTheList(const MadeList& list);
Faults DownColumns(const MadeList& list);
Faults PrivateTemporaryFile(const MadeList& list);
Faults OpenedInViewer(const MadeList& list);

} // namespace orvane::validation
