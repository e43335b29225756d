#include "platform/qt/qt_ending.h"

#include "modal_windows.h"

#include <QDialog>
#include <QMenu>
#include <QTest>

namespace orvane {
namespace {

class Ending : public ModalWindowsTest {
  protected:
    Ending() { window.show(); }

    /// What the desktop's session manager makes the toolkit tell when the session ends.
    static void EndSession() {
        QObject manager; // the handler does not ask it
        void* arguments[] = {nullptr, &manager};
        const int told = QMetaMethod::fromSignal(&QGuiApplication::commitDataRequest).methodIndex();
        QMetaObject::metacall(qApp, QMetaObject::InvokeMetaMethod, told, arguments);
    }
    [[nodiscard]] bool ClosesSoon() const {
        return QTest::qWaitFor([this] { return !window.isVisible(); });
    }

    QWidget window;
};

TEST_F(Ending, BeginsAtTheEndOfTheSession) {
    EXPECT_FALSE(ending.IsEnding());
    EndSession();
    EXPECT_TRUE(ending.IsEnding());
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Ending, ClosesAnOpenMenu) {
    QMenu menu;
    menu.addAction("item");
    menu.popup(QPoint());
    ending.Begin();
    EXPECT_FALSE(menu.isVisible());
    EXPECT_TRUE(ClosesSoon());
}

} // namespace
} // namespace orvane
