#include "forms/options_form.h"

#include "windows.h"

#include <QtWidgets>

#include <cmath>

namespace orvane {
namespace {

/// The tabs of the window, counted from 0.
enum Tabs : int { BlocksTab = 0, CodeTab = 1, FormatTab = 2, StatisticsTab = 3 };

void ExpectOptions(const ListSettings& found, const ListSettings& expected) {
    EXPECT_EQ(found.prBlockOption, expected.prBlockOption);
    EXPECT_EQ(found.prEqBlockSize, expected.prEqBlockSize);
    EXPECT_EQ(found.prUnEqBlockSize, expected.prUnEqBlockSize);
    EXPECT_EQ(found.CodeAlphaNum, expected.CodeAlphaNum);
    EXPECT_EQ(found.CodeSeqRandom, expected.CodeSeqRandom);
    EXPECT_EQ(found.CodeLength, expected.CodeLength);
    EXPECT_EQ(found.PerformRuns, expected.PerformRuns);
    EXPECT_EQ(found.SigLevel, expected.SigLevel);
    EXPECT_EQ(found.Columns, expected.Columns);
    EXPECT_EQ(found.CellSpacing, expected.CellSpacing);
    EXPECT_EQ(found.TableBorder, expected.TableBorder);
}

struct Options : WindowTest {
    Options() {
        settings.SampleSize = 20;
        settings.CodeLength = 3;
        settings.SigLevel = 0.05F;
        grid.setColumnCount(2);
        groupNames.SetGroups();
    }
    /// Runs the script in the window, which it may leave open for Cancel.
    void Open(const std::function<void(QDialog&)>& script) {
        WhileOpen([this] { form.ShowModal(); },
                  [&](QDialog& window) {
                      script(window);
                      if (window.isVisible())
                          Click(window, "cmdCancel");
                  });
    }
    static void SelectTab(QDialog& window, int tab) {
        Find<QTabBar>(window, "tbsOptions").setCurrentIndex(tab);
    }
    static int SelectedTab(QDialog& window) {
        const int tab = Find<QTabBar>(window, "tbsOptions").currentIndex();
        EXPECT_EQ(Find<QStackedWidget>(window, "picOptions").currentIndex(), tab);
        return tab;
    }
    static void PressOn(QDialog& window, const std::string& control, Qt::Key key) {
        Find(window, control).setFocus();
        Press(key);
    }
    /// Changes everything that can be changed, tab by tab.
    static void ChangeAll(QDialog& window) {
        Click(window, "BlkOpt_1");
        Fill(window, "EqBlockSizeTxt", "1 x");
        Click(window, "BlkOpt_2");
        Fill(window, "UnEqBlockSizeTxt", "4,6");
        SelectTab(window, CodeTab);
        Click(window, "AlphaNumOpt_1");
        Click(window, "SeqRandOpt_1");
        PressOn(window, "LenHsb", Qt::Key_PageDown);
        SelectTab(window, FormatTab);
        PressOn(window, "ColHsb", Qt::Key_PageUp);
        Click(window, "chkTableBorder");
        PressOn(window, "hsbCellSp", Qt::Key_PageDown);
        SelectTab(window, StatisticsTab);
        Click(window, "chkPerformRuns");
        Fill(window, "txtLevel", "0.25");
    }

    LineBox TempTxt;
    FlexGridWidget grid;
    ListSettings settings;
    ListResults results;
    GroupNameEditor groupNames{settings, grid, TempTxt};
    OptionsForm form{settings, results, groupNames, desktop.platform};
};

TEST_F(Options, OpenOnTheFirstTabAndStopTheTabKeyAtTheControlsOfEachTab) {
    const Texts stops[] = {{"BlkOpt_1", "EqBlockSizeTxt"},
                           {"LenHsb", "SeqRandOpt_0", "AlphaNumOpt_0"},
                           {"ColHsb", "chkTableBorder", "hsbCellSp"},
                           {"txtLevel", "chkPerformRuns"}};
    settings.prBlockOption = EqualSize;
    desktop.pointer.ShowBusy();
    Open([&](QDialog& window) {
        EXPECT_FALSE(desktop.pointer.Busy);
        EXPECT_EQ(SelectedTab(window), BlocksTab);
        ExpectNothingClippedOrUnnamed(window);
        for (const int tab : {BlocksTab, CodeTab, FormatTab, StatisticsTab}) {
            SelectTab(window, tab);
            Texts expected = {"tbsOptions", "cmdOK", "cmdCancel", "cmdApply"};
            expected.insert(expected.end(), stops[tab].begin(), stops[tab].end());
            EXPECT_EQ(TabStops(window), expected);
        }
    });
}

TEST_F(Options, RaiseTheCodeLengthToItsLimitAndNeverLowerIt) {
    struct Row {
        std::int16_t sampleSize;
        std::int16_t length;
        std::int16_t shown;
    };
    // 3 is the position of the bar before the opening, which a new limit may push.
    const Row rows[] = {{3, 0, 1}, {20, 3, 3}, {20, 1, 2}, {317, 3, 4}, {32767, 8, 8}};
    for (const Row& row : rows) {
        SCOPED_TRACE(std::to_string(row.sampleSize) + " subjects, length " + std::to_string(row.length));
        settings.SampleSize = row.sampleSize;
        settings.CodeLength = row.length;
        Open([&](QDialog& window) {
            EXPECT_EQ(TextOf(window, "LenLbl"), std::to_string(row.shown));
            EXPECT_EQ(settings.CodeLength, row.shown);
        });
        EXPECT_EQ(settings.CodeLength, row.length) << "after Cancel";
    }
}

TEST_F(Options, ShowLoadedValuesOutOfRangeAsTheNearestAndKeepThemAtCancel) {
    settings.CodeAlphaNum = 9;
    settings.CellSpacing = -5;
    settings.Columns = 11;
    settings.SigLevel = std::nextafter(0.05F, 1.0F);
    Open([](QDialog& window) {
        EXPECT_TRUE(Find<QRadioButton>(window, "AlphaNumOpt_2").isChecked());
        EXPECT_EQ(TextOf(window, "lblCellSp"), "0");
        EXPECT_EQ(TextOf(window, "ColLbl"), "10");
        EXPECT_EQ(TextOf(window, "txtLevel"), "0.05");
    });
    EXPECT_EQ(settings.CodeAlphaNum, 9);
    EXPECT_EQ(settings.SigLevel, 0.05F) << "the level alone is taken as it is shown";
}

TEST_F(Options, GoBackAtCancelEscapeAndTheCloseOfTheFrame) {
    const ListSettings before = settings;
    for (const auto& leave : std::vector<std::function<void(QDialog&)>>{
             [](QDialog& window) { Click(window, "cmdCancel"); }, [](QDialog&) { Press(Qt::Key_Escape); },
             [](QDialog& window) { window.close(); }}) {
        settings = before;
        Open([&](QDialog& window) {
            ChangeAll(window);
            leave(window);
        });
        EXPECT_EQ(settings.SelectedCmd, ClosedByCancel);
        settings.Columns = before.Columns; // the only option that keeps its change
        ExpectOptions(settings, before);
        EXPECT_FALSE(desktop.pointer.Busy);
    }
}

TEST_F(Options, AreTakenByOKUnderTheBusyPointer) {
    ListSettings expected;
    expected.prBlockOption = RandomSizesOf;
    expected.prEqBlockSize = "1 x";
    expected.prUnEqBlockSize = "4,6";
    expected.CodeAlphaNum = Numeric;
    expected.CodeSeqRandom = Random;
    expected.CodeLength = 4;
    expected.Columns = 5;
    expected.PerformRuns = true;
    expected.SigLevel = 0.25F;
    Open([&](QDialog& window) {
        ChangeAll(window);
        ExpectOptions(settings, expected);
        Press(Qt::Key_Return);
    });
    expected.TableBorder = true; // these two are taken by OK alone
    expected.CellSpacing = 2;
    ExpectOptions(settings, expected);
    EXPECT_EQ(settings.SelectedCmd, ClosedByOK);
    EXPECT_EQ(settings.GroupNames, (Texts{"Group 1", "Group 2"}));
    EXPECT_TRUE(desktop.pointer.Busy);
    EXPECT_GT(results.BlockSizes.size(), 1U);
    Open([](QDialog& window) {
        EXPECT_TRUE(Find<QCheckBox>(window, "chkPerformRuns").isChecked());
        Click(window, "cmdOK");
    });
    ExpectOptions(settings, expected); // as they were shown again
}

TEST_F(Options, EnableTheFieldOfTheSelectedBlocksAndMoveTheFocusThere) {
    struct Row {
        std::string clicked;
        bool equalEnabled;
        bool listEnabled;
        std::string focused;
        std::string selected;
    };
    const Row rows[] = {{"BlkOpt_2", false, true, "UnEqBlockSizeTxt", "4-8"},
                        {"BlkOpt_1", true, false, "EqBlockSizeTxt", "12"},
                        {"BlkOpt_0", false, false, "BlkOpt_0", ""}};
    settings.prEqBlockSize = "12";
    settings.prUnEqBlockSize = "4-8";
    Open([&](QDialog& window) {
        for (const Row& row : rows) {
            SCOPED_TRACE(row.clicked);
            Click(window, row.clicked);
            EXPECT_EQ(Find(window, "EqBlockSizeTxt").isEnabled(), row.equalEnabled);
            EXPECT_EQ(Find(window, "UnEqBlockSizeTxt").isEnabled(), row.listEnabled);
            EXPECT_EQ(Focused(window), row.focused);
            EXPECT_EQ(SelectedText(window), row.selected);
        }
        Press(Qt::Key_Down);
        EXPECT_EQ(Focused(window), "EqBlockSizeTxt") << "after an arrow key too";
    });
}

TEST_F(Options, StepToTheNextTabAtCtrlTabFromEveryControl) {
    settings.prBlockOption = RandomSizesOf;
    Open([](QDialog& window) {
        int tab = BlocksTab;
        for (const char* control : {"UnEqBlockSizeTxt", "LenHsb", "chkTableBorder", "txtLevel", "BlkOpt_2"}) {
            SCOPED_TRACE(control);
            Find(window, control).setFocus();
            Press(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
            Press(Qt::Key_A, Qt::ControlModifier);
            EXPECT_EQ(SelectedTab(window), tab) << "after Ctrl+Shift+Tab and Ctrl+A";
            Find(window, control).setFocus();
            Press(Qt::Key_Tab, Qt::ControlModifier);
            tab = tab == StatisticsTab ? BlocksTab : tab + 1;
            EXPECT_EQ(SelectedTab(window), tab);
        }
        QTest::keyClick(&window, Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(SelectedTab(window), tab + 1) << "without a control that has the focus";
    });
}

TEST_F(Options, StayOpenAfterARefusalWithTheFocusOnTheFieldIfItIsInSight) {
    struct Row {
        BlockOptions option;
        int tab;
        std::string text; ///< of the field that is refused
        std::string focused;
    };
    const Row rows[] = {{EqualSize, BlocksTab, "abc", "EqBlockSizeTxt"},
                        {EqualSize, CodeTab, "", "cmdOK"},
                        {RandomSizesOf, BlocksTab, "x", "UnEqBlockSizeTxt"},
                        {OnlyOneBlock, BlocksTab, "0.31", "txtLevel"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.focused);
        settings.prEqBlockSize = settings.prUnEqBlockSize = row.text;
        settings.prBlockOption = row.option;
        Open([&](QDialog& window) {
            if (row.option == OnlyOneBlock)
                Find<LineBox>(window, "txtLevel").SetText(row.text);
            SelectTab(window, row.tab);
            Click(window, "cmdOK");
            EXPECT_NE(Message(), "");
            EXPECT_EQ(Focused(window), row.focused);
            EXPECT_TRUE(Find(window, row.focused).isVisible());
            EXPECT_EQ(SelectedText(window), row.text);
        });
    }
}

TEST_F(Options, IgnoreTheirButtonsBehindARefusal) {
    settings.prBlockOption = EqualSize;
    Open([this](QDialog& window) {
        desktop.messages.WhileShown = [&] {
            Click(window, "cmdOK");
            Click(window, "cmdCancel");
            window.close();
            EXPECT_TRUE(window.isVisible());
        };
        Click(window, "cmdOK");
        EXPECT_EQ(desktop.messages.TakeAll(), Texts{"please specify the block size"});
    });
}

TEST_F(Options, TakeEnterAsOKOrAsThePressOfTheFocusedButton) {
    Open([](QDialog& window) {
        PressOn(window, "cmdApply", Qt::Key_Return);
        EXPECT_TRUE(window.isVisible());
        PressOn(window, "cmdCancel", Qt::Key_Enter);
    });
    EXPECT_EQ(settings.SelectedCmd, ClosedByCancel);
    Open([](QDialog& window) { PressOn(window, "BlkOpt_0", Qt::Key_Return); });
    EXPECT_EQ(settings.SelectedCmd, ClosedByOK);
}

} // namespace
} // namespace orvane
