// The parts of the desktop that the toolkit provides.
#include "fakes/desktop.h"
#include "fakes/qt_application.h"
#include "platform/qt/qt_common_dialog.h"
#include "platform/qt/qt_message_box.h"

#include <QTest>
#include <QtWidgets>

namespace orvane {
namespace {

class QtWindowsTest : public testing::Test {
  protected:
    QtWindowsTest() {
        TestApplication();
        start.Path = home.path();
        prompt.Filter = "htm file (*.htm)|*.htm|Text file (*.txt)|*.txt";
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
    /// Runs `use` on the next modal window of its kind.
    template <class Window>
    void InNext(std::function<void(Window&)> use) {
        QTimer::singleShot(1, &context, [this, use = std::move(use)] {
            auto* const window = qobject_cast<Window*>(QApplication::activeModalWidget());
            window != nullptr ? use(*window) : InNext(use);
        });
    }

    QTemporaryDir home;
    PromptFolder start;
    QtInputDrain input;
    QtEnding ending;
    QtCommonDialog prompt{start, input, ending};
    QtMessageBox messages{input, ending};
    QObject context;
};

TEST_F(QtWindowsTest, ATypedNameGetsTheExtensionOfTheSelectedEntry) {
    using Row = std::array<std::string, 3>;
    const std::string filter = prompt.Filter;
    for (const auto& [entries, typed, chosen] :
         {Row{filter, "new", "new.htm"}, Row{filter, "Größe $x", "Größe $x.txt"},
          Row{filter, "new.html", "new.html"}, Row{filter, "new.", "new."},
          Row{"All files|*.*", "new", "new.htm"}, Row{"S|*.stg;*.set", "new", "new.stg"},
          Row{"", "new", "new.htm"}}) {
        InNext<QFileDialog>([&, &typed = typed, &chosen = chosen](QFileDialog& dialog) {
            Fill(dialog, typed.c_str(), QDialogButtonBox::Save,
                 chosen.ends_with("txt") ? Qt::Key_End : Qt::Key_Home);
        });
        prompt.Filter = entries;
        prompt.ShowSave();
        EXPECT_EQ(prompt.FileName, PathOf(chosen.c_str()));
    }
}

TEST_F(QtWindowsTest, AFileIsReplacedOnlyAfterAQuestionWithItsFullName) {
    InNext<QFileDialog>([this](QFileDialog& dialog) {
        InNext<QMessageBox>([this](QMessageBox& box) {
            EXPECT_TRUE(box.text().contains(home.filePath("list.htm"))) << box.text().toStdString();
            box.button(QMessageBox::No)->click();
            InNext<QFileDialog>([this](QFileDialog& again) {
                EXPECT_EQ(NameOf(again).text(), "list.htm");
                InNext<QMessageBox>([](QMessageBox& second) { second.button(QMessageBox::Yes)->click(); });
                Fill(again, "other", QDialogButtonBox::Save, Qt::Key_End);
            });
        });
        Fill(dialog, "list", QDialogButtonBox::Save);
    });
    for (int time = 1; time <= 2; ++time) {
        prompt.ShowSave();
        EXPECT_EQ(prompt.FileName, PathOf("other.txt"));
        prompt.Flags = 0; // the second time takes the offered path without a question
        InNext<QFileDialog>([](QFileDialog& dialog) { Fill(dialog, {}, QDialogButtonBox::Save); });
    }
}

TEST_F(QtWindowsTest, OpensExistingFilesUnderTheNameAsTyped) {
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

TEST_F(QtWindowsTest, CancelLeavesTheNameAndAPromptStartsWhereTheLastEnded) {
    InNext<QFileDialog>([](QFileDialog& dialog) { Fill(dialog, "below/x", QDialogButtonBox::Save); });
    prompt.ShowSave();
    for (const std::string& offered : {std::string(), PathOf("gone/x.txt")}) {
        InNext<QFileDialog>([&](QFileDialog& dialog) {
            EXPECT_EQ(dialog.directory().absolutePath(), home.filePath("below"));
            EXPECT_EQ(NameOf(dialog).text(), offered.empty() ? "" : "x.txt");
            Fill(dialog, "typed", QDialogButtonBox::Cancel);
        });
        prompt.FileName = offered;
        EXPECT_EQ(fakes::FailureOf([&] { prompt.ShowSave(); }).Number, failure_number::Cancelled);
        EXPECT_EQ(prompt.FileName, offered);
    }
}

TEST_F(QtWindowsTest, AMessageShowsPlainTextAndKeepsLongTextsOnTheScreen) {
    InNext<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.text(), "<b>Größe</b> & more\nsecond\nthird");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        box.accept();
    });
    messages.Show("<b>Größe</b> & more\r\nsecond\rthird");
    const QString pairs = "x" + QString("😀").repeated(3000);
    for (const QString& whole :
         {QString("line\n").repeated(3000) + "end", QString(100000, 'x'), pairs, pairs + "y"}) {
        InNext<QMessageBox>([&](QMessageBox& box) {
            EXPECT_EQ(box.size().boundedTo(box.screen()->availableSize()), box.size());
            EXPECT_TRUE(box.text().isValidUtf16());
            EXPECT_TRUE(box.text().startsWith(whole.at(0)) && box.text().trimmed().endsWith(whole.right(3)));
            EXPECT_FALSE(box.text().contains(QRegularExpression("[^\\s\u200B]{90}")));
            box.accept();
        });
        messages.Show(whole.toStdString());
    }
}

} // namespace
} // namespace orvane
