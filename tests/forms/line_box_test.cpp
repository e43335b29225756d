#include "forms/line_box.h"

#include "windows.h"

#include <QClipboard>

namespace orvane {
namespace {

struct LineBoxTest : WindowTest {
    LineBoxTest() {
        other.setGeometry(0, 0, 100, 20);
        box.setGeometry(0, 30, 100, 20);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        other.setFocus();
    }

    QWidget window;
    QLineEdit other{&window};
    LineBox box{&window};
};

TEST_F(LineBoxTest, TakesOfAPastedTextTheFirstLineAlone) {
    struct Row {
        const char* what;
        std::string before;
        int cursor;
        int selected;
        std::string pasted;
        std::string after;
        qsizetype cursorAfter;
    };
    const Row rows[] = {
        {"into an empty box", "", 0, 0, "one\r\ntwo", "one", 3},
        {"in the middle", "abcd", 2, 0, "x\ny\nz", "abxcd", 3},
        {"over a selection", "abcd", 1, 2, "x\u2028y", "axd", 2},
        {"a line end first", "abcd", 4, 0, "\nx", "abcd", 4},
        {"equal to its surroundings", "aa", 1, 0, "a\ra", "aaa", 2},
        {"behind a byte order mark", "\uFEFFmark", 5, 0, "\ttab and \x01", "\uFEFFmark\ttab and \x01", 15}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        box.SetText(row.before);
        EXPECT_EQ(box.Text(), row.before) << "a text of the program stays as it is";
        box.setCursorPosition(row.cursor);
        box.setSelection(row.cursor, row.selected);
        QGuiApplication::clipboard()->setText(QString::fromStdString(row.pasted));
        QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(box.Text(), row.after);
        EXPECT_EQ(box.cursorPosition(), row.cursorAfter);
    }
}

TEST_F(LineBoxTest, KeepsTheWholeTextSelectedUnderThePressThatBringsTheFocus) {
    box.SetText("some text");
    QTest::mousePress(&box, Qt::LeftButton, {}, QPoint(20, 10));
    QTest::mouseMove(&box, QPoint(40, 10));
    QTest::mouseRelease(&box, Qt::LeftButton, {}, QPoint(40, 10));
    EXPECT_EQ(box.selectedText(), "some text");
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(20, 10));
    EXPECT_EQ(box.selectedText(), "") << "the next click places the caret";
}

TEST_F(LineBoxTest, SelectsItsTextWithTheFocusUnlessItsWindowComesBack) {
    const auto selectsAt = [this](Qt::FocusReason reason) {
        box.deselect();
        QFocusEvent event(QEvent::FocusIn, reason);
        QApplication::sendEvent(&box, &event);
        return box.hasSelectedText();
    };
    box.SetText("text");
    EXPECT_TRUE(selectsAt(Qt::BacktabFocusReason));
    EXPECT_TRUE(selectsAt(Qt::OtherFocusReason));
    EXPECT_FALSE(selectsAt(Qt::PopupFocusReason)) << "the end of a context menu";
    EXPECT_FALSE(selectsAt(Qt::MenuBarFocusReason));
    EXPECT_FALSE(selectsAt(Qt::ActiveWindowFocusReason));
}

TEST_F(LineBoxTest, TakeFocusBehindAnotherWindowCountsWhenTheWindowComesBack) {
    box.SetText("text");
    QWidget front;
    front.show();
    front.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&front));
    box.TakeFocus();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(box.selectedText(), "text");
}

} // namespace
} // namespace orvane
