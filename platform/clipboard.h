// The clipboard, and the memory blocks through which text gets there.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace orvane {

/// A memory block; 0 is none.
using GlobalHandle = std::uintptr_t;

class Clipboard {
  public:
    virtual ~Clipboard() = default;

    /// A block of `bytes` bytes by `flags` (66: moveable, filled with zeros); 0 if it cannot be had.
    virtual GlobalHandle GlobalAlloc(std::uint32_t flags, std::size_t bytes) = 0;
    /// The block's address, null if it cannot be locked.
    virtual char* GlobalLock(GlobalHandle block) = 0;
    /// Copies `text` and a terminator to `address`.
    virtual void lstrcpy(char* address, const std::string& text) = 0;
    /// 0 when the block is no longer locked.
    virtual std::int32_t GlobalUnlock(GlobalHandle block) = 0;
    virtual void GlobalFree(GlobalHandle block) = 0;

    /// Not 0 when the clipboard is open for this program.
    virtual std::int32_t OpenClipboard() = 0;
    virtual void EmptyClipboard() = 0;
    /// Format 1 is plain text. The block then belongs to the clipboard. 0 when it was not taken.
    virtual GlobalHandle SetClipboardData(std::uint32_t format, GlobalHandle block) = 0;
    /// Not 0 when the clipboard is closed.
    virtual std::int32_t CloseClipboard() = 0;
};

} // namespace orvane
