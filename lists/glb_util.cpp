#include "lists/glb_util.h"

#include "platform/failure.h"

#include <algorithm>
#include <cstddef>

namespace orvane {

namespace {

/// Results of FindExecutableA and ShellExecuteA above this mean success.
constexpr std::int32_t HighestShellError = 32;

/// Frees a memory block unless the clipboard has taken it over.
struct BlockOwner {
    BlockOwner(Clipboard& from, GlobalHandle block) : From(from), Block(block) {}
    BlockOwner(const BlockOwner&) = delete;
    BlockOwner& operator=(const BlockOwner&) = delete;
    ~BlockOwner() {
        if (Block != 0)
            From.GlobalFree(Block);
    }
    Clipboard& From;
    GlobalHandle Block;
};

std::string ClipboardBytes(const std::string& text, const CodePage& page) {
    if (text.find('\0') != std::string::npos)
        throw Failure("The clipboard cannot hold the character U+0000", failure_number::UnmappableCharacter,
                      "CopyTextToClipboard");
    return page.Encode(text, Unmappable::Fail);
}

void CloseTheClipboard(Clipboard& clipboard, MessageBox& messages) {
    if (clipboard.CloseClipboard() == 0)
        messages.Show("Could not close Clipboard.");
}

} // namespace

void OpenInBrowser(const std::string& path, std::intptr_t owner, Shell32& shell, MessageBox& messages) {
    std::string program;
    if (shell.FindExecutableA(path, program) <= HighestShellError) {
        messages.ShowExclamation("Could not find associated Browser", "Browser Not Found");
        return;
    }
    if (shell.ShellExecuteA(owner, program, path) <= HighestShellError)
        messages.ShowExclamation("Web Page not Opened", "URL Failed");
}

bool CopyTextToClipboard(const std::string& text, Clipboard& clipboard, const CodePage& page,
                         MessageBox& messages) {
    const std::string bytes = ClipboardBytes(text, page);
    BlockOwner owner(clipboard, clipboard.GlobalAlloc(Clipboard::MoveableZeroedBlock, bytes.size() + 1));
    char* const address = owner.Block == 0 ? nullptr : clipboard.GlobalLock(owner.Block);
    if (address == nullptr)
        throw Failure("There is no memory for the " + std::to_string(bytes.size() + 1) + " bytes of the list",
                      failure_number::OutOfMemory, "GlobalAlloc");
    clipboard.lstrcpy(address, bytes);
    if (clipboard.GlobalUnlock(owner.Block) != 0) {
        messages.Show("Could not unlock memory location. Copy aborted.");
        CloseTheClipboard(clipboard, messages);
        return true;
    }
    if (clipboard.OpenClipboard() == 0) {
        messages.Show("Could not open the Clipboard. Copy aborted.");
        return true;
    }
    clipboard.EmptyClipboard();
    const bool taken = clipboard.SetClipboardData(Clipboard::PlainText, owner.Block) != 0;
    if (taken)
        owner.Block = 0;
    CloseTheClipboard(clipboard, messages);
    if (!taken)
        throw Failure("The clipboard did not take the list", failure_number::NoClipboard, "SetClipboardData");
    return false;
}

std::string UpperLastThree(const std::string& name) {
    std::string last = name.substr(name.size() - std::min<std::size_t>(name.size(), 3));
    for (char& character : last)
        if (character >= 'a' && character <= 'z')
            character = static_cast<char>(character - 'a' + 'A');
    return last;
}

} // namespace orvane
