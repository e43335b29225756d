#include "platform/qt/qt_message_box.h"

#include "modal_windows.h"

#include <QRegularExpression>
#include <QScreen>

namespace orvane {
namespace {

class MessageBoxes : public ModalWindowsTest {
  protected:
    QtMessageBox messages{input, ending};
};

TEST_F(MessageBoxes, ShowTextsToTheLetter) {
    InNext<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.text(), "<b>Größe</b> & more\nsecond\nthird");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        box.accept();
    });
    messages.Show("<b>Größe</b> & more\r\nsecond\rthird");
}

TEST_F(MessageBoxes, KeepLongTextsOnTheScreenWithTheirStartAndEnd) {
    const QString pairs = "x" + QString("😀").repeated(3000);
    for (const QString& text :
         {QString("line\n").repeated(3000) + "end", QString(100000, 'x'), pairs, pairs + "y"}) {
        SCOPED_TRACE(text.left(5).toStdString() + "..." + text.right(3).toStdString());
        InNext<QMessageBox>([&](QMessageBox& box) {
            EXPECT_LE(box.width(), box.screen()->availableSize().width());
            EXPECT_LE(box.height(), box.screen()->availableSize().height());
            EXPECT_TRUE(box.text().startsWith(text.at(0)));
            EXPECT_TRUE(box.text().trimmed().endsWith(text.right(3)));
            EXPECT_TRUE(box.text().isValidUtf16()) << "half a surrogate pair";
            EXPECT_FALSE(box.text().contains(QRegularExpression("[^\\s\u200B]{90}")))
                << "no line can hold it";
            box.accept();
        });
        messages.Show(text.toStdString());
    }
}

TEST_F(MessageBoxes, GoToTheStandardErrorWhileTheProgramEnds) {
    ending.Begin();
    testing::internal::CaptureStderr();
    messages.ShowExclamation("no room", "Saving");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Saving: no room\n");
}

} // namespace
} // namespace orvane
