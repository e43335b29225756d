#include "platform/qt/qt_second_press.h"

#include "fakes/qt_application.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <QWindow>

namespace orvane {
namespace {

class QtSecondPressTest : public testing::Test {
  protected:
    QtSecondPressTest() {
        below.setGeometry(0, 0, 400, 400);
        below.show();
        above.setGeometry(100, 100, 100, 100);
        above.show();
        QObject::connect(&below, &QPushButton::clicked, [this] { ++pressedBelow; });
        QObject::connect(&above, &QPushButton::clicked, &above, [this] {
            ++pressedAbove;
            if (closes)
                above.close();
        });
    }

    /// A click at the same place of the screen.
    static void ClickIn(QWidget& window, int milliseconds) {
        const QPoint there(150, 150);
        for (const bool down : {true, false})
            qt_handleMouseEvent(window.windowHandle(), window.mapFromGlobal(there), there,
                                down ? Qt::LeftButton : Qt::NoButton, Qt::LeftButton,
                                down ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease, {},
                                milliseconds);
    }

    QApplication& application = TestApplication();
    QtSecondPress rule;
    QPushButton below;
    QPushButton above;
    int pressedBelow = 0;
    int pressedAbove = 0;
    bool closes = true;
};

TEST_F(QtSecondPressTest, OfAWindowThatClosedReachesNothing) {
    ClickIn(above, 20'000'000);
    EXPECT_FALSE(above.isVisible());
    ClickIn(below, 20'000'100);
    EXPECT_EQ(pressedBelow, 0);
    ClickIn(below, 20'009'000);
    EXPECT_EQ(pressedBelow, 1) << "a click of its own";
}

TEST_F(QtSecondPressTest, InTheSameWindowCounts) {
    closes = false;
    ClickIn(above, 30'000'000);
    ClickIn(above, 30'000'100);
    EXPECT_EQ(pressedAbove, 2);
}

} // namespace
} // namespace orvane
