#include "platform/qt/qt_clipboard.h"

#include "fakes/desktop.h"
#include "fakes/qt_application.h"

#include <QClipboard>

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace orvane {
namespace {

TEST(QtClipboard, PutsTheCharactersOfABlockOnTheClipboardAndKeepsToItsBlocks) {
    constexpr std::uint32_t plainText = 1;
    constexpr std::uint32_t moveableAndZero = 66;
    TestApplication();
    QClipboard& clipboard = *QGuiApplication::clipboard();
    clipboard.setText(QStringLiteral("before"));
    QtClipboard board(fakes::WesternPage());

    const GlobalHandle small = board.GlobalAlloc(moveableAndZero, 5);
    const GlobalHandle block = board.GlobalAlloc(moveableAndZero, 20);
    board.lstrcpy(board.GlobalLock(small), "longer than the block");
    board.lstrcpy(board.GlobalLock(block), "Gr\xF6\xDF"
                                           "e \x80\r\n==\r\n");
    EXPECT_STREQ(board.GlobalLock(small), "long");
    EXPECT_EQ(board.GlobalUnlock(small), 1);
    EXPECT_EQ(board.GlobalUnlock(block), 0);
    EXPECT_EQ(board.GlobalAlloc(moveableAndZero, std::numeric_limits<std::size_t>::max()), 0U);
    EXPECT_EQ(board.SetClipboardData(plainText, block), 0U); // not open
    EXPECT_EQ(clipboard.text(), QStringLiteral("before"));

    EXPECT_NE(board.OpenClipboard(), 0);
    board.EmptyClipboard();
    EXPECT_EQ(clipboard.text(), QString());
    EXPECT_EQ(board.SetClipboardData(plainText, block), block);
    EXPECT_NE(board.CloseClipboard(), 0);
    EXPECT_EQ(clipboard.text(), QStringLiteral("Größe €\r\n==\r\n"));
    board.GlobalFree(small);
    for (const GlobalHandle gone : {small, block})
        EXPECT_EQ(board.GlobalLock(gone), nullptr);
}

} // namespace
} // namespace orvane
