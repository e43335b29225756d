#include "platform/qt/qt_common_dialog.h"

#include "fakes/qt_application.h"
#include "platform/failure.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace orvane {
namespace {

class QtCommonDialogTest : public testing::Test {
  protected:
    using Button = QDialogButtonBox::StandardButton;

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
    static void Choose(QFileDialog& dialog, Button button) {
        dialog.findChild<QDialogButtonBox*>()->button(button)->click();
    }
    static void TypeAndChoose(QFileDialog& dialog, const QString& name, Button button) {
        NameOf(dialog).selectAll();
        NameOf(dialog).insert(name);
        Choose(dialog, button);
    }
    /// Runs `use` on the prompt that the next modal run shows.
    static void InPrompt(std::function<void(QFileDialog&)> use) {
        QTimer::singleShot(0, [use = std::move(use)] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            use(*dialog);
        });
    }
    /// Answers the question that comes behind the prompt, and keeps it.
    void Answer(
        QMessageBox::StandardButton answer, std::function<void()> then = [] {}) {
        QTimer::singleShot(0, [this, answer, then = std::move(then)] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            questions += box->text();
            box->button(answer)->click();
            then();
        });
    }
    static void ExpectCancelled(const std::function<void()>& show) {
        try {
            show();
            ADD_FAILURE();
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number, failure_number::Cancelled);
            EXPECT_EQ(failure.Description, "Cancel was selected.");
        }
    }

    QTemporaryDir home;
    PromptFolder start;
    QtInputDrain input;
    QtEnding ending;
    QtCommonDialog prompt{start, input, ending};
    QStringList questions;
};

TEST_F(QtCommonDialogTest, StartsInTheDocumentsOrAtHome) {
    ::setenv("HOME", home.path().toLocal8Bit(), 1);
    ::unsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(PromptFolder().Path, home.path());
    EXPECT_TRUE(QDir(home.path()).mkdir("Documents"));
    EXPECT_EQ(PromptFolder().Path, home.filePath("Documents"));
}

TEST_F(QtCommonDialogTest, GivesATypedNameTheExtensionOfTheSelectedEntry) {
    struct Row {
        std::string filter;
        QString typed;
        Qt::Key entry;
        QString chosen;
    };
    const std::string filter = prompt.Filter;
    const std::vector<Row> rows{
        {filter, "new", Qt::Key_Home, "new.htm"},
        {filter, "Größe $x", Qt::Key_End, "Größe $x.txt"},
        {filter, "new.html", Qt::Key_End, "new.html"},
        {filter, "new.", Qt::Key_Home, "new."},
        {"All files|*.*", "new", Qt::Key_Home, "new.htm"},
        {"S|*.stg;*.set", "new", Qt::Key_Home, "new.stg"},
        {"", "new", Qt::Key_Home, "new.htm"},
    };
    for (const Row& row : rows) {
        InPrompt([&](QFileDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Save Orvane File As..."));
            EXPECT_EQ(NameOf(dialog).text(), QStringLiteral("output"));
            auto* const entries = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
            EXPECT_LE(entries->currentIndex(), 0);
            QTest::keyClick(entries, row.entry);
            TypeAndChoose(dialog, row.typed, QDialogButtonBox::Save);
        });
        prompt.Filter = row.filter;
        prompt.FileName = "output";
        prompt.ShowSave();
        EXPECT_EQ(prompt.FileName, PathOf(row.chosen));
    }
}

TEST_F(QtCommonDialogTest, AsksBeforeAFileIsReplacedUnderItsFullName) {
    const auto sayYes = [&](QFileDialog& dialog) {
        EXPECT_EQ(NameOf(dialog).text(), "list.htm");
        EXPECT_EQ(dialog.focusWidget(), &NameOf(dialog));
        Answer(QMessageBox::Yes);
        Choose(dialog, QDialogButtonBox::Save);
    };
    InPrompt([&](QFileDialog& dialog) {
        Answer(QMessageBox::No, [&] { InPrompt(sayYes); });
        TypeAndChoose(dialog, "list", QDialogButtonBox::Save);
    });
    prompt.ShowSave();
    EXPECT_EQ(prompt.FileName, PathOf("list.htm"));
    ASSERT_EQ(questions.size(), 2);
    InPrompt([&](QFileDialog& dialog) {
        QTest::keyClick(dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo")), Qt::Key_End);
        Answer(QMessageBox::Yes);
        TypeAndChoose(dialog, "other", QDialogButtonBox::Save);
    });
    prompt.ShowSave();
    ASSERT_EQ(questions.size(), 3);
    EXPECT_TRUE(questions.at(2).contains(QStringLiteral("other.txt")));
    questions.removeLast();
    prompt.FileName = PathOf("list.htm");
    EXPECT_TRUE(questions.at(0).contains(QStringLiteral("list.htm"))) << questions.at(0).toStdString();

    prompt.Flags = 0;
    InPrompt(
        [](QFileDialog& dialog) { Choose(dialog, QDialogButtonBox::Save); }); // offers the path of before
    prompt.ShowSave();
    EXPECT_EQ(prompt.FileName, PathOf("list.htm"));
    EXPECT_EQ(questions.size(), 2);
}

TEST_F(QtCommonDialogTest, OpensExistingFilesUnderTheNameAsTyped) {
    for (const char* const name : {"list", "other.txt"}) {
        InPrompt([&](QFileDialog& dialog) {
            EXPECT_EQ(NameOf(dialog).text(), QStringLiteral("output"));
            Choose(dialog, QDialogButtonBox::Open); // there is no such file
            EXPECT_TRUE(dialog.isVisible());
            TypeAndChoose(dialog, name, QDialogButtonBox::Open);
        });
        prompt.FileName = "output";
        prompt.ShowOpen();
        EXPECT_EQ(prompt.FileName, PathOf(name));
    }
}

TEST_F(QtCommonDialogTest, CountsAsCancelledWhenTheProgramEnds) {
    InPrompt([&](QFileDialog&) { ending.Begin(); });
    for (int opening = 1; opening <= 2; ++opening)
        ExpectCancelled([&] { prompt.ShowSave(); });
}

TEST_F(QtCommonDialogTest, CancelLeavesTheNameAndEveryPromptStartsWhereTheLastEnded) {
    QtCommonDialog other(start, input, ending);
    const auto expectStart = [&](QtCommonDialog& next, const QString& folder, const QString& name) {
        const std::string before = next.FileName;
        InPrompt([=](QFileDialog& dialog) {
            EXPECT_EQ(dialog.directory().absolutePath(), folder);
            EXPECT_EQ(NameOf(dialog).text(), name);
            TypeAndChoose(dialog, "typed", QDialogButtonBox::Cancel);
        });
        ExpectCancelled([&] { next.ShowSave(); });
        EXPECT_EQ(next.FileName, before);
    };
    InPrompt([](QFileDialog& dialog) { TypeAndChoose(dialog, "below/x", QDialogButtonBox::Save); });
    prompt.ShowSave();
    EXPECT_EQ(prompt.FileName, PathOf("below/x.htm"));
    expectStart(other, home.filePath("below"), "");
    expectStart(prompt, home.filePath("below"), "x.htm"); // the path of before
    prompt.FileName = "settings";
    expectStart(prompt, home.filePath("below"), "settings");

    InPrompt([&](QFileDialog& dialog) {
        dialog.setDirectory(home.path());
        Choose(dialog, QDialogButtonBox::Cancel);
    });
    ExpectCancelled([&] { other.ShowOpen(); });
    expectStart(prompt, home.path(), "settings");
    prompt.FileName = PathOf("gone/x.txt");
    expectStart(prompt, home.path(), "x.txt");
}

} // namespace
} // namespace orvane
