#include "platform/qt/qt_ending.h"

#include "modal_windows.h"

#include <QDialog>
#include <QMenu>
#include <QTest>

namespace orvane {
namespace {

struct Ending : ModalWindowsTest {
    Ending() { window.show(); }
    QWidget window;
};

TEST_F(Ending, ClosesTheWindowsAtOnceWhenTheSessionEnds) {
    EXPECT_FALSE(ending.IsEnding());
    // What the desktop's session manager makes the toolkit tell. The handler does not ask the manager.
    QObject manager;
    void* arguments[] = {nullptr, &manager};
    const int told = QMetaMethod::fromSignal(&QGuiApplication::commitDataRequest).methodIndex();
    QMetaObject::metacall(qApp, QMetaObject::InvokeMetaMethod, told, arguments);
    EXPECT_TRUE(ending.IsEnding());
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Ending, ClosesAnOpenMenuFirst) {
    QMenu menu;
    menu.addAction("item");
    menu.popup(QPoint());
    ending.Begin();
    EXPECT_FALSE(menu.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window.isVisible(); }));
}

} // namespace
} // namespace orvane
