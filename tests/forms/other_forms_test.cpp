// The window that shows a list, and the about box.

#include "forms/about_form.h"
#include "forms/output_form.h"
#include "windows.h"

#include <QPlainTextEdit>

namespace orvane {
namespace {

struct ListWindow : WindowTest {
    ListWindow() { Show(true); }
    void Show(bool temporary) {
        desktop.files.Contents[path] = list;
        form.OutputFileName(path, temporary);
    }
    void Open(const std::function<void(QDialog&)>& script) {
        WhileOpen([this] { form.ShowModal(); }, script);
    }
    static std::string Text(QDialog& window) {
        return Find<QPlainTextEdit>(window, "OutputTxt").toPlainText().toStdString();
    }

    const std::string path = "/program/0A1B2C3D.tmp";
    const std::string list = "001: Group 1        002: Gr\xFCppe\r\n==========\r\n";
    OutputForm form{desktop.platform, dialog};
};

struct PaintedWindow : QWidget {
    void paintEvent(QPaintEvent* /*event*/) override { ++Count; }
    int Count = 0;
};

TEST_F(ListWindow, ShowsTheFileAndDeletesItAtTheCloseIfItIsTemporary) {
    PaintedWindow behind;
    behind.show();
    for (const bool temporary : {true, false}) {
        Show(temporary);
        desktop.pointer.ShowBusy();
        int painted = 0;
        Open([&](QDialog& window) {
            EXPECT_EQ(Text(window), "001: Group 1        002: Gr\u00FCppe\n==========\n");
            EXPECT_FALSE(desktop.pointer.Busy);
            EXPECT_EQ(Wordings(window), Told("output_form.txt"));
            const auto& box = Find<QPlainTextEdit>(window, "OutputTxt");
            EXPECT_EQ(box.lineWrapMode(), QPlainTextEdit::NoWrap); // else no column lines up
            EXPECT_EQ(box.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
            painted = behind.Count;
            behind.update();
            temporary ? Click(window, "CloseCmd") : static_cast<void>(window.close());
        });
        EXPECT_GT(behind.Count, painted) << "what the window covered is painted before work goes on";
        EXPECT_EQ(desktop.files.Contents.contains(path), !temporary);
        EXPECT_EQ(desktop.files.Open, 0);
    }
}

TEST_F(ListWindow, SaveCopiesTheFileAndNotWhatWasTyped) {
    dialog.Answers = {"/home/a.htm", "/home/a.txt", std::nullopt};
    Open([&](QDialog& window) {
        Type("typed");
        Click(window, "SaveCmd");
        EXPECT_EQ(Message(), "Only text files allowed!");
        Click(window, "SaveCmd"); // cancelled, and nobody is told
        desktop.files.Fails = {"Copy"};
        dialog.Answers = {"/home/c.txt"};
        Click(window, "SaveCmd");
        EXPECT_EQ(Message(), "report");
        EXPECT_TRUE(window.isVisible());
        window.close();
    });
    EXPECT_EQ(desktop.files.Contents, (std::map<std::string, std::string>{{"/home/a.txt", list}}));
    EXPECT_EQ(dialog.Shown, Texts(4, "save 2, output|Save to File As...|Text file (*.txt)|*.txt"));
}

TEST_F(ListWindow, KeysOfTheText) {
    Open([&](QDialog& window) {
        const std::string before = Text(window);
        Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Text(window), before);
        Press(Qt::Key_Return);
        EXPECT_EQ(Text(window), "\n" + before);
        EXPECT_EQ(TabStops(window), "OutputTxt CloseCmd SaveCmd");
        for (const char* name : {"OutputTxt", "SaveCmd", "CloseCmd"}) {
            Find(window, name).setFocus();
            Press(Qt::Key_Escape);
            EXPECT_TRUE(window.isVisible());
        }
        Press(Qt::Key_Return);
    });
}

TEST_F(WindowTest, AboutBoxTellsWhatTheProgramIsAndItsKeysReachTheButtons) {
    AboutForm form(desktop.platform, nullptr);
    const std::string unavailable = "System Information Is Unavailable At This Time";
    WhileOpen([&] { form.ShowModal(); }, [](QDialog& /*window*/) { Press(Qt::Key_Escape); });
    WhileOpen([&] { form.ShowModal(); },
              [&](QDialog& window) {
                  EXPECT_EQ(Find<QLabel>(window, "picIcon").pixmap().size(), QSize(32, 32));
                  EXPECT_EQ(window.pos(), QPoint(156, 129));
                  EXPECT_EQ(Wordings(window), Told("about_form.txt"));
                  EXPECT_EQ(TabStops(window), "cmdOK cmdSysInfo");
                  Press(Qt::Key_Tab);
                  Press(Qt::Key_Return);
                  EXPECT_EQ(Message(), unavailable);
                  bool shown = false;
                  desktop.messages.WhileShown = [&] { shown = true; };
                  Press(Qt::Key_S, Qt::AltModifier);
                  EXPECT_TRUE(QTest::qWaitFor([&] { return shown; }));
                  EXPECT_EQ(Message(), unavailable);
                  EXPECT_TRUE(window.isVisible());
                  Click(window, "cmdOK");
              });
}

} // namespace
} // namespace orvane
