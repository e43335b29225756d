// Windows on a desktop made of fakes, driven as their user does.
#pragma once

#include "fakes/desktop.h"
#include "fakes/qt_application.h"
#include "fakes/settings_text.h"
#include "forms/flex_grid_widget.h"
#include "forms/line_box.h"
#include "forms/main_form.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

namespace orvane {

using namespace fakes;
using namespace std::string_literals;

/// What Message tells in place of the text of an error report.
inline constexpr const char* ErrorReport = "the report of an error";

template <class Control = QWidget>
Control& Find(QObject& window, const std::string& name) {
    auto* found = window.findChild<Control*>(QString::fromStdString(name));
    if (found == nullptr)
        qFatal("no control %s", name.c_str());
    return *found;
}

inline std::string TextOf(QObject& window, const std::string& control) {
    return Find(window, control).property("text").toString().toStdString();
}
/// The name of the control that has the focus.
inline std::string Focused(const QWidget& window) {
    return window.focusWidget() == nullptr ? "" : window.focusWidget()->objectName().toStdString();
}
/// What is selected in the text box that has the focus; "" in any other control.
inline std::string SelectedText(const QWidget& window) {
    const auto* box = qobject_cast<QLineEdit*>(window.focusWidget());
    return box == nullptr ? "" : box->selectedText().toStdString();
}

/// Types into whatever has the focus.
inline void Type(const std::string& text) {
    QTest::keyClicks(QApplication::focusWidget(), QString::fromStdString(text));
}
inline void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}
inline void Click(QWidget& window, const std::string& name) {
    auto& control = Find(window, name);
    // Where an option button, a check box and a button alike take a click.
    QTest::mouseClick(&control, Qt::LeftButton, {}, QPoint(10, control.height() / 2));
}
/// Replaces the text of a box.
inline void Fill(QWidget& window, const std::string& name, const std::string& text) {
    Find<LineBox>(window, name).TakeFocus();
    Press(Qt::Key_Delete);
    Type(text);
}
/// The controls at which the Tab key stops, from the one that has the focus.
inline Texts TabStops(QWidget& window) {
    Texts stops;
    const QWidget* const first = window.focusWidget();
    do {
        stops.push_back(Focused(window));
        Press(Qt::Key_Tab);
    } while (window.focusWidget() != first && stops.size() < 100);
    return stops;
}

/// Every label and button has room for its text, and every control that takes the focus has a name for
/// assistive programs.
inline void ExpectNothingClippedOrUnnamed(const QWidget& window) {
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        const std::string name = label->objectName().toStdString();
        if (label->wordWrap())
            EXPECT_LE(label->heightForWidth(label->width()), label->height()) << name;
        else
            EXPECT_LE(label->sizeHint().width(), label->width()) << name;
    }
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>())
        EXPECT_LE(button->fontMetrics().horizontalAdvance(button->text()), button->width())
            << button->objectName().toStdString();
    for (QWidget* control : window.findChildren<QWidget*>()) {
        const std::string name = control->objectName().toStdString();
        const bool ownedByToolkit = name.empty() || name.starts_with("qt_");
        if (ownedByToolkit || control->focusPolicy() == Qt::NoFocus)
            continue;
        const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(control);
        EXPECT_NE(told->text(QAccessible::Name).toStdString(), "") << name;
    }
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
        EXPECT_TRUE(ran) << "no window opened";
    }
    /// The only unread message, "" when there is none.
    std::string Message() {
        const std::string text = desktop.messages.Take();
        return text.starts_with("Error Description: ") ? ErrorReport : text;
    }

    FakeDesktop desktop;
    ScriptedDialog dialog;
    ScriptedDialog outputDialog;
};

class MainFormTest : public WindowTest {
  protected:
    /// Opens the main window after a last run with these settings.
    void Open(const SettingsText& saved) {
        desktop.files.Contents[SavedPath] = BytesOf(saved);
        OpenWithWhatIsSaved();
    }
    void OpenWithWhatIsSaved() {
        form = MakeMainForm(desktop.platform, dialog, outputDialog);
        QCoreApplication::processEvents();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }
    FlexGridWidget& Grid() { return Find<FlexGridWidget>(*form, "GroupNameGrid"); }
    LineBox& TempTxt() { return Find<LineBox>(*form, "TempTxt"); }
    QScrollBar& Bar() { return Find<QScrollBar>(*form, "nogHsb"); }

    /// The names in the grid, of group 1 first.
    Texts Names() {
        Texts names;
        for (int group = 1; group < Grid().rowCount(); ++group)
            names.push_back(Grid().TextMatrix(static_cast<std::int16_t>(group), 1));
        return names;
    }
    void Choose(const std::string& item) { Find<QAction>(*form, item).trigger(); }
    /// Chooses an item and a file in its prompt. Returns the only message.
    std::string ChooseFile(const std::string& item, const std::string& path) {
        dialog.Answers = {path};
        Choose(item);
        EXPECT_EQ(desktop.files.Open, 0);
        return Message();
    }
    std::string Load(const std::string& bytes) {
        desktop.files.Contents["/load.stg"] = bytes;
        return ChooseFile("mnuFile_0", "/load.stg");
    }
    /// What "Save Settings" writes.
    std::string Saved() {
        EXPECT_EQ(ChooseFile("mnuFile_1", "/save.stg"), "Settings were saved successfully!");
        return desktop.files.Contents["/save.stg"];
    }

    const std::string SavedPath = "/program/saved.stg";
    const std::string Loaded = "Settings were loaded successfully!";
    std::unique_ptr<QMainWindow> form;
};

} // namespace orvane
