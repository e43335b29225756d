#include "platform/qt/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QString>

#include <algorithm>
#include <exception>
#include <string_view>
#include <utility>

namespace orvane {

GlobalHandle QtClipboard::GlobalAlloc(std::uint32_t /*flags*/, std::size_t bytes) {
    try {
        blocks_[last_ + 1].assign(bytes, '\0');
    } catch (const std::exception&) {
        blocks_.erase(last_ + 1);
        return 0;
    }
    return ++last_;
}

char* QtClipboard::GlobalLock(GlobalHandle block) {
    const auto found = blocks_.find(block);
    return found == blocks_.end() ? nullptr : found->second.data();
}

void QtClipboard::lstrcpy(char* address, const std::string& text) {
    std::copy_n(text.c_str(), text.size() + 1, address);
}

std::int32_t QtClipboard::GlobalUnlock(GlobalHandle /*block*/) {
    return 0; // a block is never locked twice
}

void QtClipboard::GlobalFree(GlobalHandle block) {
    blocks_.erase(block);
}

std::int32_t QtClipboard::OpenClipboard() {
    open_ = QGuiApplication::clipboard() != nullptr;
    return open_ ? 1 : 0;
}

void QtClipboard::EmptyClipboard() {
    if (open_)
        QGuiApplication::clipboard()->clear();
}

GlobalHandle QtClipboard::SetClipboardData(std::uint32_t format, GlobalHandle block) {
    const auto found = blocks_.find(block);
    if (!open_ || format != PlainText || found == blocks_.end())
        return 0;
    const std::vector<char>& bytes = found->second;
    const std::string_view text(bytes.data(), bytes.size());
    const QString content = QString::fromStdString(page_.Decode(text.substr(0, text.find('\0'))));
    QGuiApplication::clipboard()->setText(content);
    // The desktop may have rejected the text.
    if (QGuiApplication::clipboard()->text() != content)
        return 0;
    blocks_.erase(found);
    return block;
}

std::int32_t QtClipboard::CloseClipboard() {
    return std::exchange(open_, false) ? 1 : 0;
}

} // namespace orvane
