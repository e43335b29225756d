// A clipboard in memory on which each step can be told to fail.
#pragma once

#include "platform/clipboard.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace orvane::fakes {

class MemoryClipboard : public Clipboard {
  public:
    std::string Content = "earlier content";          ///< bytes, without the terminator
    std::map<GlobalHandle, std::vector<char>> Blocks; ///< not yet freed nor handed over
    std::vector<std::string> Calls;
    bool NoBlock = false;
    bool NoLock = false;
    bool StaysLocked = false;
    bool CannotOpen = false;
    bool CannotSet = false;
    bool CannotClose = false;

    GlobalHandle GlobalAlloc(std::uint32_t flags, std::size_t bytes) override {
        Calls.push_back("GlobalAlloc " + std::to_string(flags) + " " + std::to_string(bytes));
        if (NoBlock)
            return 0;
        Blocks[++last_].assign(bytes, '\0');
        return last_;
    }
    char* GlobalLock(GlobalHandle block) override {
        Calls.emplace_back("GlobalLock");
        return NoLock ? nullptr : Blocks.at(block).data();
    }
    void lstrcpy(char* address, const std::string& text) override {
        Calls.emplace_back("lstrcpy");
        std::copy_n(text.c_str(), text.size() + 1, address);
    }
    std::int32_t GlobalUnlock(GlobalHandle /*block*/) override {
        Calls.emplace_back("GlobalUnlock");
        return StaysLocked ? 1 : 0;
    }
    void GlobalFree(GlobalHandle block) override {
        Calls.emplace_back("GlobalFree");
        Blocks.erase(block);
    }
    std::int32_t OpenClipboard() override {
        Calls.emplace_back("OpenClipboard");
        return CannotOpen ? 0 : 1;
    }
    void EmptyClipboard() override {
        Calls.emplace_back("EmptyClipboard");
        Content.clear();
    }
    GlobalHandle SetClipboardData(std::uint32_t format, GlobalHandle block) override {
        Calls.push_back("SetClipboardData " + std::to_string(format));
        if (CannotSet)
            return 0;
        Content = Blocks.at(block).data();
        Blocks.erase(block);
        return block;
    }
    std::int32_t CloseClipboard() override {
        Calls.emplace_back("CloseClipboard");
        return CannotClose ? 0 : 1;
    }

  private:
    GlobalHandle last_ = 0;
};

} // namespace orvane::fakes
