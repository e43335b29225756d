// Drives a modal window as its user does.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>

#include <functional>
#include <string>

namespace orvane::fakes {

using Script = std::function<void(QDialog& window)>;

/// Opens the form and runs the script in its window. A script that leaves the window open fails the test.
template <class Form>
void WhileOpen(Form& form, const Script& script) {
    bool ran = false;
    QTimer::singleShot(0, qApp, [&] {
        auto* window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(window, nullptr);
        ran = QTest::qWaitForWindowActive(window);
        script(*window);
        if (window->isVisible()) {
            ADD_FAILURE() << "the script left the window open";
            window->done(0);
        }
    });
    form.ShowModal();
    EXPECT_TRUE(ran);
}

template <class Widget>
Widget& Find(QWidget& window, const std::string& name) {
    auto* found = window.findChild<Widget*>(QString::fromStdString(name));
    if (found == nullptr)
        qFatal("no control %s", name.c_str());
    return *found;
}

inline void Click(QWidget& window, const std::string& name) {
    auto& control = Find<QWidget>(window, name);
    // Where an option button, a check box and a button alike take a click.
    QTest::mouseClick(&control, Qt::LeftButton, {}, QPoint(10, control.height() / 2));
}

/// The text of a label, button or frame and its tool tip, as "text|tool tip".
inline std::string Wording(QWidget& window, const std::string& name) {
    const auto& control = Find<QWidget>(window, name);
    const QVariant title = control.property("title");
    const QString text = title.isValid() ? title.toString() : control.property("text").toString();
    return (text + "|" + control.toolTip()).toStdString();
}

/// The name of the control that has the focus.
inline std::string Focused(const QDialog& window) {
    return window.focusWidget() == nullptr ? "" : window.focusWidget()->objectName().toStdString();
}

/// Types keys into whatever has the focus.
inline void Type(const QString& text) {
    QTest::keyClicks(QApplication::focusWidget(), text);
}
inline void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

} // namespace orvane::fakes
