// A desktop for reports that does as little as possible. The benchmarks add the real files, clock and
// entropy.
#pragma once

#include "platform/clipboard.h"
#include "platform/files.h"
#include "platform/linux/linux_registry.h"
#include "platform/message_box.h"
#include "platform/mouse_pointer.h"
#include "platform/ms_flex_grid.h"
#include "platform/shell32.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvane {

/// Stores the last message: a benchmark that showed one is not valid.
class LastMessage : public MessageBox {
  public:
    void Show(const std::string& text) override { Text = text; }
    void ShowExclamation(const std::string& text, const std::string& /*title*/) override { Text = text; }
    std::string Text;
};

class NoPointer : public MousePointer {
  public:
    void ShowBusy() override {}
    void ShowNormal() override {}
};

/// Every file has a viewer; starting it does nothing.
class NoViewer : public Shell32 {
  public:
    std::int32_t FindExecutableA(const std::string& /*path*/, std::string& /*program*/) override {
        return success;
    }
    std::int32_t ShellExecuteA(std::intptr_t /*owner*/, const std::string& /*program*/,
                               const std::string& /*path*/) override {
        return success;
    }
    void StartProgram(const std::string& /*path*/) override {}

  private:
    static constexpr std::int32_t success = 42;
};

/// Allocates no memory block.
class NoClipboard : public Clipboard {
  public:
    GlobalHandle GlobalAlloc(std::uint32_t /*flags*/, std::size_t /*bytes*/) override { return 0; }
    char* GlobalLock(GlobalHandle /*block*/) override { return nullptr; }
    void lstrcpy(char* /*address*/, const std::string& /*text*/) override {}
    std::int32_t GlobalUnlock(GlobalHandle /*block*/) override { return 0; }
    void GlobalFree(GlobalHandle /*block*/) override {}
    std::int32_t OpenClipboard() override { return 0; }
    void EmptyClipboard() override {}
    GlobalHandle SetClipboardData(std::uint32_t /*format*/, GlobalHandle /*block*/) override { return 0; }
    std::int32_t CloseClipboard() override { return 0; }
};

/// Files that can only be written and are discarded when closed.
class FilesInMemory : public Files {
  public:
    std::unique_ptr<WritableFile> OpenForOutput(const std::string& /*path*/) override {
        return std::make_unique<File>();
    }
    std::unique_ptr<WritableFile> CreatePrivate(const std::string& path) override {
        return OpenForOutput(path);
    }
    std::unique_ptr<ReadableFile> OpenForInput(const std::string& /*path*/) override { return nullptr; }
    void Copy(const std::string& /*from*/, const std::string& /*to*/) override {}
    void Delete(const std::string& /*path*/) override {}
    bool Exists(const std::string& /*path*/) override { return false; }

  private:
    class File : public WritableFile {
      public:
        void Write(std::string_view bytes) override { bytes_ += bytes; }
        void Close() override {}

      private:
        std::string bytes_;
    };
};

/// Fixed names of the groups.
class FixedNames : public MSFlexGrid {
  public:
    explicit FixedNames(std::vector<std::string> names) : names_(std::move(names)) {}
    [[nodiscard]] std::int16_t Rows() const override { return static_cast<std::int16_t>(names_.size() + 1); }
    void SetRows(std::int16_t /*rows*/) override {}
    [[nodiscard]] std::int16_t Row() const override { return 1; }
    void SetRow(std::int16_t /*row*/) override {}
    [[nodiscard]] std::int16_t Col() const override { return 1; }
    void SetCol(std::int16_t /*col*/) override {}
    [[nodiscard]] std::string Text() const override { return names_.front(); }
    void SetText(const std::string& /*text*/) override {}
    [[nodiscard]] std::string TextMatrix(std::int16_t row, std::int16_t /*col*/) const override {
        return names_.at(static_cast<std::size_t>(row - 1));
    }
    void OnRowColChange(std::function<void()> /*handler*/) override {}

  private:
    std::vector<std::string> names_;
};

struct QuietDesktop {
    LastMessage messages;
    NoPointer pointer;
    FilesInMemory files;
    NoViewer shell;
    NoClipboard board;
    LinuxRegistry keys;
};

} // namespace orvane
