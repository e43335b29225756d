// Services that every part of the program leans on: the one report of a failure, the opening of a file in its
// associated program, text to the clipboard.
#pragma once

#include "platform/clipboard.h"
#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/message_box.h"
#include "platform/shell32.h"

#include <concepts>
#include <cstdint>
#include <string>

namespace orvane {

/// Shows the failure in three labelled lines and returns when the user has pressed OK.
void ReportError(const Failure& failure, MessageBox& messages);

/// The failure that is being handled. To be called in a catch block: an exception of another kind, such as no
/// memory, becomes a failure of its own.
Failure CurrentFailure();

/// Runs `body` under a failure path: `cleanUp` first, then one report, then a normal return. With
/// `quietCancel` a cancelled prompt ends without a report.
template <std::invocable Body, std::invocable CleanUp>
void WithFailurePath(MessageBox& messages, bool quietCancel, Body&& body, CleanUp&& cleanUp) {
    try {
        body();
    } catch (...) {
        const Failure failure = CurrentFailure();
        cleanUp();
        if (!quietCancel || failure.Number != failure_number::Cancelled)
            ReportError(failure, messages);
    }
}

template <std::invocable Body>
void WithFailurePath(MessageBox& messages, bool quietCancel, Body&& body) {
    WithFailurePath(messages, quietCancel, body, [] {});
}

/// Opens the file in the program associated with its type and returns at once. Says in a message when there
/// is none or it does not start.
void OpenInBrowser(const std::string& path, std::intptr_t owner, Shell32& shell, MessageBox& messages);

/// Puts `text` on the clipboard as plain text, in one block of the code page's bytes. True when the copy was
/// aborted, after a message. Throws, with the clipboard untouched, when the text has a character that the
/// page or the clipboard cannot hold, or when no block can be had; and, with the clipboard empty and closed,
/// when it does not take the block. A block that the clipboard did not take is freed.
bool CopyTextToClipboard(const std::string& text, Clipboard& clipboard, const CodePage& page,
                         MessageBox& messages);

/// The last three characters of a file name in upper case: what tells web pages, lists and other files apart.
std::string UpperLastThree(const std::string& name);

} // namespace orvane
