#include "platform/qt/qt_clipboard.h"

#include "fakes/desktop.h"
#include "fakes/qt_application.h"

#include <QClipboard>

namespace orvane {
namespace {

TEST(QtClipboardTest, HandsATextToTheDesktopAndKeepsTheBlockThatTheDesktopRefuses) {
    TestApplication();
    QClipboard& desktops = *QGuiApplication::clipboard();
    QtClipboard clipboard{fakes::WesternPage()};
    const GlobalHandle block = clipboard.GlobalAlloc(Clipboard::MoveableZeroedBlock, 20);
    clipboard.lstrcpy(clipboard.GlobalLock(block), "Gr\xFCppe\r\n");
    EXPECT_NE(clipboard.OpenClipboard(), 0);
    // Another program takes the clipboard at once.
    const auto taking = QObject::connect(&desktops, &QClipboard::dataChanged, [&] {
        if (desktops.text() != "taken")
            desktops.setText("taken");
    });
    EXPECT_EQ(clipboard.SetClipboardData(Clipboard::PlainText, block), 0U);
    EXPECT_NE(clipboard.GlobalLock(block), nullptr);
    QObject::disconnect(taking);
    EXPECT_EQ(clipboard.SetClipboardData(Clipboard::PlainText, block), block);
    EXPECT_EQ(clipboard.GlobalLock(block), nullptr) << "the block is the clipboard's";
    EXPECT_EQ(desktops.text().toStdString(), "Gr\u00FCppe\r\n");
}

} // namespace
} // namespace orvane
