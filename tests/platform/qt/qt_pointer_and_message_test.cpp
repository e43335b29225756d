#include "fakes/qt_application.h"
#include "platform/qt/qt_ending.h"
#include "platform/qt/qt_focus_mark.h"
#include "platform/qt/qt_input_drain.h"
#include "platform/qt/qt_message_box.h"
#include "platform/qt/qt_mouse_pointer.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>

namespace orvane {
namespace {

/// A window that is a button, and counts how often it is pressed and closed.
class Window : public QPushButton {
  public:
    int handled = 0;
    int closes = 0;

  protected:
    void nextCheckState() override { ++handled; }
    void closeEvent(QCloseEvent* event) override {
        event->ignore();
        ++closes;
    }
    void wheelEvent(QWheelEvent* /*event*/) override { ++handled; }
    void mouseDoubleClickEvent(QMouseEvent* /*event*/) override { ++handled; }
};

class QtPointerAndMessage : public testing::Test {
  protected:
    QtPointerAndMessage() {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    static void PostBlank(QWidget& widget) {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
            QCoreApplication::postEvent(&widget, new QKeyEvent(type, Qt::Key_Space, Qt::NoModifier));
    }
    /// A click, a pressed blank and a close, which wait until the next look at the events.
    void PostInput() {
        const QPointF middle = window.rect().center();
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease})
            QCoreApplication::postEvent(&window,
                                        new QMouseEvent(type, middle, window.mapToGlobal(middle),
                                                        Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
        PostBlank(window);
        QCoreApplication::postEvent(&window,
                                    new QWheelEvent(middle, window.mapToGlobal(middle), {}, {0, 120},
                                                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false));
        QCoreApplication::postEvent(&window, new QCloseEvent);
    }
    [[nodiscard]] int Handled() const {
        QCoreApplication::processEvents();
        return window.handled;
    }

    /// Runs `use` on the next message box, as soon as it waits for its answer, and presses OK.
    void InBox(std::function<void(QMessageBox&)> use) {
        QObject::connect(&watch, &QTimer::timeout, &watch, [this, use = std::move(use)] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                watch.stop();
                watch.disconnect();
                use(*box);
                PostBlank(*box->button(QMessageBox::Ok));
            }
        });
        watch.start(1);
    }

    QApplication& application = TestApplication();
    Window window;
    QTimer watch;
    QtInputDrain input;
    QtMousePointer pointer{input};
    QtEnding ending;
    QtMessageBox messages{input, ending};
};

TEST_F(QtPointerAndMessage, PointerIsSetOnceAndDropsTheInputOfTheBusyTime) {
    for (int i = 0; i < 2; ++i) {
        pointer.ShowBusy();
        pointer.ShowBusy();
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        PostInput();
        pointer.ShowNormal();
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(Handled(), 0);
        EXPECT_EQ(window.closes, i + 1);
        pointer.ShowNormal();
    }
    PostInput();
    pointer.ShowNormal();
    EXPECT_EQ(Handled(), 4);
}

TEST_F(QtPointerAndMessage, DropsInputBeforeAMessageOfTheBusyTime) {
    pointer.ShowBusy();
    PostInput();
    QTimer::singleShot(0, [this] { pointer.ShowNormal(); }); // a call from inside ends at once
    InBox([this](QMessageBox&) { EXPECT_EQ(Handled(), 0); });
    messages.Show("busy");
    EXPECT_EQ(Handled(), 0);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(QtPointerAndMessage, AMessageThatComesWhileInputIsDroppedCanBeAnswered) {
    bool answered = false;
    pointer.ShowBusy();
    QTimer::singleShot(0, [&] {
        messages.Show("inside");
        answered = true;
    });
    InBox([](QMessageBox&) {});
    pointer.ShowNormal();
    EXPECT_TRUE(answered);
}

TEST_F(QtPointerAndMessage, NoMessageWaitsForAnAnswerWhenTheProgramEnds) {
    testing::internal::CaptureStderr();
    QTimer::singleShot(0, [this] { ending.Begin(); });
    messages.Show("open");
    messages.Show("later");
    EXPECT_TRUE(testing::internal::GetCapturedStderr().ends_with("Orvane Software: later\n"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return window.closes > 1; }));
}

TEST_F(QtPointerAndMessage, NoKeyIsDroppedWhileAMenuIsOpen) {
    QMenu menu;
    menu.popup(QPoint());
    pointer.ShowBusy();
    PostBlank(window);
    pointer.ShowNormal();
    EXPECT_EQ(Handled(), 1);
}

TEST_F(QtPointerAndMessage, TheFocusIsMarkedButInTextBoxes) {
    const QtFocusMark mark;
    QLineEdit text(&window);
    QPushButton button(&window);
    text.show();
    button.show();
    for (int time = 1; time <= 2; ++time) {
        button.setFocus();
        ASSERT_EQ(window.findChildren<QFocusFrame*>().size(), 1);
        EXPECT_TRUE(window.findChild<QFocusFrame*>()->isVisible());
        text.setFocus();
        EXPECT_EQ(window.findChildren<QFocusFrame*>().size(), 0);
    }
}

TEST_F(QtPointerAndMessage, ShowsTextCaptionAndIcon) {
    const auto expectBox = [this](const char* text, const char* caption, QMessageBox::Icon icon) {
        InBox([=, this](QMessageBox& box) {
            EXPECT_EQ(box.text(), QString(text));
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.windowTitle(), QString(caption));
            EXPECT_EQ(box.icon(), icon);
            EXPECT_EQ(box.objectName(), QStringLiteral("MessageBox"));
            EXPECT_EQ(box.buttons().size(), 1);
            EXPECT_EQ(box.parentWidget(), &window);
        });
    };
    expectBox("<b>Größe</b> & more\nsecond\nthird", "Orvane Software", QMessageBox::NoIcon);
    messages.Show("<b>Größe</b> & more\r\nsecond\rthird");
    expectBox("Web Page not Opened", "URL Failed", QMessageBox::Warning);
    messages.ShowExclamation("Web Page not Opened", "URL Failed");
}

TEST_F(QtPointerAndMessage, KeepsLongTextsOnTheScreen) {
    std::string lines;
    std::string pairs = "x";
    for (int i = 0; i < 3000; ++i) {
        lines += std::to_string(i) + "\r\n";
        pairs += "😀";
    }
    for (const std::string& text : {lines, std::string(100000, 'x'), pairs, pairs + "y"}) {
        InBox([&](QMessageBox& box) {
            EXPECT_EQ(box.size().boundedTo(box.screen()->availableSize()), box.size());
            EXPECT_TRUE(box.text().isValidUtf16());
            const QString whole = QString::fromStdString(text).trimmed();
            EXPECT_TRUE(box.text().startsWith(whole.at(0)) && box.text().trimmed().endsWith(whole.right(3)));
            static const QRegularExpression unbroken(QStringLiteral("[^\\s\u200B]{90}"));
            EXPECT_FALSE(unbroken.match(box.text()).hasMatch());
        });
        messages.Show(text);
    }
}

} // namespace
} // namespace orvane
