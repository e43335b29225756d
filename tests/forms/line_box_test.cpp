#include "forms/line_box.h"

#include "window_driver.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QFocusEvent>
#include <QGuiApplication>

#include <string>
#include <vector>

namespace orvane {
namespace {

using namespace fakes;
using namespace std::string_literals;

class LineBoxTest : public testing::Test {
  protected:
    LineBoxTest() {
        other.setGeometry(0, 0, 100, 20);
        box.setGeometry(0, 30, 100, 20);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        other.setFocus();
    }
    void Paste(const std::string& text) {
        QGuiApplication::clipboard()->setText(QString::fromStdString(text));
        QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    }

    QWidget window;
    QLineEdit other{&window};
    LineBox box{&window};
};

TEST_F(LineBoxTest, OfAPastedTextTheFirstLineCounts) {
    struct Row {
        std::string before;
        int cursor, selected;
        std::string pasted, after;
    };
    for (const Row& row : std::vector<Row>{{"", 0, 0, "one\r\ntwo", "one"},
                                           {"abcd", 2, 0, "x\ny\nz", "abxcd"},
                                           {"abcd", 1, 2, "x\xE2\x80\xA8y", "axd"},
                                           {"abcd", 4, 0, "\nx", "abcd"},
                                           {"aa", 1, 0, "a\ra", "aaa"},
                                           {"set\nby the program", 3, 0, "x", "setx\nby the program"},
                                           {"", 0, 0, "\ttab and \x01", "\ttab and \x01"},
                                           {"", 0, 0, std::string(40000, 'x'), std::string(40000, 'x')}}) {
        box.SetText(row.before);
        box.setCursorPosition(row.cursor);
        box.setSelection(row.cursor, row.selected);
        Paste(row.pasted);
        EXPECT_EQ(box.Text(), row.after);
        EXPECT_EQ(box.cursorPosition(),
                  box.text().size() - (static_cast<int>(row.before.size()) - row.cursor - row.selected));
    }
}

TEST_F(LineBoxTest, TheProgramsTextIsTakenToTheLetter) {
    for (const std::string& text : {"a\nb\rc"s, "nul \0 inside\0"s,
                                    "\xEF\xBB\xBF"
                                    "mark"s,
                                    "\x01\x1F\x7F"s, " "s}) {
        int changes = 0;
        const auto counting = QObject::connect(&box, &QLineEdit::textChanged, [&] { ++changes; });
        box.SetText(text);
        box.SetText(text);
        EXPECT_EQ(box.Text(), text);
        EXPECT_EQ(changes, 1);
        QObject::disconnect(counting);
    }
}

TEST_F(LineBoxTest, ThePressThatBringsTheFocusLeavesTheWholeTextSelected) {
    box.SetText("some text");
    QTest::mousePress(&box, Qt::LeftButton, {}, QPoint(20, 10));
    QTest::mouseMove(&box, QPoint(40, 10));
    QTest::mouseRelease(&box, Qt::LeftButton, {}, QPoint(40, 10));
    EXPECT_EQ(box.selectedText(), "some text");
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(20, 10));
    EXPECT_EQ(box.selectedText(), "");
}

TEST_F(LineBoxTest, TheFocusSelectsTheTextInEveryWayButTheReturnOfTheWindow) {
    box.SetText("text");
    for (const auto& [reason, selects] :
         std::vector<std::pair<Qt::FocusReason, bool>>{{Qt::BacktabFocusReason, true},
                                                       {Qt::ShortcutFocusReason, true},
                                                       {Qt::OtherFocusReason, true},
                                                       {Qt::PopupFocusReason, false},
                                                       {Qt::MenuBarFocusReason, false},
                                                       {Qt::ActiveWindowFocusReason, false}}) {
        box.deselect();
        QFocusEvent event(QEvent::FocusIn, reason);
        QApplication::sendEvent(&box, &event);
        EXPECT_EQ(box.hasSelectedText(), selects) << reason;
    }
}

TEST_F(LineBoxTest, TakeFocusSelectsWhetherOrNotTheWindowIsAtTheFront) {
    box.SetText("text");
    for (int time = 1; time <= 2; ++time) {
        box.TakeFocus();
        EXPECT_EQ(box.selectedText(), "text");
        box.deselect();
    }
    other.setFocus();
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
