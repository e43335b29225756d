// A desktop in memory, for checks that call the program's routines without its windows: it never waits,
// stores what it receives, and supplies the random values that a check lists.
#pragma once

#include "engine/list_settings.h"
#include "engine/sequence_builder.h"
#include "options/options_controls.h"
#include "output/report_context.h"
#include "platform/entropy.h"
#include "platform/platform.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace orvane::validation {

using Texts = std::vector<std::string>;

/// The names of the groups in column 1, row 1 the first group.
class MemoryNames : public MSFlexGrid {
  public:
    explicit MemoryNames(Texts names) : names_(std::move(names)) {}
    /// Sets the names of the groups.
    void Name(Texts names) { names_ = std::move(names); }

    [[nodiscard]] std::int16_t Rows() const override { return static_cast<std::int16_t>(names_.size() + 1); }
    void SetRows(std::int16_t rows) override { names_.resize(static_cast<std::size_t>(rows) - 1); }
    [[nodiscard]] std::int16_t Row() const override { return row_; }
    void SetRow(std::int16_t row) override { row_ = row; }
    [[nodiscard]] std::int16_t Col() const override { return 1; }
    void SetCol(std::int16_t /*col*/) override {}
    [[nodiscard]] std::string Text() const override { return TextMatrix(row_, 1); }
    void SetText(const std::string& text) override { names_.at(static_cast<std::size_t>(row_) - 1) = text; }
    [[nodiscard]] std::string TextMatrix(std::int16_t row, std::int16_t /*col*/) const override {
        return names_.at(static_cast<std::size_t>(row) - 1);
    }
    void OnRowColChange(std::function<void()> /*handler*/) override {}

  private:
    Texts names_;
    std::int16_t row_ = 1;
};

/// Stores the messages.
class KeptMessages : public MessageBox {
  public:
    void Show(const std::string& text) override { Shown.push_back(text); }
    void ShowExclamation(const std::string& text, const std::string& /*title*/) override {
        Shown.push_back(text);
    }
    /// Returns the messages since the last call, joined by " / ", with line ends written as " | ".
    std::string Take();

    Texts Shown;
};

class NoPointer : public MousePointer {
  public:
    void ShowBusy() override {}
    void ShowNormal() override {}
};

/// The options window with given texts in its fields; stores which field got the focus.
class FilledInOptions : public OptionsControls {
  public:
    void FocusEqBlockSizeTxt() override { Focus = "EqBlockSizeTxt"; }
    void FocusUnEqBlockSizeTxt() override { Focus = "UnEqBlockSizeTxt"; }
    void FocusTxtLevel() override { Focus = "txtLevel"; }
    [[nodiscard]] std::string LevelText() const override { return Level; }
    void SelectTab(std::int16_t /*tab*/) override {}
    [[nodiscard]] bool TableBorderChecked() const override { return false; }
    [[nodiscard]] std::int16_t CellSpacingPosition() const override { return 1; }
    void Close() override {}

    std::string Level = "0.05";
    std::string Focus;
};

/// A clock that always gives the same time.
class StoppedClock : public TimeOfDay {
  public:
    float SecondsSinceMidnight() override { return 43200.5F; }
};

/// Gives bytes that count up from `first`: a known key, so that a calculation can be repeated.
class KnownEntropy : public Entropy {
  public:
    explicit KnownEntropy(std::uint8_t first = 0) : next_(first) {}
    void Fill(std::span<std::byte> bytes) override {
        for (std::byte& byte : bytes)
            byte = static_cast<std::byte>(next_++);
    }

  private:
    std::uint8_t next_;
};

/// An operating system without random data.
class NoEntropy : public Entropy {
  public:
    void Fill(std::span<std::byte> bytes) override;
};

/// Supplies the values that a check lists, then always 0.
class ListedValues : public UniformSource {
  public:
    explicit ListedValues(std::vector<float> values = {}) : Values(std::move(values)) {}

    float UniformNext() override { return next_ < Values.size() ? Values[next_++] : 0; }
    void UniformFill(std::span<float> values) override {
        for (float& value : values)
            value = UniformNext();
    }
    void UniformReseed(float /*value*/) override {}

    std::vector<float> Values;

  private:
    std::size_t next_ = 0;
};

/// A value for which a draw from `Lo` to `Hi` gives `wanted`.
float ValueFor(int Lo, int Hi, int wanted);

/// Files in memory, by path.
class MemoryFiles : public Files {
  public:
    std::unique_ptr<WritableFile> OpenForOutput(const std::string& path) override;
    std::unique_ptr<WritableFile> CreatePrivate(const std::string& path) override;
    std::unique_ptr<ReadableFile> OpenForInput(const std::string& path) override;
    void Copy(const std::string& from, const std::string& to) override { Contents[to] = Contents.at(from); }
    void Delete(const std::string& path) override { Contents.erase(path); }
    bool Exists(const std::string& path) override { return Contents.contains(path); }

    std::map<std::string, std::string> Contents;
};

/// Every file type has an associated program; none is started.
class NoPrograms : public Shell32 {
  public:
    std::int32_t FindExecutableA(const std::string& /*path*/, std::string& program) override {
        program = "program";
        return Success;
    }
    std::int32_t ShellExecuteA(std::intptr_t /*owner*/, const std::string& /*program*/,
                               const std::string& /*path*/) override {
        return Success;
    }
    void StartProgram(const std::string& /*path*/) override {}

  private:
    static constexpr std::int32_t Success = 42;
};

class MemoryClipboard : public Clipboard {
  public:
    GlobalHandle GlobalAlloc(std::uint32_t /*flags*/, std::size_t bytes) override {
        block_.assign(bytes, '\0');
        return 1;
    }
    char* GlobalLock(GlobalHandle /*block*/) override { return block_.data(); }
    void lstrcpy(char* address, const std::string& text) override {
        text.copy(address, text.size());
        address[text.size()] = '\0';
    }
    std::int32_t GlobalUnlock(GlobalHandle /*block*/) override { return 0; }
    void GlobalFree(GlobalHandle /*block*/) override {}
    std::int32_t OpenClipboard() override { return 1; }
    void EmptyClipboard() override { Content.clear(); }
    GlobalHandle SetClipboardData(std::uint32_t /*format*/, GlobalHandle block) override {
        Content = block_.substr(0, block_.find('\0'));
        return block;
    }
    std::int32_t CloseClipboard() override { return 1; }

    std::string Content;

  private:
    std::string block_;
};

class EmptyRegistry : public Registry {
  public:
    std::int32_t RegOpenKeyExA(std::uint32_t /*root*/, const std::string& /*path*/, std::uint32_t /*options*/,
                               std::uint32_t /*access*/, RegistryKey& /*key*/) override {
        return NotFound;
    }
    std::int32_t RegQueryValueExA(RegistryKey /*key*/, const std::string& /*name*/, std::uint32_t& /*type*/,
                                  std::span<char> /*buffer*/, std::uint32_t& /*size*/) override {
        return NotFound;
    }
    std::int32_t RegCloseKey(RegistryKey /*key*/) override { return 0; }

  private:
    static constexpr std::int32_t NotFound = 2;
};

/// All parts together. The code page is Windows-1252.
struct MemoryDesktop {
    explicit MemoryDesktop(UniformSource& random);

    KeptMessages Messages;
    NoPointer Pointer;
    MemoryFiles FileSystem;
    CodePage Page;
    StoppedClock Clock;
    NoPrograms Shell;
    MemoryClipboard Board;
    EmptyRegistry Keys;
    Platform All;
};

/// A list that is about to be reported: settings, groups, blocks and codes.
struct MemoryList {
    MemoryList(UniformSource& random, const Texts& names)
        : Desktop(random), Names(names), Builder(Settings, Results, Names, Desktop.All) {
        Settings.NumberOfGroups = static_cast<std::int16_t>(names.size());
    }

    MemoryDesktop Desktop;
    ListSettings Settings;
    ListResults Results;
    MemoryNames Names;
    SequenceBuilder Builder;
    ReportContext Context{Settings, Results, Names, Builder, Desktop.All};
};

} // namespace orvane::validation
