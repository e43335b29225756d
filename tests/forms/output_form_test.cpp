#include "forms/output_form.h"

#include "windows.h"

#include <QPlainTextEdit>

namespace orvane {
namespace {

struct ListWindow : WindowTest {
    ListWindow() {
        desktop.files.Contents[path] = list;
        form.OutputFileName(path, true);
    }
    void Open(const std::function<void(QDialog&)>& script) {
        WhileOpen([this] { form.ShowModal(); }, script);
    }
    static QPlainTextEdit& Box(QDialog& window) { return Find<QPlainTextEdit>(window, "OutputTxt"); }
    static std::string ShownText(QDialog& window) { return Box(window).toPlainText().toStdString(); }

    const std::string path = "/program/0A1B2C3D.tmp";
    const std::string list = "001: Group 1        002: Gr\xFCppe\r\n==========\r\n";
    OutputForm form{desktop.platform, dialog};
};

TEST_F(ListWindow, ShowsTheFileInUnbrokenLinesUnderTheNormalPointer) {
    desktop.pointer.ShowBusy();
    Open([this](QDialog& window) {
        EXPECT_EQ(ShownText(window), "001: Group 1        002: Gr\u00FCppe\n==========\n");
        EXPECT_FALSE(desktop.pointer.Busy);
        EXPECT_EQ(Box(window).lineWrapMode(), QPlainTextEdit::NoWrap);
        ExpectNothingClippedOrUnnamed(window);
        window.close();
    });
}

TEST_F(ListWindow, DeletesATemporaryFileAtTheClose) {
    Open([](QDialog& window) { Click(window, "CloseCmd"); });
    EXPECT_FALSE(desktop.files.Contents.contains(path));
}

TEST_F(ListWindow, StartsEveryLineAtTheLeftAlsoWithNamesWrittenFromRightToLeft) {
    Open([](QDialog& window) {
        Box(window).setPlainText("001: \u05D0\u05D1\u05D2");
        QTextCursor start = Box(window).textCursor();
        start.movePosition(QTextCursor::Start);
        EXPECT_LT(Box(window).cursorRect(start).x(), 10) << "the code";
        window.close();
    });
}

TEST_F(ListWindow, SavesTheFileAndIgnoresItsButtonsBehindThePrompt) {
    dialog.Answers = {"/home/a.txt"};
    Open([this](QDialog& window) {
        dialog.WhileShown = [&] {
            Click(window, "SaveCmd");
            Click(window, "CloseCmd");
            EXPECT_TRUE(window.isVisible());
        };
        Click(window, "SaveCmd");
        window.close();
    });
    EXPECT_EQ(desktop.files.Contents["/home/a.txt"], list);
    EXPECT_EQ(dialog.Shown, Texts{"save 2, output|Save to File As...|Text file (*.txt)|*.txt"});
}

TEST_F(ListWindow, TakesEnterAsALineOfTheTextAndStaysOpenAtEscape) {
    Open([](QDialog& window) {
        Press(Qt::Key_Return);
        EXPECT_TRUE(ShownText(window).starts_with("\n001"));
        EXPECT_EQ(TabStops(window), (Texts{"OutputTxt", "CloseCmd", "SaveCmd"}));
        Press(Qt::Key_Escape);
        EXPECT_TRUE(window.isVisible());
        window.close();
    });
}

TEST_F(ListWindow, RepaintsWhatItCoveredBeforeTheProgramGoesOn) {
    struct Painted : QWidget {
        void paintEvent(QPaintEvent* /*event*/) override { ++Times; }
        int Times = 0;
    } behind;
    behind.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&behind));
    Open([&](QDialog& window) {
        window.close();
        behind.Times = 0;
        behind.update();
    });
    EXPECT_EQ(behind.Times, 1);
}

} // namespace
} // namespace orvane
