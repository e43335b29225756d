#include "platform/qt/qt_common_dialog.h"

#include "fakes/faults.h"
#include "modal_windows.h"

#include <QTest>
#include <QtWidgets>

namespace orvane {
namespace {

constexpr const char* ListFilter = "htm file (*.htm)|*.htm|Text file (*.txt)|*.txt";

/// Prompts that start in a folder with the files "list", "list.htm" and "other.txt" and the folder "below".
class Prompts : public ModalWindowsTest {
  protected:
    Prompts() {
        start.Path = home.path();
        prompt.Filter = ListFilter;
        prompt.Flags = CommonDialog::OverwritePrompt;
        for (const char* const name : {"list", "list.htm", "other.txt"})
            EXPECT_TRUE(QFile(home.filePath(name)).open(QIODevice::WriteOnly));
        EXPECT_TRUE(QDir(home.path()).mkdir("below"));
    }

    [[nodiscard]] std::string PathOf(const std::string& name) const {
        return home.filePath(QString::fromStdString(name)).toStdString();
    }
    static QLineEdit& NameBox(QFileDialog& dialog) { return *dialog.findChild<QLineEdit*>(); }
    static void PressButton(QFileDialog& dialog, QDialogButtonBox::StandardButton button) {
        dialog.findChild<QDialogButtonBox*>()->button(button)->click();
    }
    /// Answers the next save prompt with this name and the selected entry, the first or the last.
    void AnswerNext(const QString& name, Qt::Key firstOrLast = Qt::Key_Home) {
        InNext<QFileDialog>([name, firstOrLast](QFileDialog& dialog) {
            QTest::keyClick(dialog.findChild<QComboBox*>("fileTypeCombo"), firstOrLast);
            NameBox(dialog).setText(name);
            PressButton(dialog, QDialogButtonBox::Save);
        });
    }

    QTemporaryDir home;
    PromptFolder start;
    QtCommonDialog prompt{start, input, ending};
};

TEST_F(Prompts, GiveATypedNameTheExtensionOfTheSelectedEntry) {
    const auto chosen = [this](const QString& typed, Qt::Key entry = Qt::Key_Home) {
        AnswerNext(typed, entry);
        prompt.ShowSave();
        return QString::fromStdString(prompt.FileName).remove(home.path() + '/').toStdString();
    };
    EXPECT_EQ(chosen("new"), "new.htm");
    EXPECT_EQ(chosen("Größe $x", Qt::Key_End), "Größe $x.txt");
    EXPECT_EQ(chosen("new.html"), "new.html");
    EXPECT_EQ(chosen("new."), "new.");
    prompt.Filter = "All files|*.*";
    EXPECT_EQ(chosen("new"), "new.htm");
    prompt.Filter = "Settings|*.stg;*.set";
    EXPECT_EQ(chosen("new"), "new.stg");
    prompt.Filter = "";
    EXPECT_EQ(chosen("new"), "new.htm");
}

TEST_F(Prompts, AskWithItsFullNameBeforeAFileIsReplacedAndComeBackAfterANo) {
    AnswerNext("list");
    InNext<QMessageBox>([this](QMessageBox& question) {
        EXPECT_NE(question.text().toStdString().find(PathOf("list.htm") + " "), std::string::npos);
        question.button(QMessageBox::No)->click();
        AnswerNext("other.txt");
        InNext<QMessageBox>([](QMessageBox& second) { second.button(QMessageBox::Yes)->click(); });
    });
    prompt.ShowSave();
    EXPECT_EQ(prompt.FileName, PathOf("other.txt"));
}

TEST_F(Prompts, OpenAFileThatTheSelectedEntryHidesButNoneThatDoesNotExist) {
    InNext<QFileDialog>([](QFileDialog& dialog) {
        PressButton(dialog, QDialogButtonBox::Open);
        EXPECT_TRUE(dialog.isVisible()) << "there is no file \"output\"";
        NameBox(dialog).setText("other.txt");
        PressButton(dialog, QDialogButtonBox::Open);
    });
    prompt.FileName = "output";
    prompt.ShowOpen();
    EXPECT_EQ(prompt.FileName, PathOf("other.txt"));
}

TEST_F(Prompts, StartWhereTheLastOneEndedAndKeepTheirNameAtACancel) {
    AnswerNext("below/x");
    prompt.ShowSave();
    for (const std::string& offered : {std::string("y.txt"), PathOf("gone/y.txt")}) {
        InNext<QFileDialog>([this](QFileDialog& dialog) {
            EXPECT_EQ(dialog.directory().absolutePath(), home.filePath("below"));
            EXPECT_EQ(NameBox(dialog).text(), "y.txt");
            NameBox(dialog).setText("typed");
            PressButton(dialog, QDialogButtonBox::Cancel);
        });
        prompt.FileName = offered;
        EXPECT_EQ(fakes::FailureOf([this] { prompt.ShowSave(); }).Number, failure_number::Cancelled);
        EXPECT_EQ(prompt.FileName, offered);
    }
}

} // namespace
} // namespace orvane
