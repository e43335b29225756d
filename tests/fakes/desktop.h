// A desktop made of scripted parts: what the program asks of it is recorded, what it answers is set by the
// test.
#pragma once

#include "fakes/memory_files.h"
#include "fakes/random.h"
#include "platform/common_dialog.h"
#include "platform/platform.h"

#include <array>
#include <deque>
#include <numeric>
#include <optional>

namespace orvane::fakes {

using Texts = std::vector<std::string>;

/// Keeps every message. A message that nobody has taken fails the test.
struct ScriptedMessageBox : MessageBox {
    ~ScriptedMessageBox() override { EXPECT_EQ(Unread, Texts{}) << "messages left unread"; }

    void Show(const std::string& text) override {
        Unread.push_back(text);
        if (WhileShown)
            WhileShown();
    }
    void ShowExclamation(const std::string& text, const std::string& title) override {
        Show("(!) " + title + ": " + text);
    }
    Texts TakeAll() { return std::exchange(Unread, {}); }
    /// The only unread message; "" when there is none.
    std::string Take() {
        const Texts texts = TakeAll();
        EXPECT_LE(texts.size(), 1U) << texts.back();
        return texts.empty() ? "" : texts.front();
    }

    std::function<void()> WhileShown; ///< runs while a message is open
    Texts Unread;
};

/// The message that reports a failure.
inline std::string Report(const std::string& description, std::int32_t number, const std::string& source) {
    return "Error Description: " + description + "\r\nError Number: " + std::to_string(number) +
           "\r\nError Source: " + source;
}

struct RecordingPointer : MousePointer {
    void ShowBusy() override { Note(true); }
    void ShowNormal() override { Note(false); }
    void Note(bool busy) {
        Busy = busy;
        Calls += busy ? 'B' : 'N';
    }
    bool Busy = false;
    std::string Calls; ///< "B" and "N" in order
};

/// Finds and starts programs with the answers that it is given.
struct FakeShell : Shell32, Faults {
    std::int32_t FindExecutableA(const std::string& /*path*/, std::string& program) override {
        program = "viewer";
        return Found;
    }
    std::int32_t ShellExecuteA(std::intptr_t owner, const std::string& program,
                               const std::string& path) override {
        LastOwner = owner;
        Started.push_back(program + " " + path);
        return Starts;
    }
    void StartProgram(const std::string& path) override {
        Try("StartProgram");
        Started.push_back(path);
    }
    std::int32_t Found = 33;
    std::int32_t Starts = 33;
    std::intptr_t LastOwner = 0;
    Texts Started; ///< "viewer PATH", or the path of a program started by itself
};

/// Operations that fail give the answer that says so.
struct MemoryClipboard : Clipboard, Faults {
    std::string Content = "earlier content"; ///< bytes, without the terminator
    Texts Calls;                             ///< of the operations that can fail, and EmptyClipboard
    std::vector<char> Block;                 ///< the only one, empty when it was freed

    bool Works(const std::string& call) {
        Calls.push_back(call);
        return !Failing(call);
    }
    GlobalHandle GlobalAlloc(std::uint32_t flags, std::size_t bytes) override {
        if (!Works("GlobalAlloc") || flags != 66) // movable and filled with zeros
            return 0;
        Block.assign(bytes, 'x');
        return 1;
    }
    char* GlobalLock(GlobalHandle /*block*/) override { return Works("GlobalLock") ? Block.data() : nullptr; }
    void lstrcpy(char* address, const std::string& text) override {
        std::copy_n(text.c_str(), text.size() + 1, address);
    }
    std::int32_t GlobalUnlock(GlobalHandle /*block*/) override { return Works("GlobalUnlock") ? 0 : 1; }
    void GlobalFree(GlobalHandle /*block*/) override { Block.clear(); }
    std::int32_t OpenClipboard() override { return Works("OpenClipboard") ? 1 : 0; }
    void EmptyClipboard() override {
        Works("EmptyClipboard");
        Content.clear();
    }
    GlobalHandle SetClipboardData(std::uint32_t format, GlobalHandle block) override {
        if (!Works("SetClipboardData") || format != 1) // plain text
            return 0;
        Content = Block.data();
        return block;
    }
    std::int32_t CloseClipboard() override { return Works("CloseClipboard") ? 1 : 0; }
};

/// Values by "path|name"; every key can be opened.
struct MemoryRegistry : Registry {
    struct Value {
        std::uint32_t type = 0;
        std::string bytes{};
    };
    std::map<std::string, Value> Values;
    Texts Opened; ///< the paths of the keys, in order
    int Open = 0;

    std::int32_t RegOpenKeyExA(std::uint32_t root, const std::string& path, std::uint32_t options,
                               std::uint32_t /*access*/, RegistryKey& key) override {
        if (root != HKEY_LOCAL_MACHINE_ROOT || options != 0)
            return 2;
        Opened.push_back(path);
        key = Opened.size();
        ++Open;
        return 0;
    }
    std::int32_t RegQueryValueExA(RegistryKey key, const std::string& name, std::uint32_t& type,
                                  std::span<char> buffer, std::uint32_t& size) override {
        const auto found = Values.find(Opened.at(key - 1) + "|" + name);
        if (found == Values.end())
            return 2;
        type = found->second.type;
        size = static_cast<std::uint32_t>(found->second.bytes.size());
        found->second.bytes.copy(buffer.data(), buffer.size());
        return size > buffer.size() ? 234 : 0;
    }
    std::int32_t RegCloseKey(RegistryKey /*key*/) override {
        --Open;
        return 0;
    }
};

/// A file prompt that answers each show with the next of `Answers`: a path chosen, or nothing for a cancel.
/// With no answer left it cancels.
struct ScriptedDialog : CommonDialog, Faults {
    std::deque<std::optional<std::string>> Answers;
    Texts Shown;                      ///< "save flags, name|title|filter" or "open ..." of each show
    std::function<void()> WhileShown; ///< runs while the prompt is open

    void ShowOpen() override { Answer("open "); }
    void ShowSave() override { Answer("save "); }
    void Answer(const std::string& kind) {
        Shown.push_back(kind + std::to_string(Flags) + ", " + FileName + "|" + DialogTitle + "|" + Filter);
        if (WhileShown)
            WhileShown();
        Try(kind);
        Answers.resize(std::max<std::size_t>(Answers.size(), 1));
        const auto answer = Answers.front();
        Answers.pop_front();
        if (!answer)
            throw Failure("Cancel was selected.", failure_number::Cancelled, "CommonDialog");
        FileName = *answer;
    }
};

/// The characters of numbers 0 to 255, but for the euro at its place.
inline const CodePage& WesternPage() {
    static const CodePage page = [] {
        std::array<char32_t, 256> characters{};
        std::iota(characters.begin(), characters.end(), U'\0');
        characters[0x80] = U'\u20AC';
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
    MemoryClipboard clipboard;
    MemoryRegistry registry;
    Platform platform{messages, pointer,   files,    WesternPage(), clock, random,
                      shell,    clipboard, registry, "/program",    '/'};
};

} // namespace orvane::fakes
