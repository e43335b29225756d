// Writes a list in one of the four output forms, and reads a finished list back from its bytes. Written from
// the description of the forms; shares no code with the program's reports.
#pragma once

#include "validation/lists/setup.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane::validation {

struct Subject {
    std::string Code;
    int Group = 0; ///< from 1, in the order of the set-up's names
};

/// The blocks of a list, each in the order of its subjects.
using Blocks = std::vector<std::vector<Subject>>;

/// What was observed of the output window.
struct WindowSeen {
    std::string Text;         ///< in the window, lines ended by LF
    bool HasOnePrivateFile{}; ///< one temporary file, which only its owner can read, while it is open
};

/// A list that the program made, with everything observed about it.
struct MadeList {
    ListSetup Setup;
    std::string NotMade; ///< why there is no list; empty if there is one
    std::string Bytes;
    std::optional<WindowSeen> Window;
    std::string RunsMessage; ///< lines ended by LF; empty if there was none
    std::string Unreadable;  ///< why the form is wrong; empty if every byte is right
    validation::Blocks Blocks;

    [[nodiscard]] bool Readable() const { return NotMade.empty() && !Blocks.empty(); }
};

/// The bytes of a list with these blocks in the form of the set-up: a file, or the text on the clipboard.
std::string WriteList(const Blocks& blocks, const ListSetup& setup);

/// Sets Blocks and Unreadable from the bytes of the list. Every byte is compared with the form.
void ReadBack(MadeList& list);

} // namespace orvane::validation
