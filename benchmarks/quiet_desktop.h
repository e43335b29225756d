// A desktop for reports that does as little as possible. The benchmarks add the real files, clock and
// entropy.
#pragma once

#include "platform/clipboard.h"
#include "platform/files.h"
#include "platform/linux/linux_registry.h"
#include "platform/message_box.h"
#include "platform/mouse_pointer.h"
#include "platform/shell32.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

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

struct QuietDesktop {
    LastMessage messages;
    NoPointer pointer;
    FilesInMemory files;
    NoViewer shell;
    NoClipboard clipboard;
    LinuxRegistry registry;
};

} // namespace orvane
