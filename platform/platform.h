// What the program needs of its desktop, as one struct of references. main creates the real objects, tests
// pass scripted ones.
#pragma once

#include "platform/clipboard.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/mouse_pointer.h"
#include "platform/registry.h"
#include "platform/shell32.h"
#include "platform/time_of_day.h"
#include "platform/uniform_source.h"

#include <string>

namespace orvane {

struct Platform {
    MessageBox& Messages;
    MousePointer& Pointer;
    Files& FileSystem;
    const CodePage& Page;
    TimeOfDay& Clock;
    UniformSource& Random;
    Shell32& Shell;
    orvane::Clipboard& Clipboard;
    orvane::Registry& Registry;
    std::string ProgramDirectory; ///< the folder of the program file, without a final separator
    char Separator;               ///< between the parts of a path

    /// The path of `name` in the program's directory.
    [[nodiscard]] std::string BesideProgram(const std::string& name) const {
        return ProgramDirectory + Separator + name;
    }
};

} // namespace orvane
