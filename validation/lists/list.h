// Writes a list in one of the four output forms, reads a finished list back from its bytes, and holds it
// against the rules. Written from the description of the forms; shares no code with the program's reports.
#pragma once

#include "validation/lists/setup.h"
#include "validation/record.h"

#include <string>
#include <vector>

namespace orvane::validation {

struct Subject {
    std::string Code;
    int Group = 0; ///< from 1, in the order of the set-up's names
};

/// The blocks of a list, each in the order of its subjects.
using Blocks = std::vector<std::vector<Subject>>;

/// A list as the second program makes it.
struct Prediction {
    std::string Bytes;
    std::string RunsMessage;         ///< lines ended by LF; empty if the Runs test is off
    std::size_t Shuffles = 0;        ///< more than blocks if the Runs test rejected an arrangement
    std::size_t CodesDrawnAgain = 0; ///< because the list had them already
};

/// A list that the program made, with everything observed about it.
struct MadeList {
    ListSetup Setup;
    std::string NotMade; ///< why there is no list; empty if there is one
    std::string Bytes;
    std::string WindowText;   ///< of the output window, lines ended by LF
    bool HasOnePrivateFile{}; ///< one temporary file, which only its owner can read, while that is open
    std::string RunsMessage;  ///< lines ended by LF; empty if there was none
    bool HasItsForm{};        ///< every byte is right
    validation::Blocks Blocks;
    Prediction Predicted; ///< only of lists from a known key
};

/// The bytes of a list with these blocks in the form of the set-up: a file, or the text on the clipboard.
std::string WriteList(const Blocks& blocks, const ListSetup& setup);

/// Sets Blocks and HasItsForm from the bytes of the list. Every byte is compared with the form.
void ReadBack(MadeList& list);

// The rules of a randomization list, judged from what was read back.

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
