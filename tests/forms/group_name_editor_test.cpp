// The grid of names and the text box above it, in the main window.
#include "forms/group_name_editor.h"

#include "windows.h"

namespace orvane {
namespace {

struct GroupNames : MainFormTest {
    void OpenWithGroups(const Texts& names) { Open({.Groups = names, .SampleSize = "12"}); }
    void ClickCell(int row, int column) {
        QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, Cell(row, column).center());
    }
    QRect Cell(int row, int column) { return Grid().visualRect(Grid().model()->index(row, column)); }
    /// Drags the bar of the number of groups over these positions and releases it at the last.
    void DragTheBarOver(std::initializer_list<int> positions) {
        Bar().setSliderDown(true);
        for (const int position : positions)
            Bar().setSliderPosition(position);
        Bar().setSliderDown(false);
    }
};

TEST_F(GroupNames, FollowTheBarThroughItsKeys) {
    OpenWithWhatIsSaved();
    EXPECT_EQ(Message(), ErrorReport) << "nothing was saved";
    const auto lastNameAfter = [this](Qt::Key key) {
        QTest::keyClick(&Bar(), key);
        EXPECT_EQ(TextOf(*form, "nogLbl"), std::to_string(Names().size()));
        EXPECT_EQ(Names().front(), "Group 1");
        return Names().back();
    };
    EXPECT_EQ(lastNameAfter(Qt::Key_Right), "Group 3");
    EXPECT_EQ(lastNameAfter(Qt::Key_PageDown), "Group 4");
    EXPECT_EQ(lastNameAfter(Qt::Key_Left), "Group 3");
    EXPECT_EQ(lastNameAfter(Qt::Key_Home), "Group 2");
    EXPECT_EQ(lastNameAfter(Qt::Key_Left), "Group 2") << "at the start";
    EXPECT_EQ(lastNameAfter(Qt::Key_End), "Group 16");
    EXPECT_EQ(lastNameAfter(Qt::Key_Right), "Group 16") << "at the end";
    for (std::int16_t group = 1; group <= 16; ++group)
        EXPECT_EQ(Grid().TextMatrix(group, 0), std::to_string(group));
}

TEST_F(GroupNames, BecomeDefaultsWhereTheyAreEmptyWhenTheCountChanges) {
    OpenWithGroups({"A", "", " ", "D"});
    DragTheBarOver({2, 16, 4});
    EXPECT_EQ(Names(), (Texts{"A", "", " ", "D"})) << "the count is the same at the end of the drag";
    DragTheBarOver({3});
    EXPECT_EQ(Names(), (Texts{"A", "Group 2", " "}));
    DragTheBarOver({4});
    EXPECT_EQ(Names(), (Texts{"A", "Group 2", " ", "Group 4"}));
}

TEST_F(GroupNames, AreNotChangedByTypingRightAfterAChangeOfTheCount) {
    OpenWithGroups({"Verum", "Placebo"});
    ClickCell(2, 0);
    Bar().setValue(3);
    TempTxt().TakeFocus();
    EXPECT_EQ(TempTxt().Text(), "");
    Type("x");
    EXPECT_EQ(Names(), (Texts{"Verum", "Placebo", "Group 3"}));
    EXPECT_EQ(TempTxt().selectedText(), "Verum") << "the name of group 1, to be replaced by the next key";
    Type("yz");
    EXPECT_EQ(Names()[0], "yz");
}

TEST_F(GroupNames, AreTypedOverAfterAClickInTheirRowOrInTheTopRow) {
    OpenWithGroups({"Verum", "Placebo"});
    ClickCell(2, 0);
    EXPECT_EQ(Focused(*form), "TempTxt");
    EXPECT_EQ(TempTxt().selectedText(), "Placebo");
    Type("xy ");
    EXPECT_EQ(Names(), (Texts{"Verum", "xy "}));
    ClickCell(0, 1);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Names(), (Texts{"", "xy "}));
}

TEST_F(GroupNames, AreReachedWithTheKeysOfTheGridWhichKeepsTheFocus) {
    OpenWithGroups({"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15", "16"});
    Grid().setFocus();
    const int page = Grid().viewport()->height() / Grid().rowHeight(1);
    const auto rowAfter = [this](Qt::Key key) {
        Press(key);
        const std::int16_t row = Grid().Row();
        EXPECT_EQ(Grid().currentRow(), row) << "for assistive programs";
        EXPECT_EQ(TempTxt().Text(), std::to_string(row)) << "the name in the editor";
        EXPECT_EQ(Focused(*form), "GroupNameGrid");
        EXPECT_TRUE(Grid().viewport()->rect().contains(Cell(row, 1).center())) << "not in sight: " << row;
        return row;
    };
    EXPECT_EQ(rowAfter(Qt::Key_Home), 1);
    EXPECT_EQ(rowAfter(Qt::Key_Up), 1) << "on the first row";
    EXPECT_EQ(rowAfter(Qt::Key_Down), 2);
    EXPECT_EQ(rowAfter(Qt::Key_Right), 2);
    EXPECT_EQ(rowAfter(Qt::Key_End), 16);
    EXPECT_EQ(rowAfter(Qt::Key_Down), 16) << "on the last row";
    EXPECT_EQ(rowAfter(Qt::Key_PageUp), 16 - page);
    EXPECT_EQ(rowAfter(Qt::Key_PageDown), 16);
    EXPECT_EQ(rowAfter(Qt::Key_Up), 15);
    EXPECT_EQ(rowAfter(Qt::Key_A), 15);
}

TEST_F(GroupNames, AreTypedWhileTheNumberOfAStartWithoutSettingsIsCurrent) {
    OpenWithWhatIsSaved();
    EXPECT_EQ(Message(), ErrorReport);
    EXPECT_EQ(Grid().Row(), 1);
    EXPECT_EQ(Grid().Col(), 0);
    TempTxt().TakeFocus();
    Type("Drug");
    EXPECT_EQ(Names(), (Texts{"Drug", ""}));
    EXPECT_EQ(Grid().TextMatrix(1, 0), "1");
    EXPECT_EQ(Grid().TextMatrix(2, 0), "2");
}

} // namespace
} // namespace orvane
