// The desktop's clipboard, filled from blocks of memory.
#pragma once

#include "platform/clipboard.h"
#include "platform/code_page.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace orvane {

/// The bytes of a block are text in the code page; the desktop's clipboard gets the decoded text.
class QtClipboard : public Clipboard {
  public:
    explicit QtClipboard(const CodePage& page) : page_(page) {}

    GlobalHandle GlobalAlloc(std::uint32_t flags, std::size_t bytes) override;
    char* GlobalLock(GlobalHandle block) override;
    void lstrcpy(char* address, const std::string& text) override;
    std::int32_t GlobalUnlock(GlobalHandle block) override;
    void GlobalFree(GlobalHandle block) override;
    std::int32_t OpenClipboard() override;
    void EmptyClipboard() override;
    /// On success the block is freed. The text of a block ends at the first zero byte.
    GlobalHandle SetClipboardData(std::uint32_t format, GlobalHandle block) override;
    std::int32_t CloseClipboard() override;

  private:
    const CodePage& page_;
    std::map<GlobalHandle, std::vector<char>> blocks_;
    GlobalHandle last_ = 0;
    bool open_ = false;
};

} // namespace orvane
