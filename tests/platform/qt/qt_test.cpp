// The parts of the desktop that the toolkit provides.
#include "fakes/desktop.h"
#include "fakes/qt_application.h"
#include "platform/qt/qt_clipboard.h"
#include "platform/qt/qt_common_dialog.h"
#include "platform/qt/qt_focus_mark.h"
#include "platform/qt/qt_message_box.h"
#include "platform/qt/qt_mouse_pointer.h"
#include "platform/qt/qt_second_press.h"

#include <QTest>
#include <QtWidgets>

#include <limits>

namespace orvane {
namespace {

TEST(QtClipboard, PutsTheCharactersOfABlockOnTheClipboardAndKeepsToItsBlocks) {
    TestApplication();
    QClipboard& clipboard = *QGuiApplication::clipboard();
    clipboard.setText("before");
    QtClipboard board(fakes::WesternPage());
    const GlobalHandle small = board.GlobalAlloc(66, 5);
    const GlobalHandle block = board.GlobalAlloc(66, 20);
    board.lstrcpy(board.GlobalLock(small), "longer than the block");
    board.lstrcpy(board.GlobalLock(block), "Gr\xF6\xDF"
                                           "e \x80\r\n==\r\n");
    EXPECT_STREQ(board.GlobalLock(small), "long");
    EXPECT_EQ(board.GlobalUnlock(small), 1);
    EXPECT_EQ(board.GlobalUnlock(block), 0);
    EXPECT_EQ(board.GlobalAlloc(66, std::numeric_limits<std::size_t>::max()), 0U);
    EXPECT_EQ(board.SetClipboardData(1, block), 0U); // not open
    EXPECT_EQ(clipboard.text(), "before");
    EXPECT_NE(board.OpenClipboard(), 0);
    board.EmptyClipboard();
    EXPECT_EQ(clipboard.text(), "");
    EXPECT_EQ(board.SetClipboardData(1, block), block);
    EXPECT_NE(board.CloseClipboard(), 0);
    EXPECT_EQ(clipboard.text(), "Größe €\r\n==\r\n");
    board.GlobalFree(small);
    for (const GlobalHandle gone : {small, block})
        EXPECT_EQ(board.GlobalLock(gone), nullptr);
}

class QtCommonDialogTest : public testing::Test {
  protected:
    QtCommonDialogTest() {
        TestApplication();
        start.Path = home.path();
        prompt.Filter = "htm file (*.htm)|*.htm|Text file (*.txt)|*.txt";
        prompt.DialogTitle = "Save Orvane File As...";
        prompt.FileName = "output";
        prompt.Flags = CommonDialog::OverwritePrompt;
        for (const char* const name : {"list", "list.htm", "other.txt"})
            EXPECT_TRUE(QFile(home.filePath(name)).open(QIODevice::WriteOnly));
        EXPECT_TRUE(QDir(home.path()).mkdir("below"));
    }

    [[nodiscard]] std::string PathOf(const QString& name) const { return home.filePath(name).toStdString(); }
    static QLineEdit& NameOf(QFileDialog& dialog) { return *dialog.findChild<QLineEdit*>(); }
    /// Goes to the first or last filter entry, replaces the name unless it is null, and presses a button.
    static void Fill(QFileDialog& dialog, const QString& name, QDialogButtonBox::StandardButton button,
                     Qt::Key entry = Qt::Key_Home) {
        QTest::keyClick(dialog.findChild<QComboBox*>("fileTypeCombo"), entry);
        NameOf(dialog).setText(name.isNull() ? NameOf(dialog).text() : name);
        dialog.findChild<QDialogButtonBox*>()->button(button)->click();
    }
    /// Runs `use` on the window that the next modal run shows.
    template <class Window>
    static void InNext(std::function<void(Window&)> use) {
        QTimer::singleShot(0, [use = std::move(use)] {
            auto* const window = qobject_cast<Window*>(QApplication::activeModalWidget());
            ASSERT_NE(window, nullptr);
            use(*window);
        });
    }
    /// Answers the overwrite question, which must name `file`.
    void Answer(
        QMessageBox::StandardButton answer, const QString& file, std::function<void()> then = [] {}) {
        InNext<QMessageBox>([this, answer, file, then = std::move(then)](QMessageBox& box) {
            EXPECT_TRUE(box.text().contains(home.filePath(file))) << box.text().toStdString();
            ++questions;
            box.button(answer)->click();
            then();
        });
    }

    QTemporaryDir home;
    PromptFolder start;
    QtInputDrain input;
    QtEnding ending;
    QtCommonDialog prompt{start, input, ending};
    int questions = 0;
};

TEST_F(QtCommonDialogTest, StartsInTheDocumentsOrAtHome) {
    ::setenv("HOME", home.path().toLocal8Bit(), 1);
    ::unsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(PromptFolder().Path, home.path());
    EXPECT_TRUE(QDir(home.path()).mkdir("Documents"));
    EXPECT_EQ(PromptFolder().Path, home.filePath("Documents"));
}

TEST_F(QtCommonDialogTest, GivesATypedNameTheExtensionOfTheSelectedEntry) {
    using Row = std::array<std::string, 3>;
    const std::string filter = prompt.Filter;
    for (const auto& [entries, typed, chosen] :
         {Row{filter, "new", "new.htm"}, Row{filter, "Größe $x", "Größe $x.txt"},
          Row{filter, "new.html", "new.html"}, Row{filter, "new.", "new."},
          Row{"All files|*.*", "new", "new.htm"}, Row{"S|*.stg;*.set", "new", "new.stg"},
          Row{"", "new", "new.htm"}}) {
        InNext<QFileDialog>([&, &typed = typed, &chosen = chosen](QFileDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Save Orvane File As...");
            EXPECT_EQ(NameOf(dialog).text(), "output");
            EXPECT_LE(dialog.findChild<QComboBox*>("fileTypeCombo")->currentIndex(), 0);
            Fill(dialog, typed.c_str(), QDialogButtonBox::Save,
                 chosen.ends_with("txt") ? Qt::Key_End : Qt::Key_Home);
        });
        prompt.Filter = entries;
        prompt.FileName = "output";
        prompt.ShowSave();
        EXPECT_EQ(prompt.FileName, PathOf(chosen.c_str()));
    }
}

TEST_F(QtCommonDialogTest, AsksBeforeAFileIsReplacedUnderItsFullName) {
    const auto takeOther = [this](QFileDialog& dialog) {
        EXPECT_EQ(NameOf(dialog).text(), "list.htm");
        EXPECT_EQ(dialog.focusWidget(), &NameOf(dialog));
        Answer(QMessageBox::Yes, "other.txt");
        Fill(dialog, "other", QDialogButtonBox::Save, Qt::Key_End);
    };
    InNext<QFileDialog>([&](QFileDialog& dialog) {
        Answer(QMessageBox::No, "list.htm", [&] { InNext<QFileDialog>(takeOther); });
        Fill(dialog, "list", QDialogButtonBox::Save);
    });
    prompt.ShowSave();
    EXPECT_EQ(prompt.FileName, PathOf("other.txt"));
    EXPECT_EQ(questions, 2);
    prompt.Flags = 0;
    InNext<QFileDialog>([](QFileDialog& dialog) { Fill(dialog, {}, QDialogButtonBox::Save); });
    prompt.ShowSave(); // offers the path of before
    EXPECT_EQ(prompt.FileName, PathOf("other.txt"));
}

TEST_F(QtCommonDialogTest, OpensExistingFilesUnderTheNameAsTyped) {
    for (const char* const name : {"list", "other.txt"}) {
        InNext<QFileDialog>([name](QFileDialog& dialog) {
            Fill(dialog, {}, QDialogButtonBox::Open); // there is no file "output"
            EXPECT_TRUE(dialog.isVisible());
            const QHeaderView& columns = *dialog.findChild<QTreeView*>("treeView")->header();
            EXPECT_EQ(columns.sectionResizeMode(0), QHeaderView::Stretch);
            EXPECT_EQ(columns.sectionResizeMode(columns.count() - 1), QHeaderView::ResizeToContents);
            Fill(dialog, name, QDialogButtonBox::Open);
        });
        prompt.FileName = "output";
        prompt.ShowOpen();
        EXPECT_EQ(prompt.FileName, PathOf(name));
    }
}

TEST_F(QtCommonDialogTest, CancelLeavesTheNameAndEveryPromptStartsWhereTheLastEnded) {
    const auto expectStart = [&](QtCommonDialog& next, const QString& folder, const QString& name) {
        const std::string before = next.FileName;
        InNext<QFileDialog>([=](QFileDialog& dialog) {
            EXPECT_EQ(dialog.directory().absolutePath(), folder);
            EXPECT_EQ(NameOf(dialog).text(), name);
            Fill(dialog, "typed", QDialogButtonBox::Cancel);
        });
        const Failure failure = fakes::FailureOf([&] { next.ShowSave(); });
        EXPECT_EQ(failure.Number, failure_number::Cancelled);
        EXPECT_EQ(failure.Description, "Cancel was selected.");
        EXPECT_EQ(next.FileName, before);
    };
    QtCommonDialog other(start, input, ending);
    InNext<QFileDialog>([](QFileDialog& dialog) { Fill(dialog, "below/x", QDialogButtonBox::Save); });
    prompt.ShowSave();
    EXPECT_EQ(prompt.FileName, PathOf("below/x.htm"));
    expectStart(other, home.filePath("below"), "");
    expectStart(prompt, home.filePath("below"), "x.htm");
    prompt.FileName = PathOf("gone/x.txt");
    expectStart(prompt, home.filePath("below"), "x.txt");
    InNext<QFileDialog>([&](QFileDialog& dialog) {
        dialog.setDirectory(home.path());
        ending.Begin(); // counts as a cancel, as does every later prompt
    });
    for (int opening = 1; opening <= 2; ++opening)
        EXPECT_EQ(fakes::FailureOf([&] { other.ShowOpen(); }).Number, failure_number::Cancelled);
    EXPECT_EQ(start.Path, home.path());
}

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
    /// Posts a double click, a blank, a turn of the wheel and a close.
    void PostInput() {
        const QPointF middle = window.rect().center();
        const QPointF there = window.mapToGlobal(middle);
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease})
            QCoreApplication::postEvent(&window, new QMouseEvent(type, middle, there, Qt::LeftButton,
                                                                 Qt::LeftButton, Qt::NoModifier));
        PostBlank(window);
        QCoreApplication::postEvent(&window, new QWheelEvent(middle, there, {}, {0, 120}, Qt::NoButton,
                                                             Qt::NoModifier, Qt::NoScrollPhase, false));
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

TEST_F(QtPointerAndMessage, DropTheInputOfTheBusyTime) {
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
    pointer.ShowBusy();
    PostInput();
    QTimer::singleShot(0, [this] { pointer.ShowNormal(); }); // a call from inside ends at once
    InBox([this](QMessageBox&) { EXPECT_EQ(Handled(), 0); });
    messages.Show("busy");
    EXPECT_EQ(Handled(), 0);
    bool answered = false;
    pointer.ShowBusy();
    QTimer::singleShot(0, [&] {
        messages.Show("inside");
        answered = true;
    });
    InBox([](QMessageBox&) {});
    pointer.ShowNormal();
    EXPECT_TRUE(answered);
    PostInput();
    pointer.ShowNormal(); // of a program that is not busy
    EXPECT_EQ(Handled(), 4);
    QMenu menu;
    menu.popup(QPoint());
    pointer.ShowBusy();
    PostBlank(window);
    pointer.ShowNormal();
    EXPECT_EQ(Handled(), 5) << "the keys of an open menu";
}

TEST_F(QtPointerAndMessage, NoMessageWaitsForAnAnswerWhenTheProgramEnds) {
    testing::internal::CaptureStderr();
    QTimer::singleShot(0, [this] { ending.Begin(); });
    messages.Show("open");
    messages.Show("later");
    EXPECT_TRUE(testing::internal::GetCapturedStderr().ends_with("Orvane Software: later\n"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return window.closes > 1; }));
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

TEST_F(QtPointerAndMessage, ShowsTextCaptionAndIconAndKeepsLongTextsOnTheScreen) {
    const auto expectBox = [this](const char* text, const char* caption, QMessageBox::Icon icon) {
        InBox([=, this](QMessageBox& box) {
            EXPECT_EQ(box.text(), text);
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.windowTitle(), caption);
            EXPECT_EQ(box.icon(), icon);
            EXPECT_EQ(box.objectName(), "MessageBox");
            EXPECT_EQ(box.buttons().size(), 1);
            EXPECT_EQ(box.parentWidget(), &window);
        });
    };
    expectBox("<b>Größe</b> & more\nsecond\nthird", "Orvane Software", QMessageBox::NoIcon);
    messages.Show("<b>Größe</b> & more\r\nsecond\rthird");
    expectBox("Web Page not Opened", "URL Failed", QMessageBox::Warning);
    messages.ShowExclamation("Web Page not Opened", "URL Failed");
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
            EXPECT_FALSE(box.text().contains(QRegularExpression("[^\\s\u200B]{90}")));
        });
        messages.Show(text);
    }
}

TEST(QtSecondPress, OfADoubleClickCountsOnlyInTheSameWindow) {
    TestApplication();
    const QtSecondPress rule;
    QPushButton below;
    QPushButton above;
    int pressedBelow = 0;
    int pressedAbove = 0;
    below.setGeometry(0, 0, 400, 400);
    below.show();
    above.setGeometry(100, 100, 100, 100);
    above.show();
    QObject::connect(&below, &QPushButton::clicked, [&] { ++pressedBelow; });
    QObject::connect(&above, &QPushButton::clicked, &above, [&] { above.setVisible(++pressedAbove < 3); });
    const auto click = [](QWidget& window, int milliseconds) {
        const QPoint there(150, 150);
        for (const bool down : {true, false})
            qt_handleMouseEvent(window.windowHandle(), window.mapFromGlobal(there), there,
                                down ? Qt::LeftButton : Qt::NoButton, Qt::LeftButton,
                                down ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease, {},
                                milliseconds);
    };
    click(above, 20'000'000);
    click(above, 20'000'100);
    EXPECT_EQ(pressedAbove, 2);
    click(above, 30'000'000);
    EXPECT_FALSE(above.isVisible());
    click(below, 30'000'100);
    EXPECT_EQ(pressedBelow, 0);
    click(below, 40'000'000);
    EXPECT_EQ(pressedBelow, 1);
}

} // namespace
} // namespace orvane
