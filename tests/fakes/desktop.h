// A desktop made of scripted parts: what the program asks of it is recorded, what it answers is set by the
// test.
#pragma once

#include "fakes/memory_clipboard.h"
#include "fakes/memory_files.h"
#include "fakes/memory_grid.h"
#include "fakes/messages.h"
#include "fakes/random.h"
#include "fakes/scripted_dialog.h"
#include "platform/platform.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace orvane::fakes {

class RecordingPointer : public MousePointer {
  public:
    void ShowBusy() override {
        Busy = true;
        Calls += 'B';
    }
    void ShowNormal() override {
        Busy = false;
        Calls += 'N';
    }
    bool Busy = false;
    std::string Calls; ///< "B" and "N" in order
};

/// Finds and starts programs as it is told; keeps what it started.
class FakeShell : public Shell32 {
  public:
    std::int32_t FindExecutableA(const std::string& path, std::string& program) override {
        Asked.push_back(path);
        if (Found <= 32)
            return Found;
        program = "viewer";
        return Found;
    }
    std::int32_t ShellExecuteA(std::intptr_t owner, const std::string& program,
                               const std::string& path) override {
        if (Starts > 32)
            Started.push_back(program + " " + path);
        LastOwner = owner;
        return Starts;
    }
    void StartProgram(const std::string& path) override {
        if (Starts <= 32)
            throw Failure("cannot start " + path, failure_number::CannotStart, "FakeShell");
        Started.push_back(path);
    }
    std::int32_t Found = 42;
    std::int32_t Starts = 42;
    std::intptr_t LastOwner = 0;
    std::vector<std::string> Asked;
    std::vector<std::string> Started; ///< "viewer PATH", or the path of a program started by itself
};

/// Keys with values by "path|name".
class MemoryRegistry : public Registry {
  public:
    struct Value {
        std::uint32_t type = 0;
        std::string bytes{};
    };
    std::map<std::string, Value> Values;
    std::vector<std::string> Asked; ///< "path|name" of each query
    int Open = 0;

    std::int32_t RegOpenKeyExA(std::uint32_t root, const std::string& path, std::uint32_t /*options*/,
                               std::uint32_t /*access*/, RegistryKey& key) override {
        const bool known = root == HKEY_LOCAL_MACHINE_ROOT &&
                           std::any_of(Values.begin(), Values.end(), [&](const auto& entry) {
                               return entry.first.starts_with(path + "|");
                           });
        if (!known)
            return 2;
        paths_.push_back(path);
        key = paths_.size();
        ++Open;
        return 0;
    }
    std::int32_t RegQueryValueExA(RegistryKey key, const std::string& name, std::uint32_t& type,
                                  std::span<char> buffer, std::uint32_t& size) override {
        const std::string where = paths_.at(key - 1) + "|" + name;
        Asked.push_back(where);
        const auto found = Values.find(where);
        if (found == Values.end())
            return 2;
        type = found->second.type;
        size = static_cast<std::uint32_t>(found->second.bytes.size());
        if (found->second.bytes.size() > buffer.size())
            return 234;
        std::copy(found->second.bytes.begin(), found->second.bytes.end(), buffer.begin());
        return 0;
    }
    std::int32_t RegCloseKey(RegistryKey /*key*/) override {
        --Open;
        return 0;
    }

  private:
    std::vector<std::string> paths_;
};

/// A page of 256 characters: those of Windows-1252.
inline const CodePage& WesternPage() {
    static const CodePage page = [] {
        std::array<char32_t, 256> characters{};
        for (std::size_t b = 0; b < characters.size(); ++b)
            characters[b] = static_cast<char32_t>(b);
        constexpr std::array<char32_t, 32> upper = {
            0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
            0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
            0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
        std::copy(upper.begin(), upper.end(), characters.begin() + 0x80);
        return CodePage("Windows-1252", characters);
    }();
    return page;
}

/// All parts together.
struct FakeDesktop {
    ScriptedMessageBox messages;
    RecordingPointer pointer;
    MemoryFiles files;
    SetClock clock;
    ListedSource random;
    FakeShell shell;
    MemoryClipboard board;
    MemoryRegistry keys;
    Platform platform{messages, pointer, files, WesternPage(), clock, random,
                      shell,    board,   keys,  "/program",    '/'};
};

} // namespace orvane::fakes
