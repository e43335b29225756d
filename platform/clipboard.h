// The clipboard, and the memory blocks in which text is passed to it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace orvane {

/// A memory block; 0 means none.
using GlobalHandle = std::uintptr_t;

class Clipboard {
  public:
    virtual ~Clipboard() = default;

    /// Flags of GlobalAlloc: a block that can be moved and is filled with zeros.
    static constexpr std::uint32_t MoveableZeroedBlock = 66;
    /// The format of plain text.
    static constexpr std::uint32_t PlainText = 1;

    /// Allocates `bytes` bytes; returns 0 if that fails.
    virtual GlobalHandle GlobalAlloc(std::uint32_t flags, std::size_t bytes) = 0;
    /// The address of the block; null if it cannot be locked.
    virtual char* GlobalLock(GlobalHandle block) = 0;
    /// Copies `text` and a terminating zero to `address`.
    /// Requires: text.size() + 1 bytes at `address`.
    virtual void lstrcpy(char* address, const std::string& text) = 0;
    /// Returns 0 when the block is no longer locked.
    virtual std::int32_t GlobalUnlock(GlobalHandle block) = 0;
    virtual void GlobalFree(GlobalHandle block) = 0;

    /// Opens the clipboard for this program; returns 0 if that fails.
    virtual std::int32_t OpenClipboard() = 0;
    virtual void EmptyClipboard() = 0;
    /// Returns 0 if the clipboard refuses the block; otherwise the clipboard owns it from now on.
    /// Requires: the clipboard is open.
    virtual GlobalHandle SetClipboardData(std::uint32_t format, GlobalHandle block) = 0;
    /// Returns 0 if the clipboard could not be closed.
    virtual std::int32_t CloseClipboard() = 0;
};

} // namespace orvane
