#include "platform/qt/qt_focus_mark.h"

#include "fakes/qt_application.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

namespace orvane {
namespace {

TEST(FocusMark, IsPaintedAroundTheControlWithTheFocusAndLeavesOutTextBoxes) {
    TestApplication();
    const QtFocusMark mark;
    QWidget window;
    QScrollBar bar(Qt::Horizontal, &window);
    bar.setGeometry(20, 60, 100, 20);
    bar.setFocusPolicy(Qt::StrongFocus);
    QLineEdit text(&window);
    text.setGeometry(20, 100, 100, 20);
    window.resize(200, 150);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    text.setFocus();
    const QImage unmarked = window.grab().toImage();
    const QRect around = bar.geometry().adjusted(-4, -4, 4, 4);
    bar.setFocus();
    EXPECT_NE(window.grab().toImage().copy(around), unmarked.copy(around));
    text.setFocus();
    EXPECT_EQ(window.grab().toImage(), unmarked);
}

} // namespace
} // namespace orvane
