#include "forms/flex_grid_widget.h"

#include "windows.h"

#include <QHelpEvent>
#include <QSignalSpy>
#include <QTextDocument>
#include <QToolTip>

namespace orvane {
namespace {

struct FlexGrid : WindowTest {
    FlexGrid() {
        grid.setColumnCount(2);
        grid.SetRows(4);
        grid.resize(200, 120);
        grid.show();
    }
    /// What a person reads over the cell of row 1 with this text; "" when no tool tip shows.
    std::string ToolTipOver(const std::string& text) {
        grid.SetRow(1);
        grid.SetText(text);
        QToolTip::hideText();
        const QPoint place = grid.visualRect(grid.model()->index(1, 1)).center();
        QHelpEvent hover(QEvent::ToolTip, place, grid.viewport()->mapToGlobal(place));
        QApplication::sendEvent(grid.viewport(), &hover);
        QTextDocument tip;
        tip.setHtml(QToolTip::text());
        return tip.toPlainText().toStdString();
    }

    FlexGridWidget grid;
};

TEST_F(FlexGrid, ShowsATextThatIsTooLongForItsCellInATip) {
    EXPECT_EQ(ToolTipOver("short"), "");
    EXPECT_EQ(ToolTipOver("doses < 5 mg & <b>placebo</b> for all of them"),
              "doses < 5 mg & <b>placebo</b> for all of them");
    EXPECT_EQ(ToolTipOver(std::string(1500, '<')), std::string(1000, '<'));
}

TEST_F(FlexGrid, MarksItsCurrentCellAloneAndPaintsItsFirstColumnLikeAButton) {
    grid.SetRow(1);
    const QImage picture = grid.viewport()->grab().toImage();
    const auto background = [&](int row, int column) {
        return picture.pixelColor(grid.visualRect(grid.model()->index(row, column)).topLeft());
    };
    EXPECT_NE(background(1, 1), grid.palette().color(QPalette::Base));
    EXPECT_EQ(background(2, 1), grid.palette().color(QPalette::Base));
    EXPECT_EQ(background(1, 0), grid.palette().color(QPalette::Button));
}

TEST_F(FlexGrid, RefusesCellsThatItDoesNotHave) {
    const auto refuses = [](auto&& step) { return FailureOf(step).Number == failure_number::OutOfRange; };
    EXPECT_TRUE(refuses([this] { grid.SetRow(4); }));
    EXPECT_TRUE(refuses([this] { grid.SetCol(2); }));
    EXPECT_TRUE(refuses([this] { static_cast<void>(grid.TextMatrix(-1, 1)); }));
    EXPECT_TRUE(refuses([this] { grid.SetRows(0); }));
    EXPECT_TRUE(refuses([] { FlexGridWidget().SetText("no rows yet"); }));
}

TEST_F(FlexGrid, IsNotClickedByLessThanAPressAndAReleaseOfTheLeftButtonInside) {
    const QSignalSpy clicks(&grid, &FlexGridWidget::Click);
    const QPoint inside(100, 50);
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, inside);
    EXPECT_EQ(clicks.size(), 0) << "pressed outside";
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, inside);
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, QPoint(-9, -9));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, inside);
    EXPECT_EQ(clicks.size(), 0) << "released outside";
    QTest::mouseClick(grid.viewport(), Qt::RightButton, {}, inside);
    EXPECT_EQ(clicks.size(), 0) << "another button";
}

} // namespace
} // namespace orvane
