#include "forms/main_form.h"

#include "fakes/desktop.h"
#include "fakes/settings_text.h"
#include "forms/flex_grid_widget.h"
#include "forms/line_box.h"
#include "window_driver.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>

#include <functional>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace orvane {
namespace {

using namespace fakes;
using namespace std::string_literals;
using Names = std::vector<std::string>;

/// A settings file.
std::string Saved(const Names& names, const std::string& sampleSize, int seqRandom = 0, int output = 2,
                  int alphaNum = 1, int length = 4) {
    return BytesOf({.Groups = names,
                    .SampleSize = sampleSize,
                    .CodeAlphaNum = alphaNum,
                    .CodeSeqRandom = seqRandom,
                    .CodeLength = length,
                    .OutputOption = output});
}

const std::string SavedPath = "/program/saved.stg";

/// A command that opens a window.
struct Command {
    std::function<void()> ShowModal;
};

class MainFormTest : public testing::Test {
  protected:
    MainFormTest() { desktop.files.Contents[SavedPath] = Saved({"Verum", "Placebo"}, "12"); }

    void Open() {
        form = std::make_unique<MainForm>(desktop.platform, dialog, outputDialog);
        form->Open();
        BringToFront();
    }
    /// As a desktop does at the opening and when a window in front has closed.
    void BringToFront() {
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }
    template <class Widget>
    Widget& The(const std::string& name) {
        return Find<Widget>(*form, name);
    }
    FlexGridWidget& Grid() { return The<FlexGridWidget>("GroupNameGrid"); }
    LineBox& TempTxt() { return The<LineBox>("TempTxt"); }
    LineBox& SampSizeTxt() { return The<LineBox>("SampSizeTxt"); }
    QAction& Item(const std::string& name) {
        return *form->findChild<QAction*>(QString::fromStdString(name));
    }
    std::string Focus() { return form->focusWidget()->objectName().toStdString(); }
    std::string Marks() {
        std::string marks;
        for (const std::string name : {"mnuOutput_0", "mnuOutput_1", "mnuOutput_2"})
            marks += Item(name).isChecked() ? 'x' : '-';
        return marks;
    }
    Names GroupNames() {
        Names names;
        for (std::int16_t g = 1; g < Grid().Rows(); ++g) {
            EXPECT_EQ(Grid().TextMatrix(g, 0), std::to_string(g));
            names.push_back(Grid().TextMatrix(g, 1));
        }
        return names;
    }
    std::tuple<int, int> Current() { return {Grid().Row(), Grid().Col()}; }

    void ClickCell(int row, int col) {
        const QRect cell = Grid().visualRect(Grid().model()->index(row, col));
        QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, cell.center());
    }
    static void TypeInto(LineBox& box, const QString& text) {
        box.TakeFocus();
        Press(Qt::Key_Delete);
        Type(text);
    }
    /// What "Save Settings" writes.
    std::string SaveAs() {
        dialog.Answers = {"/s.stg"};
        Item("mnuFile_1").trigger();
        EXPECT_EQ(desktop.messages.Take(), "Settings were saved successfully!");
        return desktop.files.Contents["/s.stg"];
    }
    void Load(const std::string& file) {
        desktop.files.Contents["/l.stg"] = file;
        dialog.Answers = {"/l.stg"};
        Item("mnuFile_0").trigger();
    }
    /// Runs a command and, in the options window that it opens, presses a button.
    void WithOptions(const std::function<void()>& command, const std::string& button) {
        Command opening{command};
        BringToFront();
        WhileOpen(opening, [&](QDialog& window) {
            EXPECT_EQ(window.windowTitle(), "Options");
            Click(window, button);
        });
        BringToFront();
    }

    FakeDesktop desktop;
    ScriptedDialog dialog;
    ScriptedDialog outputDialog;
    std::unique_ptr<MainForm> form;
};

TEST_F(MainFormTest, HasItsWordings) {
    Open();
    EXPECT_EQ(form->windowTitle(), "Randomization Main");
    const std::vector<std::pair<std::string, std::string>> wordings = {
        {"Label1", "Number of goups|"},
        {"nogLbl", "2|Number of Groups"},
        {"SampSizeTxt", "12|Sample Size"},
        {"Label2", "Sample Size|"},
        {"Label3", "Groups|"},
        {"SaveExitChk", "Save settings on exit|"},
        {"cmdGenerate", "Generate Random List|"}};
    for (const auto& [name, wording] : wordings)
        EXPECT_EQ(Wording(*form, name), wording) << name;

    std::string menus;
    const std::function<void(const QWidget&)> read = [&](const QWidget& menu) {
        for (const QAction* item : menu.actions()) {
            menus += item->isSeparator() ? "-" : item->text().toStdString();
            menus += item->isEnabled() ? " " : "(off) ";
            EXPECT_TRUE(item->shortcut().isEmpty());
            if (item->menu() != nullptr)
                read(*item->menu());
        }
    };
    read(*form->menuBar());
    EXPECT_EQ(menus, "File Load Settings Save Settings - Exit View Random File... Option... Sequence Output "
                     "To File To Window To Clipboard - Generate Help Content - About... ");
}

TEST_F(MainFormTest, WhatAnAssistiveProgramTriggersBehindAMessageIsDropped) {
    Open();
    TypeInto(SampSizeTxt(), "x");
    desktop.messages.WhileShown = [this] {
        The<QPushButton>("cmdGenerate").click();
        Item("mnuOutput_1").trigger();
        Item("mnuSequence_2").trigger();
    };
    const std::string before = Marks();
    The<QPushButton>("cmdGenerate").click();
    EXPECT_EQ(desktop.messages.TakeAll(), Names{"please specify the sample size"});
    EXPECT_EQ(Marks(), before);
}

TEST_F(MainFormTest, StartsWithoutSettingsAfterOneReportOverTheWindow) {
    desktop.files.Contents.clear();
    bool seen = false;
    desktop.messages.WhileShown = [&] {
        for (const QWidget* window : QApplication::topLevelWidgets())
            seen = seen || (window->objectName() == "Form1" && window->isVisible());
    };
    Open();
    EXPECT_TRUE(desktop.messages.Take().starts_with("Error Description: "));
    EXPECT_TRUE(seen);
    EXPECT_EQ(form->windowTitle(), "Randomization Main");
    EXPECT_EQ(The<QLabel>("nogLbl").text(), "2");
    EXPECT_EQ(The<QScrollBar>("nogHsb").value(), 2);
    EXPECT_EQ(SampSizeTxt().Text() + TempTxt().Text(), "");
    EXPECT_EQ(GroupNames(), (Names{"", ""}));
    EXPECT_FALSE(Item("mnuView_1").isEnabled());
    EXPECT_EQ(Marks(), "x--");
    EXPECT_TRUE(The<QCheckBox>("SaveExitChk").isChecked());
    EXPECT_EQ(dialog.Flags, CommonDialog::OverwritePrompt);
    EXPECT_EQ(outputDialog.DialogTitle, "Save to File As...");
    EXPECT_FALSE(form->windowIcon().pixmap(32).isNull());
    EXPECT_EQ(Current(), std::tuple(1, 0));
    TempTxt().TakeFocus();
    Type("Drug");
    EXPECT_EQ(GroupNames(), (Names{"Drug", ""}));
    EXPECT_EQ(SaveAs(), Saved({"Drug", ""}, "0", 0, 0, 0, 0));
}

TEST_F(MainFormTest, ControlsStandInTheirPlacesAndTakeTheFocusInOrder) {
    Open();
    auto& client = *form->centralWidget();
    EXPECT_EQ(client.size(), QSize(364, 185));
    const QPoint offCentre = form->frameGeometry().center() - form->screen()->availableGeometry().center();
    EXPECT_LT(offCentre.manhattanLength(), 6);
    const auto controls = client.findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    EXPECT_EQ(controls.size(), 10);
    for (const QWidget* control : controls) {
        const std::string name = control->objectName().toStdString();
        EXPECT_TRUE(client.rect().contains(control->geometry())) << name;
        for (const QWidget* other : controls)
            EXPECT_TRUE(other == control || !other->geometry().intersects(control->geometry())) << name;
        const bool holdsAText =
            name != "GroupNameGrid" && name != "nogHsb" && name != "TempTxt" && name != "SampSizeTxt";
        EXPECT_TRUE(control->focusPolicy() == Qt::NoFocus || !control->accessibleName().isEmpty()) << name;
        EXPECT_TRUE(!holdsAText || control->width() >= control->minimumSizeHint().width()) << name;
        EXPECT_GE(control->height(), control->fontMetrics().height()) << name;
    }
    form->resize(600, 400);
    EXPECT_EQ(Grid().geometry(), QRect(128, 25, 169, 113));
    for (const std::string name :
         {"nogHsb", "SampSizeTxt", "GroupNameGrid", "TempTxt", "SaveExitChk", "cmdGenerate", "nogHsb"}) {
        EXPECT_EQ(Focus(), name);
        Press(Qt::Key_Tab);
    }
}

TEST_F(MainFormTest, TheBarSetsTheNumberOfGroups) {
    desktop.files.Contents[SavedPath] = Saved({"", ""}, "");
    Open();
    auto& bar = The<QScrollBar>("nogHsb");
    for (const auto& [key, groups] : std::vector<std::tuple<Qt::Key, int>>{{Qt::Key_Left, 2},
                                                                           {Qt::Key_Right, 3},
                                                                           {Qt::Key_PageDown, 4},
                                                                           {Qt::Key_Down, 5},
                                                                           {Qt::Key_Up, 4},
                                                                           {Qt::Key_PageUp, 3},
                                                                           {Qt::Key_End, 16},
                                                                           {Qt::Key_Right, 16}}) {
        Press(key);
        EXPECT_EQ(The<QLabel>("nogLbl").text(), QString::number(groups));
        EXPECT_EQ(GroupNames().size(), groups);
        EXPECT_EQ(GroupNames().back(), groups == 2 ? "" : "Group " + std::to_string(groups));
    }
    const auto dragOver = [&](std::initializer_list<int> positions) {
        bar.setSliderDown(true);
        for (const int position : positions)
            bar.setSliderPosition(position);
        bar.setSliderDown(false);
    };
    dragOver({4});
    const std::vector<std::tuple<int, QString>> typed = {{1, "A"}, {3, " "}, {4, "D"}};
    for (const auto& [row, name] : typed) {
        ClickCell(row, 1);
        Type(name);
    }
    ClickCell(2, 1);
    Press(Qt::Key_Delete);
    dragOver({2, 16, 4});
    EXPECT_EQ(GroupNames(), (Names{"A", "", " ", "D"}));
    dragOver({3});
    EXPECT_EQ(GroupNames(), (Names{"A", "Group 2", " "}));
    EXPECT_EQ(TempTxt().Text(), "A");
    dragOver({4});
    EXPECT_EQ(GroupNames(), (Names{"A", "Group 2", " ", "Group 4"}));
}

TEST_F(MainFormTest, TypingInTheEmptyEditorAfterAChangeOfTheCountChangesNoName) {
    Open();
    The<QScrollBar>("nogHsb").setValue(3);
    TempTxt().TakeFocus();
    EXPECT_EQ(TempTxt().Text(), "");
    Type("x");
    EXPECT_EQ(GroupNames(), (Names{"Verum", "Placebo", "Group 3"}));
    EXPECT_EQ(TempTxt().Text(), "Verum");
    EXPECT_EQ(Current(), std::tuple(1, 1));
    Type("yz");
    EXPECT_EQ(GroupNames(), (Names{"yz", "Placebo", "Group 3"}));
}

TEST_F(MainFormTest, ANameIsPickedWithTheMouseAndTypedOver) {
    Open();
    The<QScrollBar>("nogHsb").setValue(3);
    ClickCell(2, 1);
    EXPECT_EQ(Focus(), "TempTxt");
    EXPECT_EQ(TempTxt().selectedText(), "Placebo");
    Type("x");
    EXPECT_EQ(GroupNames(), (Names{"Verum", "x", "Group 3"}));
    Type("y ");
    ClickCell(0, 1);
    EXPECT_EQ(Current(), std::tuple(1, 1));
    EXPECT_EQ(TempTxt().selectedText(), "Verum");
    Press(Qt::Key_Delete);
    ClickCell(3, 0);
    EXPECT_EQ(Current(), std::tuple(3, 1));
    QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {},
                      QPoint(5, Grid().viewport()->height() - 3)); // below the rows
    EXPECT_EQ(Focus(), "TempTxt");
    EXPECT_EQ(TempTxt().selectedText(), "Group 3");
    EXPECT_EQ(Current(), std::tuple(3, 1));
    EXPECT_EQ(GroupNames(), (Names{"", "xy ", "Group 3"}));
    const auto middle = [&](int row) { return Grid().visualRect(Grid().model()->index(row, 1)).center(); };
    QTest::mouseClick(Grid().viewport(), Qt::RightButton, {}, middle(2));
    EXPECT_EQ(Current(), std::tuple(3, 1));
    QTest::mousePress(Grid().viewport(), Qt::LeftButton, {}, middle(3));
    QTest::mouseRelease(Grid().viewport(), Qt::LeftButton, {}, QPoint(-9, -9)); // no click
    EXPECT_EQ(Focus(), "GroupNameGrid");

    for (int row = 0; row <= 3; ++row)
        EXPECT_EQ(Grid().model()->headerData(row, Qt::Vertical).toString(),
                  row == 0 ? "" : QString::number(row));

    const QImage image = Grid().viewport()->grab().toImage();
    const auto colour = [&](int row, int col) {
        return image.pixelColor(Grid().visualRect(Grid().model()->index(row, col)).topLeft() + QPoint(1, 1));
    };
    EXPECT_EQ(colour(3, 1), QColor(255, 0, 0));
    EXPECT_NE(colour(2, 1), QColor(255, 0, 0));
    EXPECT_EQ(colour(2, 0), Grid().palette().color(QPalette::Button));
    EXPECT_EQ(image.pixelColor(5, image.height() - 3), Grid().palette().color(QPalette::Button));
}

TEST_F(MainFormTest, ArrowKeysMoveTheCurrentCellAndTheEditorFollows) {
    Open();
    The<QScrollBar>("nogHsb").setValue(16);
    Grid().setFocus();
    const std::vector<std::tuple<Qt::Key, int>> keys = {
        {Qt::Key_Home, 1}, {Qt::Key_Up, 1},    {Qt::Key_Down, 2},      {Qt::Key_Left, 2}, {Qt::Key_Right, 2},
        {Qt::Key_End, 16}, {Qt::Key_Down, 16}, {Qt::Key_PageDown, 16}, {Qt::Key_Up, 15},  {Qt::Key_A, 15}};
    for (const auto& [key, row] : keys) {
        Press(key);
        EXPECT_EQ(Current(), std::tuple(row, 1));
        EXPECT_EQ(TempTxt().Text(), Grid().Text());
        EXPECT_EQ(Focus(), "GroupNameGrid");
        EXPECT_TRUE(
            Grid().viewport()->rect().contains(Grid().visualRect(Grid().model()->index(row, 1)).center()));
    }
    Press(Qt::Key_Tab);
    Type("x");
    EXPECT_EQ(GroupNames()[14], "x");
    Grid().setFocus();
    for (int page = 0; page < 9; ++page)
        Press(Qt::Key_PageUp);
    EXPECT_EQ(Current(), std::tuple(1, 1));
    Press(Qt::Key_Escape);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(MainFormTest, NamesReachTheFileUnchangedThroughEverySelection) {
    const Names names = {"  blanks  ", "", "line\nfeed", "nul\0!"s, "\xE9t\xE9", "same", "same", "\tA:1"};
    const std::string file = Saved(names, "7");
    desktop.files.Contents[SavedPath] = file;
    Open();
    EXPECT_EQ(desktop.messages.Take(), "");
    for (int row = 0; row <= 8; ++row)
        ClickCell(row, row % 2);
    EXPECT_EQ(SaveAs(), file);
    EXPECT_EQ(Current(), std::tuple(8, 1));
    form->close();
    EXPECT_EQ(desktop.files.Contents[SavedPath], file);
}

TEST_F(MainFormTest, TheSampleSizeIsTheNumericValueOfTheText) {
    Open();
    const std::vector<std::tuple<QString, std::string, bool>> rows = {
        {"1", "1", true},      {"", "0", false},         {"abc", "0", false},   {"0", "0", false},
        {"12abc", "12", true}, {"0.4", "0", false},      {"0.6", "1", true},    {"2.5", "2", true},
        {"-5", "-5", true},    {"32767", "32767", true}, {"32768", "0", false}, {"1e999", "0", false}};
    for (const auto& [text, size, enabled] : rows) {
        TypeInto(SampSizeTxt(), text);
        EXPECT_EQ(SampSizeTxt().text(), text);
        EXPECT_EQ(Item("mnuView_1").isEnabled(), enabled) << size;
        EXPECT_EQ(SaveAs(), Saved({"Verum", "Placebo"}, size));
    }
}

TEST_F(MainFormTest, ASampleSizeThatCannotBeUsedIsRefusedWithTheFocusOnItsBox) {
    Open();
    const auto refused = [&](const QString& text, const std::string& message,
                             const std::function<void()>& command) {
        TypeInto(SampSizeTxt(), text);
        The<QPushButton>("cmdGenerate").setFocus();
        command();
        EXPECT_EQ(desktop.messages.Take(), message);
        EXPECT_EQ(Focus(), "SampSizeTxt");
        EXPECT_EQ(SampSizeTxt().selectedText(), text);
        EXPECT_FALSE(desktop.pointer.Busy);
    };
    refused("-5", "please specify the sample size", [&] { Item("mnuView_1").trigger(); });
    refused("-5", "please specify the sample size", [&] { Item("mnuSequence_2").trigger(); });
    refused("", "please specify the sample size", [&] { Click(*form, "cmdGenerate"); });
    refused("-5", "please specify the sample size", [&] {
        SampSizeTxt().TakeFocus();
        SampSizeTxt().deselect();
        Press(Qt::Key_Return);
    });
    refused("99999", "the sample size can be at most 32767", [&] { Click(*form, "cmdGenerate"); });
}

TEST_F(MainFormTest, AnEnterKeyThatIsHeldDownGeneratesOnce) {
    Open();
    TypeInto(SampSizeTxt(), "");
    QTest::simulateEvent(QApplication::focusWidget(), true, Qt::Key_Return, Qt::NoModifier, "\r", true);
    EXPECT_EQ(desktop.messages.TakeAll(), Names{});
}

TEST_F(MainFormTest, EnterGeneratesWhereverTheFocusIs) {
    Open();
    for (const std::string name :
         {"SampSizeTxt", "TempTxt", "GroupNameGrid", "nogHsb", "SaveExitChk", "cmdGenerate"})
        for (const auto& [key, modifiers] :
             {std::tuple(Qt::Key_Return, Qt::NoModifier), std::tuple(Qt::Key_Enter, Qt::KeypadModifier)}) {
            The<QWidget>(name).setFocus();
            desktop.pointer.Calls.clear();
            WithOptions([&, k = key, m = modifiers] { Press(k, m); }, "cmdCancel");
            EXPECT_EQ(desktop.pointer.Calls.front(), 'B');
            EXPECT_FALSE(desktop.pointer.Busy);
        }
    WithOptions([&] { Item("mnuView_1").trigger(); }, "cmdOK");
    EXPECT_EQ(desktop.pointer.Calls.back(), 'N');
    EXPECT_EQ(desktop.board.Content, "earlier content");
    WithOptions([&] { Press(Qt::Key_Return); }, "cmdOK");
    EXPECT_EQ(desktop.messages.Take(), "Data were copied into clipboard successfuly!");
    EXPECT_NE(desktop.board.Content.find("0012: "), std::string::npos);
}

TEST_F(MainFormTest, SettingsAreLoadedAndRefusedThroughThePrompt) {
    Open();
    Load(Saved({"A", "B", "C"}, "12abc", 0, 1));
    EXPECT_EQ(desktop.messages.Take(), "Settings were loaded successfully!");
    EXPECT_EQ(GroupNames(), (Names{"A", "B", "C"}));
    EXPECT_EQ(SampSizeTxt().Text(), "12abc");
    EXPECT_EQ(The<QScrollBar>("nogHsb").value(), 3);
    EXPECT_EQ(Marks(), "-x-");
    for (const auto& [item, marks] : {std::pair("mnuOutput_2", "--x"),
                                      {"mnuOutput_1", "-x-"},
                                      {"mnuOutput_0", "x--"},
                                      {"mnuOutput_0", "x--"}}) {
        Item(item).trigger();
        EXPECT_EQ(Marks(), marks);
    }
    for (const std::string count : {"1", "17", "x", "40000"}) {
        Load("\r\n" + count + "\r\n");
        EXPECT_TRUE(desktop.messages.Take().starts_with("Error Description: ")) << count;
        EXPECT_EQ(SaveAs(), Saved({"A", "B", "C"}, "12", 0, 0));
    }
    Load(Saved({"D", "E"}, "5", 0, 5));
    EXPECT_NE(desktop.messages.Take().find("output channel 5"), std::string::npos);
    EXPECT_EQ(Marks(), "---");
    EXPECT_EQ(GroupNames(), (Names{"D", "E"}));
    for (const std::string item : {"mnuFile_0", "mnuFile_1", "mnuView_0"})
        Item(item).trigger(); // each cancelled
    EXPECT_EQ(dialog.Shown.back(), "open 2, settings|Select the random file|htm file (*.htm)|*.htm|Text file "
                                   "(*.txt)|*.txt");
    EXPECT_EQ(GroupNames(), (Names{"D", "E"}));
}

TEST_F(MainFormTest, ClosingWritesTheSettingsOnceUnlessTheBoxIsCleared) {
    for (const bool checked : {true, false})
        for (const bool byExit : {true, false}) {
            desktop.files.Contents[SavedPath] = Saved({"Verum", "Placebo"}, "12");
            Open();
            TypeInto(SampSizeTxt(), "34");
            if (!checked)
                Click(*form, "SaveExitChk");
            desktop.files.Log.clear();
            byExit ? Item("mnuFile_3").trigger() : static_cast<void>(form->close());
            EXPECT_FALSE(form->isVisible());
            form->close();
            EXPECT_EQ(desktop.files.Contents[SavedPath], Saved({"Verum", "Placebo"}, checked ? "34" : "12"));
            EXPECT_EQ(desktop.files.Log.size(), checked ? 2 : 0);
        }
}

TEST_F(MainFormTest, AClosingDuringWorkWaitsForItsEndAndNeedsNoSettingsFile) {
    Open();
    bool working = true;
    desktop.messages.WhileShown = [&] { EXPECT_NE(form->close(), std::exchange(working, false)); };
    desktop.files.Fails = {"Delete", "OpenForOutput"};
    TypeInto(SampSizeTxt(), "");
    Click(*form, "cmdGenerate");
    const Names shown = desktop.messages.TakeAll();
    ASSERT_EQ(shown.size(), 2);
    EXPECT_EQ(shown[0], "please specify the sample size");
    EXPECT_TRUE(shown[1].starts_with("Error Description: "));
    EXPECT_FALSE(form->isVisible());
}

TEST_F(MainFormTest, TheOutputSubmenuShowsTheBusyPointerAndTheNormalOne) {
    Open();
    desktop.pointer.Calls.clear();
    The<QMenu>("mnuSequence_0").popup(QPoint());
    EXPECT_EQ(desktop.pointer.Calls, "BN");
    The<QMenu>("mnuSequence_0").close();
}

TEST_F(MainFormTest, AFailureThatNoRoutineCatchesIsReportedOnceAndTheProgramGoesOn) {
    desktop.files.Contents[SavedPath] = Saved({"Verum", "Placebo"}, "12", 1);
    Open();
    desktop.random.Fails = {"UniformNext", "UniformReseed"};
    WithOptions([&] { Click(*form, "cmdGenerate"); }, "cmdOK");
    EXPECT_TRUE(desktop.messages.Take().starts_with("Error Description: cannot UniformReseed"));
    EXPECT_FALSE(desktop.pointer.Busy);
    EXPECT_EQ(desktop.board.Content, "earlier content");
    desktop.random.Fails.clear();

    Load(Saved({"Verum", "Placebo"}, "12", 0, 0)); // codes that need no draws
    EXPECT_EQ(desktop.messages.Take(), "Settings were loaded successfully!");
    desktop.files.Fails = {"Write"};
    dialog.Answers = {"/list.txt"};
    WithOptions([&] { Click(*form, "cmdGenerate"); }, "cmdOK");
    EXPECT_TRUE(desktop.messages.Take().starts_with("Error Description: cannot Write"));
    EXPECT_FALSE(desktop.pointer.Busy);
    EXPECT_EQ(desktop.shell.Started, Names{});

    ClickCell(1, 1);
    Type("x");
    Item("mnuOutput_2").trigger();
    WithOptions([&] { Click(*form, "cmdGenerate"); }, "cmdOK");
    EXPECT_EQ(desktop.messages.Take(), "Data were copied into clipboard successfuly!");
    EXPECT_NE(desktop.board.Content.find(": x"), std::string::npos);
}

TEST_F(MainFormTest, HelpOpensThePageAndTheAboutBox) {
    Open();
    Item("mnuHelp_0").trigger();
    EXPECT_EQ(desktop.shell.Started, Names{"viewer /program/randomization.htm"});
    EXPECT_EQ(desktop.shell.LastOwner, static_cast<std::intptr_t>(form->winId()));
    Command opening{[&] { Item("mnuHelp_2").trigger(); }};
    WhileOpen(opening, [](QDialog& window) {
        EXPECT_EQ(window.windowTitle(), "About Orvane Software");
        QTest::keyClick(&window, Qt::Key_Escape);
    });
}

TEST(FlexGridWidget, KeepsTheRulesOfTheGrid) {
    FlexGridWidget grid;
    grid.setColumnCount(2);
    grid.SetRows(4);
    int changes = 0;
    grid.OnRowColChange([&] { ++changes; });
    grid.SetRow(3);
    grid.SetRow(3);
    EXPECT_EQ(changes, 1);
    grid.SetText("\xEF\xBB\xBF"s + "n\0"s);
    EXPECT_EQ(grid.Text(), "\xEF\xBB\xBF"s + "n\0"s);
    grid.SetRows(3);
    grid.SetRows(4);
    EXPECT_EQ(grid.Row() * 10 + changes, 22);
    EXPECT_EQ(grid.TextMatrix(3, 1), "");
    EXPECT_THROW(grid.SetRow(4), Failure);
    EXPECT_THROW(grid.SetCol(-1), Failure);
    EXPECT_THROW(grid.SetRows(0), Failure);
    grid.OnRowColChange([] { throw Failure("from the handler", 1, "test"); });
    EXPECT_THROW(grid.SetCol(0), Failure);
}

} // namespace
} // namespace orvane
