// A list that the program made, with all that was seen of it.
#pragma once

#include "validation/list_reader.h"
#include "validation/list_setup.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane::validation {

/// What the output window was seen to do with its list.
struct WindowSeen {
    std::string Text; ///< in the window, lines ended by LF
    std::vector<std::string>
        TemporaryFiles;                  ///< beside the program while the window is open, with their rights
    std::vector<std::string> LeftBehind; ///< of these after it is closed
};

struct MadeList {
    ListSetup Setup;
    std::string NotMade; ///< why there is no list; empty if there is one
    std::string Bytes;
    std::optional<WindowSeen> Window;
    std::string RunsMessage; ///< lines ended by LF; empty if there was none
    std::vector<std::string>
        Viewer;       ///< what was started with the finished file: the viewer and its arguments
    std::string File; ///< whole path that was given for a file

    std::string Unreadable;                   ///< why the bytes are no list; empty if they are one
    std::vector<BlockTable> Tables;           ///< as printed
    std::vector<std::vector<Subject>> Blocks; ///< down the columns

    [[nodiscard]] bool Readable() const { return NotMade.empty() && Unreadable.empty(); }
};

/// Reads the list back from its bytes.
void ReadBack(MadeList& list);

} // namespace orvane::validation
