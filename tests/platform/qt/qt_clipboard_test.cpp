#include "platform/qt/qt_clipboard.h"

#include "fakes/desktop.h"
#include "fakes/qt_application.h"

#include <QClipboard>

namespace orvane {
namespace {

struct QtClipboardTest : testing::Test {
    QtClipboardTest() {
        TestApplication();
        desktops().setText("earlier content");
    }
    static QClipboard& desktops() { return *QGuiApplication::clipboard(); }
    /// A block with room for `room` bytes, into which this text was copied.
    GlobalHandle BlockOf(const std::string& text, std::size_t room) {
        const GlobalHandle block = clipboard.GlobalAlloc(Clipboard::MoveableZeroedBlock, room);
        clipboard.lstrcpy(clipboard.GlobalLock(block), text);
        clipboard.GlobalUnlock(block);
        return block;
    }
    QtClipboard clipboard{fakes::WesternPage()};
};

TEST_F(QtClipboardTest, HandsTheTextOfABlockToTheDesktopAndFreesIt) {
    const GlobalHandle block = BlockOf("Gr\xFCppe\r\n", 20);
    EXPECT_NE(clipboard.OpenClipboard(), 0);
    clipboard.EmptyClipboard();
    EXPECT_EQ(desktops().text(), "");
    EXPECT_EQ(clipboard.SetClipboardData(Clipboard::PlainText, block), block);
    EXPECT_NE(clipboard.CloseClipboard(), 0);
    EXPECT_EQ(desktops().text().toStdString(), "Gr\u00FCppe\r\n");
    EXPECT_EQ(clipboard.GlobalLock(block), nullptr) << "the block is the clipboard's";
}

TEST_F(QtClipboardTest, KeepsTheBlockOfATextThatTheDesktopRefuses) {
    const GlobalHandle block = BlockOf("new", 4);
    // Another program takes the clipboard at once.
    const auto taking = QObject::connect(&desktops(), &QClipboard::dataChanged, [] {
        if (desktops().text() == "new")
            desktops().setText("taken");
    });
    clipboard.OpenClipboard();
    EXPECT_EQ(clipboard.SetClipboardData(Clipboard::PlainText, block), 0U);
    QObject::disconnect(taking);
    EXPECT_NE(clipboard.GlobalLock(block), nullptr);
}

} // namespace
} // namespace orvane
