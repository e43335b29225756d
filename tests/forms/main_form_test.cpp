#include "windows.h"

#include <QPushButton>

namespace orvane {
namespace {

struct MainWindow : MainFormTest {
    std::string Marks() {
        std::string marks;
        for (const std::string name : {"mnuOutput_0", "mnuOutput_1", "mnuOutput_2"})
            marks += Find<QAction>(*form, name).isChecked() ? 'x' : '-';
        return marks;
    }
    Texts Names() {
        Texts names;
        for (std::int16_t g = 1; g < Grid().Rows(); ++g) {
            EXPECT_EQ(Grid().TextMatrix(g, 0), std::to_string(g));
            EXPECT_EQ(Grid().model()->headerData(g, Qt::Vertical).toString(), QString::number(g));
            names.push_back(Grid().TextMatrix(g, 1));
        }
        return names;
    }
    /// The current cell, as "row, column: text of the editor, its selection".
    std::string Current() {
        return std::to_string(Grid().Row()) + ", " + std::to_string(Grid().Col()) + ": " + TempTxt().Text() +
               ", " + TempTxt().selectedText().toStdString();
    }
    QRect Cell(int row, int col) { return Grid().visualRect(Grid().model()->index(row, col)); }
    void ClickGrid(QPoint point, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(Grid().viewport(), button, {}, point);
    }
    void ClickCell(int row, int col) { ClickGrid(Cell(row, col).center()); }
    const SettingsText Small{.Groups = {"Verum", "Placebo"}, .SampleSize = "12", .OutputOption = 2};
};

TEST_F(MainWindow, StartsWithoutSettingsAfterOneReport) {
    Open();
    EXPECT_EQ(Message() + Marks(), "reportx--");
    EXPECT_EQ(Wordings(*form), Told("main_form.txt"));
    EXPECT_EQ(TabStops(*form), "nogHsb SampSizeTxt GroupNameGrid TempTxt SaveExitChk cmdGenerate");
    EXPECT_EQ(dialog.Flags, CommonDialog::OverwritePrompt);
    EXPECT_EQ(outputDialog.DialogTitle, "Save to File As...");
    EXPECT_EQ(Current(), "1, 0: , ");
    TempTxt().TakeFocus();
    Type("Drug");
    EXPECT_EQ(Saved(),
              BytesOf({.Groups = {"Drug", ""}, .SampleSize = "0", .CodeAlphaNum = 0, .CodeLength = 0}));
}

TEST_F(MainWindow, BehindAMessageACommandIsDroppedAndAClosingWaits) {
    Open(Small);
    TypeSampleSize("x");
    desktop.messages.WhileShown = [this] {
        Find<QPushButton>(*form, "cmdGenerate").click();
        Choose("mnuOutput_1");
        Choose("mnuSequence_2");
        EXPECT_FALSE(form->close());
    };
    Find<QPushButton>(*form, "cmdGenerate").click();
    EXPECT_EQ(desktop.messages.TakeAll(), Texts{"please specify the sample size"});
    EXPECT_EQ(Marks(), "--x");
    EXPECT_FALSE(form->isVisible());
    desktop.files.Log.clear();
    form->close();
    EXPECT_EQ(desktop.files.Log, Texts{});
}

TEST_F(MainWindow, TheBarSetsTheNumberOfGroups) {
    Open({.Groups = {"", ""}});
    const std::vector<std::pair<Qt::Key, int>> keys = {
        {Qt::Key_Left, 2}, {Qt::Key_Right, 3},  {Qt::Key_PageDown, 4}, {Qt::Key_Down, 5},
        {Qt::Key_Up, 4},   {Qt::Key_PageUp, 3}, {Qt::Key_End, 16},     {Qt::Key_Right, 16}};
    for (const auto& [key, groups] : keys) {
        QTest::keyClick(&Bar(), key);
        EXPECT_EQ(Find<QLabel>(*form, "nogLbl").text(), QString::number(groups));
        EXPECT_EQ(Names().size(), groups);
        EXPECT_EQ(Names().back(), groups == 2 ? "" : "Group " + std::to_string(groups));
    }
    const auto dragOver = [&](std::initializer_list<int> positions) {
        Bar().setSliderDown(true);
        for (const int position : positions)
            Bar().setSliderPosition(position);
        Bar().setSliderDown(false);
        return Names();
    };
    dragOver({4});
    for (const auto& [row, name] : {std::pair(1, "A"), {3, " "}, {4, "D"}}) {
        ClickCell(row, 1);
        Type(name);
    }
    ClickCell(2, 1);
    Press(Qt::Key_Delete);
    EXPECT_EQ(dragOver({2, 16, 4}), (Texts{"A", "", " ", "D"}));
    EXPECT_EQ(dragOver({3}), (Texts{"A", "Group 2", " "}));
    EXPECT_EQ(TempTxt().Text(), "A");
    EXPECT_EQ(dragOver({4}), (Texts{"A", "Group 2", " ", "Group 4"}));
}

TEST_F(MainWindow, TypingInTheEmptyEditorAfterAChangeOfTheCountChangesNoName) {
    Open(Small);
    Bar().setValue(3);
    TempTxt().TakeFocus();
    EXPECT_EQ(TempTxt().Text(), "");
    Type("x");
    EXPECT_EQ(Names(), (Texts{"Verum", "Placebo", "Group 3"}));
    EXPECT_EQ(Current(), "1, 1: Verum, Verum");
    Type("yz");
    EXPECT_EQ(Names()[0], "yz");
}

TEST_F(MainWindow, ANameIsPickedWithTheMouseAndTypedOver) {
    Open(Small);
    Bar().setValue(3);
    ClickCell(2, 1);
    EXPECT_EQ(Focused(*form) + Current(), "TempTxt2, 1: Placebo, Placebo");
    Type("xy ");
    ClickCell(0, 1);
    EXPECT_EQ(Current(), "1, 1: Verum, Verum");
    Press(Qt::Key_Delete);
    ClickCell(3, 0);
    EXPECT_EQ(Current(), "3, 1: Group 3, Group 3");
    const QPoint belowTheRows(5, Grid().viewport()->height() - 3);
    ClickGrid(belowTheRows);
    EXPECT_EQ(Focused(*form) + Current(), "TempTxt3, 1: Group 3, Group 3");
    ClickGrid(Cell(2, 1).center(), Qt::RightButton);
    EXPECT_EQ(Grid().Row(), 3);
    EXPECT_EQ(Names(), (Texts{"", "xy ", "Group 3"}));
    QTest::mousePress(Grid().viewport(), Qt::LeftButton, {}, Cell(3, 1).center());
    QTest::mouseRelease(Grid().viewport(), Qt::LeftButton, {}, QPoint(-9, -9)); // no click
    EXPECT_EQ(Focused(*form), "GroupNameGrid");

    const QImage image = Grid().viewport()->grab().toImage();
    const auto colour = [&](int row, int col) {
        return image.pixelColor(Cell(row, col).topLeft() + QPoint(1, 1));
    };
    EXPECT_EQ(colour(3, 1), QColor(255, 0, 0));
    EXPECT_EQ(colour(2, 1), Grid().palette().color(QPalette::Base));
    EXPECT_EQ(colour(3, 0), Grid().palette().color(QPalette::Button));
    EXPECT_EQ(image.pixelColor(belowTheRows), Grid().palette().color(QPalette::Button));
}

TEST_F(MainWindow, ArrowKeysMoveTheCurrentCellAndTheEditorFollows) {
    Open(Small);
    Bar().setValue(16);
    Grid().setFocus();
    const std::vector<std::pair<Qt::Key, int>> keys = {
        {Qt::Key_Home, 1}, {Qt::Key_Up, 1},    {Qt::Key_Down, 2},      {Qt::Key_Left, 2}, {Qt::Key_Right, 2},
        {Qt::Key_End, 16}, {Qt::Key_Down, 16}, {Qt::Key_PageDown, 16}, {Qt::Key_Up, 15},  {Qt::Key_A, 15}};
    for (const auto& [key, row] : keys) {
        Press(key);
        EXPECT_EQ(Current(), std::to_string(row) + ", 1: " + Names()[row - 1] + ", ");
        EXPECT_EQ(Focused(*form), "GroupNameGrid");
        EXPECT_TRUE(Grid().viewport()->rect().contains(Cell(row, 1).center()));
    }
    for (int page = 0; page < 9; ++page) {
        EXPECT_GT(Grid().Row(), page == 1 ? 5 : 0);
        Press(Qt::Key_PageUp);
    }
    EXPECT_EQ(Grid().Row(), 1);
    Press(Qt::Key_Escape);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(MainWindow, SixteenNamesReachTheFileUnchangedThroughEverySelection) {
    Texts names = {"  blanks  ", "", "line\nfeed", "nul\0!"s, "\xE9t\xE9", "same", "same", "\tA:1"};
    names.resize(16, "last");
    Open({.Groups = names, .SampleSize = "7", .OutputOption = 1});
    EXPECT_EQ(Message() + Marks(), "-x-");
    for (int row = 0; row <= 16; ++row)
        ClickCell(row, row % 2);
    EXPECT_EQ(Grid().Row(), 16);
    EXPECT_EQ(Saved(), desktop.files.Contents[SavedPath]);
}

TEST_F(MainWindow, ASampleSizeIsItsNumericValueOrRefusedWithTheFocusOnItsBox) {
    Open(Small);
    const std::string none = "please specify the sample size";
    const std::string many = "the sample size can be at most 32767";
    const std::vector<std::tuple<QString, std::string, bool, std::string>> rows = {
        {"", "0", false, none},
        {"2.5", "2", true, ""},
        {"-5", "-5", true, none},
        {"32768", "0", false, many}};
    for (const auto& [text, size, enabled, refusal] : rows) {
        TypeSampleSize(text);
        EXPECT_EQ(Find<QAction>(*form, "mnuView_1").isEnabled(), enabled) << size;
        EXPECT_NE(Saved().find("[Sample Size]\r\n" + size + "\r\n"), std::string::npos) << size;
        if (refusal.empty())
            continue;
        for (const std::string item : {"mnuSequence_2", enabled ? "mnuView_1" : "mnuSequence_2"}) {
            Find(*form, "SaveExitChk").setFocus();
            Choose(item);
            EXPECT_EQ(Message(), refusal);
        }
        EXPECT_EQ(Focused(*form), "SampSizeTxt");
        EXPECT_EQ(SampSizeTxt().selectedText(), text);
        EXPECT_FALSE(desktop.pointer.Busy);
    }
}

TEST_F(MainWindow, EnterGeneratesWhereverTheFocusIs) {
    Open(Small);
    TypeSampleSize("");
    HoldEnterDown();
    Press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Message(), "");
    TypeSampleSize("12");
    for (const std::string name :
         {"SampSizeTxt", "TempTxt", "GroupNameGrid", "nogHsb", "SaveExitChk", "cmdGenerate"}) {
        for (const auto& [key, modifiers] :
             {std::pair(Qt::Key_Return, Qt::NoModifier), {Qt::Key_Enter, Qt::KeypadModifier}}) {
            Find(*form, name).setFocus();
            desktop.pointer.Calls.clear();
            WithOptions([&, k = key, m = modifiers] { Press(k, m); }, "cmdCancel");
            EXPECT_EQ(desktop.pointer.Calls.front(), 'B');
            EXPECT_FALSE(desktop.pointer.Busy);
        }
    }
    WithOptions([&] { Choose("mnuView_1"); }, "cmdOK");
    EXPECT_EQ(desktop.pointer.Calls.back(), 'N');
    EXPECT_EQ(desktop.board.Content, "earlier content");
}

TEST_F(MainWindow, TheOutputMenuMarksTheChannel) {
    Open(Small);
    for (const auto& [item, marks] : {std::pair("mnuOutput_2", "--x"),
                                      {"mnuOutput_1", "-x-"},
                                      {"mnuOutput_0", "x--"},
                                      {"mnuOutput_0", "x--"}}) {
        Choose(item);
        EXPECT_EQ(Marks(), marks);
    }
    desktop.pointer.Calls.clear();
    Find<QMenu>(*form, "mnuSequence_0").popup(QPoint());
    EXPECT_EQ(desktop.pointer.Calls, "BN");
    Find<QMenu>(*form, "mnuSequence_0").close();
    Choose("mnuView_0");
    EXPECT_TRUE(dialog.Shown.back().starts_with("open 2, |Select the random file|htm file"));
}

TEST_F(MainWindow, AClosingDuringWorkWaitsForItsEndAndNeedsNoSettingsFile) {
    Open(Small);
    bool working = true;
    desktop.messages.WhileShown = [&] { EXPECT_NE(form->close(), std::exchange(working, false)); };
    desktop.files.Fails = {"Delete", "OpenForOutput"};
    TypeSampleSize("");
    Click(*form, "cmdGenerate");
    const Texts shown = desktop.messages.TakeAll();
    ASSERT_EQ(shown.size(), 2);
    EXPECT_EQ(shown[0], "please specify the sample size");
    EXPECT_TRUE(shown[1].starts_with("Error Description: "));
    EXPECT_FALSE(form->isVisible());
}

TEST_F(MainWindow, HelpOpensThePageAndTheAboutBox) {
    Open(Small);
    Choose("mnuHelp_0");
    EXPECT_EQ(desktop.shell.Started, Texts{"viewer /program/randomization.htm"});
    EXPECT_EQ(desktop.shell.LastOwner, static_cast<std::intptr_t>(form->winId()));
    WhileOpen([&] { Choose("mnuHelp_2"); },
              [](QDialog& window) {
                  EXPECT_EQ(window.windowTitle(), "About Orvane Software");
                  QTest::keyClick(&window, Qt::Key_Escape);
              });
}

} // namespace
} // namespace orvane
