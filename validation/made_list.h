// A list that the program made, with everything observed about it.
#pragma once

#include "validation/list_reader.h"
#include "validation/list_setup.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane::validation {

/// What was observed of the output window.
struct WindowSeen {
    std::string Text;                        ///< in the window, lines ended by LF
    std::vector<std::string> TemporaryFiles; ///< while the window is open, with their permissions
    std::vector<std::string> LeftBehind;     ///< those that still exist after it is closed
};

struct MadeList {
    ListSetup Setup;
    std::string NotMade; ///< why there is no list; empty if there is one
    std::string Bytes;
    std::optional<WindowSeen> Window;
    std::string RunsMessage;         ///< lines ended by LF; empty if there was none
    std::vector<std::string> Viewer; ///< the viewer that was started, and its arguments
    std::string File;                ///< full path entered for a file

    std::string Unreadable;                   ///< why the bytes could not be read as a list; else empty
    std::vector<BlockTable> Tables;           ///< as printed
    std::vector<std::vector<Subject>> Blocks; ///< down the columns

    [[nodiscard]] bool Readable() const { return NotMade.empty() && Unreadable.empty(); }
};

/// Reads the list back from its bytes.
void ReadBack(MadeList& list);

} // namespace orvane::validation
