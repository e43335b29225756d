// The rules of a randomization list, judged from what was read back.
#pragma once

#include "validation/lists/reader.h"
#include "validation/record.h"

#include <string>
#include <vector>

namespace orvane::validation {

struct Rule {
    std::string Identifier; ///< of its check
    std::string Text;
    bool (*Applies)(const ListSetup&);
    /// Whether a list follows the rule.
    /// Requires: the rule applies to the list, and the list was read.
    bool (*IsKept)(const MadeList&);
};

const std::vector<Rule>& Rules();

/// Whether a list breaks a rule that applies to it. A list that was not made or cannot be read breaks all.
bool Breaks(const MadeList& list, const Rule& rule);

/// REC-1.1 and REC-1.2: every rule finds the fault that breaks it alone, and the rules find every changed
/// byte. Requires: lists of all forms, block options and kinds of codes.
void CheckRulesFindFaults(Record& record, const std::vector<MadeList>& lists);

} // namespace orvane::validation
