#include "output/glb_util.h"

#include "engine/text.h"

#include <algorithm>
#include <cstddef>
#include <new>

namespace orvane {

namespace {

/// Results of FindExecutableA and ShellExecuteA above this mean success.
constexpr std::int32_t HighestShellError = 32;

constexpr std::uint32_t MoveableZeroedBlock = 66;
constexpr std::uint32_t PlainText = 1;

/// A memory block, freed unless the clipboard has taken it over.
class ClipboardBlock {
  public:
    ClipboardBlock(Clipboard& clipboard, std::size_t bytes)
        : clipboard_(clipboard), handle_(clipboard.GlobalAlloc(MoveableZeroedBlock, bytes)) {
        if (handle_ == 0)
            throw Failure("There is no memory for the " + std::to_string(bytes) + " bytes of the list",
                          failure_number::OutOfMemory, "GlobalAlloc");
    }
    ClipboardBlock(const ClipboardBlock&) = delete;
    ClipboardBlock& operator=(const ClipboardBlock&) = delete;
    ~ClipboardBlock() {
        if (handle_ != 0)
            clipboard_.GlobalFree(handle_);
    }

    void Fill(const std::string& bytes) {
        char* const address = clipboard_.GlobalLock(handle_);
        if (address == nullptr)
            throw Failure("The memory block for the clipboard cannot be locked", failure_number::OutOfMemory,
                          "GlobalLock");
        clipboard_.lstrcpy(address, bytes);
    }

    bool Unlock() { return clipboard_.GlobalUnlock(handle_) == 0; }

    bool GiveToClipboard() {
        const bool taken = clipboard_.SetClipboardData(PlainText, handle_) != 0;
        if (taken)
            handle_ = 0;
        return taken;
    }

  private:
    Clipboard& clipboard_;
    GlobalHandle handle_;
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

void ReportError(const Failure& failure, MessageBox& messages) {
    std::string text = "Error Description: " + failure.Description;
    text.append(LineEnd).append("Error Number: " + std::to_string(failure.Number));
    text.append(LineEnd).append("Error Source: " + failure.Source);
    messages.Show(text);
}

Failure CurrentFailure() {
    // The texts for std::bad_alloc are short enough for std::string to store them without allocating memory.
    try {
        throw;
    } catch (const Failure& failure) {
        return failure;
    } catch (const std::bad_alloc&) {
        return {"Out of memory", failure_number::OutOfMemory, "memory"};
    } catch (const std::exception& unexpected) {
        return {unexpected.what(), failure_number::Unexpected, "the program"};
    } catch (...) {
        return {"An unknown failure", failure_number::Unexpected, "the program"};
    }
}

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
    ClipboardBlock block(clipboard, bytes.size() + 1);
    block.Fill(bytes);
    if (!block.Unlock()) {
        messages.Show("Could not unlock memory location. Copy aborted.");
        CloseTheClipboard(clipboard, messages);
        return true;
    }
    if (clipboard.OpenClipboard() == 0) {
        messages.Show("Could not open the Clipboard. Copy aborted.");
        return true;
    }
    clipboard.EmptyClipboard();
    const bool taken = block.GiveToClipboard();
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
