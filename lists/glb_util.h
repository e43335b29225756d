// Routines that the reports share: opening a file in its associated program, copying text to the clipboard.
#pragma once

#include "platform/clipboard.h"
#include "platform/code_page.h"
#include "platform/message_box.h"
#include "platform/shell32.h"

#include <cstdint>
#include <string>

namespace orvane {

/// Opens the file in the program associated with its type and returns at once. Shows a message if there is
/// no such program or if it does not start.
void OpenInBrowser(const std::string& path, std::intptr_t owner, Shell32& shell, MessageBox& messages);

/// Puts `text` on the clipboard as plain text, one memory block with the bytes of the code page. Returns
/// true if the copy was aborted; a message was then shown. Throws, with the clipboard unchanged, if `text`
/// contains a character that the code page or the clipboard cannot hold, or if no memory block can be
/// allocated. Throws, with the clipboard empty and closed, if the clipboard refuses the block; the block is
/// then freed.
bool CopyTextToClipboard(const std::string& text, Clipboard& clipboard, const CodePage& page,
                         MessageBox& messages);

/// The last three characters of a file name in upper case, such as "HTM" or "TXT".
std::string UpperLastThree(const std::string& name);

} // namespace orvane
