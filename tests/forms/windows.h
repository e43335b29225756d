// Windows on a desktop made of fakes, driven as their user does.
#pragma once

#include "fakes/desktop.h"
#include "fakes/qt_application.h"
#include "fakes/settings_text.h"
#include "forms/flex_grid_widget.h"
#include "forms/line_box.h"
#include "forms/main_form.h"

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <QTimer>

#include <fstream>
#include <tuple>

namespace orvane {

using namespace fakes;
using namespace std::string_literals;

template <class Control = QWidget>
Control& Find(QObject& window, const std::string& name) {
    auto* found = window.findChild<Control*>(QString::fromStdString(name));
    if (found == nullptr)
        qFatal("no control %s", name.c_str());
    return *found;
}

/// The texts of all controls, "name: text|tool tip|name for assistive programs". Each has room for its text.
inline std::string Wordings(QWidget& window) {
    QStringList all(window.windowTitle() + (window.isModal() ? ", modal" : ""));
    for (QWidget* control : window.findChildren<QWidget*>()) {
        const QVariant title = control->property("title");
        QString text = (title.isValid() ? title : control->property("text")).toString();
        if (const auto* label = qobject_cast<QLabel*>(control)) {
            EXPECT_LE(label->heightForWidth(label->width()), label->height()) << text.toStdString();
        }
        if (const auto* menu = qobject_cast<QMenu*>(control))
            for (const QAction* item : menu->actions())
                text += ", " + (item->isSeparator() ? "-" : item->text()) +
                        (item->isEnabled() ? "" : " (off)") + (item->isChecked() ? " (x)" : "");
        if (const auto* tabs = qobject_cast<QTabBar*>(control))
            for (int tab = 0; tab < tabs->count(); ++tab)
                text += tabs->tabText(tab) + " (" + tabs->tabToolTip(tab) + ") ";
        const QString names = control->toolTip() + "|" + control->accessibleName();
        const bool ownedByToolkit =
            control->objectName().startsWith("qt_") || qobject_cast<QTabBar*>(control->parent()) != nullptr;
        if (!ownedByToolkit && (text + names).size() > 1)
            all += control->objectName() + ": " + text + "|" + names;
    }
    return all.join("; ").simplified().toStdString();
}

/// The content of a file of this folder, which tells all wordings of a window in lines of any length.
inline std::string Told(const std::string& file) {
    std::ifstream text(WINDOWS "/" + file);
    return QString::fromStdString({std::istreambuf_iterator<char>(text), {}}).simplified().toStdString();
}

inline std::string Focused(const QWidget& window) {
    return window.focusWidget() == nullptr ? "" : window.focusWidget()->objectName().toStdString();
}
/// Types into whatever has the focus.
inline void Type(const QString& text) {
    QTest::keyClicks(QApplication::focusWidget(), text);
}
inline void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}
inline void HoldEnterDown() {
    QTest::simulateEvent(QApplication::focusWidget(), true, Qt::Key_Return, {}, "\r", true);
}
inline void Click(QWidget& window, const std::string& name) {
    auto& control = Find(window, name);
    // Where an option button, a check box and a button alike take a click.
    QTest::mouseClick(&control, Qt::LeftButton, {}, QPoint(10, control.height() / 2));
}
/// The controls at which the Tab key stops, from the one that has the focus.
inline std::string TabStops(QWidget& window) {
    std::string stops;
    const QWidget* const first = window.focusWidget();
    do {
        stops += (stops.empty() ? "" : " ") + Focused(window);
        Press(Qt::Key_Tab);
    } while (window.focusWidget() != first && stops.size() < 1000);
    return stops;
}

class WindowTest : public testing::Test {
  protected:
    WindowTest() { TestApplication(); }

    /// Runs the script in the modal window that `open` opens. A script that leaves it open fails the test.
    template <class Open>
    static void WhileOpen(Open&& open, const std::function<void(QDialog& window)>& script) {
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
        open();
        EXPECT_TRUE(ran);
    }
    /// The only message, "report" for the report of an error.
    std::string Message() {
        const std::string text = desktop.messages.Take();
        return text.starts_with("Error Description: ") ? "report" : text;
    }

    FakeDesktop desktop;
    ScriptedDialog dialog;
    ScriptedDialog outputDialog;
};

class MainFormTest : public WindowTest {
  protected:
    void Open(const SettingsText& saved) {
        desktop.files.Contents[SavedPath] = BytesOf(saved);
        Open();
    }
    void Open() {
        form = std::make_unique<MainForm>(desktop.platform, dialog, outputDialog);
        form->Open();
        BringToFront();
    }
    /// As a desktop does at the opening and when a window in front has closed.
    void BringToFront() {
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }
    FlexGridWidget& Grid() { return Find<FlexGridWidget>(*form, "GroupNameGrid"); }
    LineBox& TempTxt() { return Find<LineBox>(*form, "TempTxt"); }
    LineBox& SampSizeTxt() { return Find<LineBox>(*form, "SampSizeTxt"); }
    QScrollBar& Bar() { return Find<QScrollBar>(*form, "nogHsb"); }
    void Choose(const std::string& item) { Find<QAction>(*form, item).trigger(); }
    /// Chooses an item whose prompt is answered, or cancelled. Returns the only message.
    std::string Choose(const std::string& item, const std::optional<std::string>& answer) {
        dialog.Answers = {answer};
        Choose(item);
        EXPECT_EQ(desktop.files.Open, 0);
        return Message();
    }
    std::string Load(const std::string& bytes) {
        desktop.files.Contents["/l.stg"] = bytes;
        return Choose("mnuFile_0", "/l.stg");
    }
    /// What "Save Settings" writes.
    std::string Saved() {
        EXPECT_EQ(Choose("mnuFile_1", "/s.stg"), "Settings were saved successfully!");
        return desktop.files.Contents["/s.stg"];
    }
    void TypeSampleSize(const QString& text) {
        SampSizeTxt().TakeFocus();
        Press(Qt::Key_Delete);
        Type(text);
    }
    /// Runs a command and, in the options window that it opens, a script or a press of a button.
    void WithOptions(const std::function<void()>& command, const std::function<void(QDialog&)>& script) {
        BringToFront();
        WhileOpen(command, script);
        BringToFront();
    }
    void WithOptions(const std::function<void()>& command, const std::string& button) {
        WithOptions(command, [&](QDialog& window) { Click(window, button); });
    }

    const std::string SavedPath = "/program/saved.stg";
    const std::string Loaded = "Settings were loaded successfully!";
    std::unique_ptr<MainForm> form;
};

} // namespace orvane
