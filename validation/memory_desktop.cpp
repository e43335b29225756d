#include "validation/memory_desktop.h"

#include "platform/failure.h"
#include "platform/linux/code_page_iconv.h"

#include <algorithm>
#include <memory>
#include <string_view>

namespace orvane::validation {
namespace {

class Output : public WritableFile {
  public:
    explicit Output(std::string& content) : content_(content) {}
    void Write(std::string_view bytes) override { content_.append(bytes); }
    void Close() override {}

  private:
    std::string& content_;
};

class Input : public ReadableFile {
  public:
    explicit Input(std::string content) : content_(std::move(content)) {}
    std::size_t Read(std::span<char> buffer) override {
        const std::size_t count = content_.copy(buffer.data(), buffer.size(), next_);
        next_ += count;
        return count;
    }

  private:
    std::string content_;
    std::size_t next_ = 0;
};

} // namespace

std::string KeptMessages::Take() {
    std::string all;
    for (const std::string& text : Shown)
        all += (all.empty() ? "" : " / ") + text;
    Shown.clear();
    for (std::size_t at = all.find("\r\n"); at != std::string::npos; at = all.find("\r\n"))
        all.replace(at, 2, " | ");
    return all;
}

void NoEntropy::Fill(std::span<std::byte> /*bytes*/) {
    throw Failure("The operating system gives no random numbers.", failure_number::NoEntropy,
                  "Random source");
}

float ValueFor(int Lo, int Hi, int wanted) {
    constexpr float highest = 0x1.fffffep-1F;
    if (wanted == Lo)
        return 0;
    return wanted == Hi ? highest : static_cast<float>(static_cast<double>(wanted - Lo) / (Hi - Lo));
}

std::unique_ptr<WritableFile> MemoryFiles::OpenForOutput(const std::string& path) {
    Contents[path].clear();
    return std::make_unique<Output>(Contents[path]);
}

std::unique_ptr<WritableFile> MemoryFiles::CreatePrivate(const std::string& path) {
    return OpenForOutput(path);
}

std::unique_ptr<ReadableFile> MemoryFiles::OpenForInput(const std::string& path) {
    return std::make_unique<Input>(Contents.at(path));
}

MemoryDesktop::MemoryDesktop(UniformSource& random)
    : Page(WesternCodePage()), All{Messages, Pointer, FileSystem, Page,       Clock, random,
                                   Shell,    Board,   Keys,       "/program", '/'} {}

} // namespace orvane::validation
