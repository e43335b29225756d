#include "forms/output_form.h"

#include "fakes/desktop.h"
#include "window_driver.h"

#include <gtest/gtest.h>

#include <QPlainTextEdit>

#include <map>
#include <string>
#include <vector>

namespace orvane {
namespace {

using namespace fakes;

class OutputFormTest : public testing::Test {
  protected:
    OutputFormTest() {
        desktop.files.Contents[path] = list;
        desktop.pointer.ShowBusy();
        form.OutputFileName(path, true);
    }

    void Open(const Script& script) { WhileOpen(form, script); }
    static std::string Text(QDialog& window) {
        return Find<QPlainTextEdit>(window, "OutputTxt").toPlainText().toStdString();
    }

    const std::string path = "/program/0A1B2C3D.tmp";
    const std::string list = "001: Group 1        002: Gr\xFCppe\r\n==========\r\n";
    FakeDesktop desktop;
    ScriptedDialog CMDialog;
    OutputForm form{desktop.platform, CMDialog};
};

TEST_F(OutputFormTest, ShowsTheFileAndDeletesItAtTheCloseIfItIsTemporary) {
    struct Row {
        Script close;
        bool temporary;
    };
    const Script button = [](QDialog& window) { Click(window, "CloseCmd"); };
    const Script frame = [](QDialog& window) { window.close(); };
    for (const Row& row : {Row{button, true}, Row{frame, true}, Row{button, false}, Row{frame, false}}) {
        desktop.files.Contents[path] = list;
        form.OutputFileName(path, row.temporary);
        Open([&](QDialog& window) {
            EXPECT_EQ(window.windowTitle(), "Output");
            EXPECT_EQ(window.size(), QSize(697, 447));
            EXPECT_EQ(Text(window), "001: Group 1        002: Gr\u00FCppe\n==========\n");
            EXPECT_FALSE(desktop.pointer.Busy);
            EXPECT_TRUE(window.windowFlags() & Qt::WindowMaximizeButtonHint);
            const auto& box = Find<QPlainTextEdit>(window, "OutputTxt");
            EXPECT_EQ(box.lineWrapMode(), QPlainTextEdit::NoWrap); // else no column lines up
            EXPECT_EQ(box.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
            EXPECT_EQ(box.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
            window.resize(900, 700);
            QTest::qWait(1);
            EXPECT_EQ(Find<QWidget>(window, "CloseCmd").geometry(), QRect(384, 400, 81, 33));
            EXPECT_EQ(Find<QWidget>(window, "OutputTxt").geometry(), QRect(0, 0, 697, 385));
            row.close(window);
        });
        EXPECT_EQ(desktop.files.Contents.contains(path), !row.temporary);
        EXPECT_EQ(desktop.files.Open, 0);
    }
}

TEST_F(OutputFormTest, SaveCopiesTheFileAndNotWhatWasTyped) {
    CMDialog.Answers = {"/home/a.htm", "/home/a.txt", "/home/b.TXT", std::nullopt};
    Open([&](QDialog& window) {
        EXPECT_EQ(Focused(window), "OutputTxt");
        Type("typed");
        Click(window, "SaveCmd");
        EXPECT_EQ(desktop.messages.Take(), "Only text files allowed!");
        Click(window, "SaveCmd");
        Click(window, "SaveCmd");
        Click(window, "SaveCmd"); // cancelled, and nobody is told
        desktop.files.Fails = {"Copy"};
        CMDialog.Answers = {"/home/c.txt"};
        Click(window, "SaveCmd");
        EXPECT_NE(desktop.messages.Take().find("cannot Copy"), std::string::npos);
        ASSERT_TRUE(window.isVisible());
        window.close();
    });
    EXPECT_EQ(desktop.files.Contents,
              (std::map<std::string, std::string>{{"/home/a.txt", list}, {"/home/b.TXT", list}}));
    for (const std::string& shown : CMDialog.Shown)
        EXPECT_EQ(shown, "save 2, output|Save to File As...|Text file (*.txt)|*.txt");
    EXPECT_EQ(CMDialog.DefaultExt, "htm");
}

TEST_F(OutputFormTest, KeysOfTheText) {
    Open([&](QDialog& window) {
        const std::string before = Text(window);
        Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Text(window), before);
        Press(Qt::Key_Return);
        EXPECT_EQ(Text(window), "\n" + before);
        for (const char* next : {"CloseCmd", "SaveCmd", "OutputTxt"}) {
            Press(Qt::Key_Escape);
            ASSERT_TRUE(window.isVisible());
            Press(Qt::Key_Tab);
            EXPECT_EQ(Focused(window), next);
        }
        Press(Qt::Key_Tab);
        Press(Qt::Key_Return);
    });
    EXPECT_FALSE(desktop.files.Contents.contains(path));
}

TEST_F(OutputFormTest, TakesAnyBytesAndManyLines) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    for (int line = 0; line < 100'000; ++line)
        bytes += "0001: Group 1       0002: Group 2\n";
    desktop.files.Contents[path] = bytes;
    Open([&](QDialog& window) {
        EXPECT_GT(Find<QPlainTextEdit>(window, "OutputTxt").blockCount(), 100'000);
        window.close();
    });
}

} // namespace
} // namespace orvane
