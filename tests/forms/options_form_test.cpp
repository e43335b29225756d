#include "forms/options_form.h"

#include "engine/numbers.h"
#include "fakes/desktop.h"
#include "forms/line_box.h"
#include "window_driver.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTabBar>

#include <cmath>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace orvane {
namespace {

using namespace fakes;

class OptionsFormTest : public testing::Test {
  protected:
    OptionsFormTest() {
        settings.SampleSize = 20;
        settings.CodeLength = 3;
        settings.SigLevel = 0.05F;
    }

    void Open(const Script& script) { WhileOpen(form, script); }

    /// What Cancel restores, in the order of the panels.
    [[nodiscard]] auto Restored() const {
        return std::tuple(settings.prBlockOption, settings.prEqBlockSize, settings.prUnEqBlockSize,
                          settings.CodeAlphaNum, settings.CodeSeqRandom, settings.CodeLength,
                          settings.PerformRuns, settings.SigLevel);
    }

    static std::string Shown(QDialog& window, const std::string& name) {
        return Find<QLabel>(window, name).text().toStdString();
    }
    static void SelectTab(QDialog& window, int tab) {
        Find<QTabBar>(window, "tbsOptions").setCurrentIndex(tab - 1);
    }
    static int Tab(QDialog& window) {
        EXPECT_EQ(Find<QTabBar>(window, "tbsOptions").currentIndex(),
                  Find<QStackedWidget>(window, "picOptions").currentIndex());
        return Find<QTabBar>(window, "tbsOptions").currentIndex() + 1;
    }
    static void Cancel(QDialog& window) { Click(window, "cmdCancel"); }

    FakeDesktop desktop;
    MemoryGrid grid;
    ListSettings settings;
    ListResults results;
    OptionsForm form{settings, results, grid, desktop.platform};
};

TEST_F(OptionsFormTest, OpensOnTheFirstTabWithTheNormalPointer) {
    desktop.pointer.ShowBusy();
    for (int opening = 1; opening <= 2; ++opening)
        Open([&](QDialog& window) {
            EXPECT_FALSE(desktop.pointer.Busy);
            EXPECT_EQ(window.windowTitle(), "Options");
            EXPECT_EQ(window.windowModality(), Qt::ApplicationModal);
            EXPECT_EQ(window.minimumSize(), window.maximumSize());
            EXPECT_FALSE(window.windowFlags() & Qt::WindowMinMaxButtonsHint);
            const QPoint off =
                window.frameGeometry().center() - window.screen()->availableGeometry().center();
            EXPECT_LT(off.manhattanLength(), 30);
            EXPECT_EQ(Tab(window), 1);
            EXPECT_EQ(Focused(window), "tbsOptions");
            const auto& tabs = Find<QTabBar>(window, "tbsOptions");
            QStringList texts;
            for (int tab = 0; tab < tabs.count(); ++tab)
                texts << tabs.tabText(tab) << tabs.tabToolTip(tab);
            EXPECT_EQ(texts.join('|'),
                      "Blocks|Set Options for blocks|Code|Set Options for code|Format|"
                      "Set Options for format|Statistics|Set statistics on generated sequence");
            SelectTab(window, 3);
            Cancel(window);
        });
}

TEST_F(OptionsFormTest, HasItsWordings) {
    const std::vector<std::pair<std::string, std::string>> wordings = {
        {"BlockFrame", "Blocks|"},
        {"BlkOpt_0", "Only one block|Block Size = Sample Size"},
        {"BlkOpt_1", "Equal size|Block Size Not Set"},
        {"EqBlockSizeTxt", "|Size of Equal Blocks"},
        {"BlkOpt_2", "Random sizes of|Random Block Size not Set"},
        {"UnEqBlockSizeTxt", "|Random Block Sizes"},
        {"BlkOpt_3", "Random Block Size|Random Block Size"},
        {"RandomSIzesLbl", "Enter block sizes and/or ranges separated by commas. For example 6,8,10,12-16|"},
        {"Frame1", "Alpha Numeric|"},
        {"AlphaNumOpt_0", "Alpha|"},
        {"AlphaNumOpt_1", "Numeric|"},
        {"AlphaNumOpt_2", "Mixed|"},
        {"Frame2", "Sequential / Random|"},
        {"SeqRandOpt_0", "Sequential|"},
        {"SeqRandOpt_1", "Random|"},
        {"Label1", "Length|"},
        {"Frame3", "Format|"},
        {"Label2", "Columns|"},
        {"chkTableBorder", "Table Border (Web Page only)|"},
        {"Label3", "Cell Spacing (Web Page Only)|"},
        {"Frame4", "Statistics|"},
        {"chkPerformRuns", "Runs test on generated sequence|"},
        {"Label4", "Level of significance|"},
        {"cmdOK", "OK|"},
        {"cmdCancel", "Cancel|"},
        {"cmdApply", "Apply|"}};
    Open([&](QDialog& window) {
        for (const auto& [name, wording] : wordings)
            EXPECT_EQ(Wording(window, name), wording) << name;
        Cancel(window);
    });
}

TEST_F(OptionsFormTest, TabKeyWalksThePanelInItsOrder) {
    struct Row {
        int tab;
        std::int32_t blockOption;
        std::vector<std::string> stops; ///< behind cmdApply; of each group of options the selected one
    };
    const std::vector<Row> rows{{1, 0, {"BlkOpt_0"}},
                                {1, 1, {"BlkOpt_1", "EqBlockSizeTxt"}},
                                {1, 2, {"BlkOpt_2", "UnEqBlockSizeTxt"}},
                                {2, 0, {"LenHsb", "SeqRandOpt_1", "AlphaNumOpt_2"}},
                                {3, 0, {"ColHsb", "chkTableBorder", "hsbCellSp"}},
                                {4, 0, {"txtLevel", "chkPerformRuns"}}};
    settings.CodeAlphaNum = Mixed;
    settings.CodeSeqRandom = Random;
    for (const Row& row : rows) {
        settings.prBlockOption = row.blockOption;
        Open([&](QDialog& window) {
            SelectTab(window, row.tab);
            std::vector<std::string> expected{"cmdOK", "cmdCancel", "cmdApply"};
            expected.insert(expected.end(), row.stops.begin(), row.stops.end());
            expected.emplace_back("tbsOptions");
            std::vector<std::string> walked;
            for (std::size_t step = 0; step < expected.size(); ++step) {
                Press(Qt::Key_Tab);
                walked.push_back(Focused(window));
            }
            EXPECT_EQ(walked, expected) << "tab " << row.tab;
            Cancel(window);
        });
    }
}

TEST_F(OptionsFormTest, EveryControlThatTakesTheFocusHasAName) {
    Open([](QDialog& window) {
        for (QWidget* control : window.findChildren<QWidget*>())
            if ((control->focusPolicy() & Qt::TabFocus) != 0) {
                EXPECT_FALSE(
                    QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty())
                    << control->objectName().toStdString();
            }
        Cancel(window);
    });
}

TEST_F(OptionsFormTest, CodeLengthIsRaisedToItsLimitAndNeverLowered) {
    struct Row {
        std::int16_t sampleSize;
        std::int16_t length;
        int limit;
        std::int16_t shown;
    };
    // 3 is the bar's position and limit before the opening, where a limit that is set may push it.
    for (const Row& row : {Row{3, 0, 1, 1}, Row{20, 3, 2, 3}, Row{20, 1, 2, 2}, Row{1000, 3, 4, 4},
                           Row{32767, 8, 6, 8}, Row{32767, 0, 6, 6}, Row{100, 10, 3, 10}}) {
        settings.SampleSize = row.sampleSize;
        settings.CodeLength = row.length;
        Open([&](QDialog& window) {
            const auto& bar = Find<QScrollBar>(window, "LenHsb");
            EXPECT_EQ(bar.minimum(), row.limit);
            EXPECT_EQ(bar.maximum(), 10);
            EXPECT_EQ(settings.CodeLength, row.shown) << row.sampleSize;
            EXPECT_EQ(Shown(window, "LenLbl"), std::to_string(row.shown));
            Cancel(window);
        });
        EXPECT_EQ(settings.CodeLength, row.length);
    }
}

TEST_F(OptionsFormTest, LoadedValuesOutOfRangeAreShownAsTheNearest) {
    settings.CodeAlphaNum = 9;
    settings.CodeSeqRandom = -1;
    settings.prBlockOption = 17;
    settings.CodeLength = 300;
    settings.Columns = 99;
    settings.CellSpacing = -5;
    const auto before = Restored();
    Open([&](QDialog& window) {
        for (const char* option : {"AlphaNumOpt_2", "SeqRandOpt_0", "BlkOpt_3"})
            EXPECT_TRUE(Find<QRadioButton>(window, option).isChecked()) << option;
        EXPECT_EQ(Shown(window, "LenLbl") + Shown(window, "ColLbl") + Shown(window, "lblCellSp"), "10100");
        EXPECT_EQ(settings.Columns, 10);
        Cancel(window);
    });
    settings.Columns = 0;
    settings.CellSpacing = 6;
    Open([&](QDialog& window) {
        EXPECT_EQ(Shown(window, "ColLbl") + Shown(window, "lblCellSp"), "15");
        Cancel(window);
    });
    EXPECT_EQ(Restored(), before);
}

/// Changes everything that can be changed, looking at each value behind its edit.
void ChangeAll(QDialog& window, const ListSettings& settings) {
    const auto type = [&](const std::string& field, const QString& text) {
        auto& box = Find<LineBox>(window, field);
        box.setFocus();
        box.selectAll();
        for (const QChar key : text)
            QTest::keyClicks(&box, key);
    };
    const auto up = [&](const std::string& bar) {
        QTest::keyClick(&Find<QScrollBar>(window, bar), Qt::Key_PageDown);
    };
    Click(window, "BlkOpt_1");
    type("EqBlockSizeTxt", "1 x");
    EXPECT_EQ(settings.prEqBlockSize, "1 x");
    Click(window, "BlkOpt_2");
    type("UnEqBlockSizeTxt", "4,6");
    EXPECT_EQ(settings.prUnEqBlockSize, "4,6");
    EXPECT_EQ(settings.prBlockOption, RandomSizesOf);
    Press(Qt::Key_Tab, Qt::ControlModifier);
    Click(window, "AlphaNumOpt_1");
    Click(window, "SeqRandOpt_1");
    up("LenHsb");
    EXPECT_EQ(std::tuple(settings.CodeAlphaNum, settings.CodeSeqRandom, settings.CodeLength),
              std::tuple(Numeric, Random, 4));
    Press(Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyClick(&Find<QScrollBar>(window, "ColHsb"), Qt::Key_PageUp);
    EXPECT_EQ(settings.Columns, 5);
    up("hsbCellSp");
    Click(window, "chkTableBorder");
    EXPECT_EQ(std::tuple(settings.CellSpacing, settings.TableBorder), std::tuple(1, false));
    Press(Qt::Key_Tab, Qt::ControlModifier);
    Click(window, "chkPerformRuns");
    EXPECT_TRUE(settings.PerformRuns);
    type("txtLevel", "0");
    EXPECT_EQ(settings.SigLevel, 0.0F);
    type("txtLevel", "0.25");
    EXPECT_EQ(settings.SigLevel, 0.25F);
    for (const auto& [label, text] : {std::pair("LenLbl", "4"), {"ColLbl", "5"}, {"lblCellSp", "2"}})
        EXPECT_EQ(Find<QLabel>(window, label).text(), text);
    Click(window, "cmdApply");
}

TEST_F(OptionsFormTest, CancelEscAndTheFrameGoBackToTheSnapshot) {
    for (const auto& leave :
         std::vector<Script>{[](QDialog& window) { Cancel(window); }, [](QDialog&) { Press(Qt::Key_Escape); },
                             [](QDialog& window) { window.close(); }}) {
        settings.Columns = 6;
        settings.SelectedCmd = ClosedByOK;
        const auto before = Restored();
        const std::string calls = desktop.pointer.Calls + "N";
        Open([&](QDialog& window) {
            ChangeAll(window, settings);
            EXPECT_EQ(settings.SelectedCmd, ClosedByOK);
            leave(window);
        });
        EXPECT_EQ(Restored(), before);
        EXPECT_EQ(
            std::tuple(settings.SelectedCmd, settings.Columns, settings.CellSpacing, settings.TableBorder),
            std::tuple(ClosedByCancel, 5, 1, false));
        EXPECT_EQ(desktop.pointer.Calls, calls);
    }
    EXPECT_EQ(results.BlockSizes.size(), 1U);
}

TEST_F(OptionsFormTest, OKKeepsAllAndTheNextOpeningShowsIt) {
    Open([&](QDialog& window) {
        ChangeAll(window, settings);
        Find<QWidget>(window, "txtLevel").setFocus();
        Press(Qt::Key_Return);
        Cancel(window); // comes too late
    });
    EXPECT_EQ(std::tuple(settings.SelectedCmd, settings.Columns, settings.CellSpacing, settings.TableBorder),
              std::tuple(ClosedByOK, 5, 2, true));
    EXPECT_EQ(Restored(), std::tuple(RandomSizesOf, "1 x", "4,6", Numeric, Random, 4, true, 0.25F));
    EXPECT_TRUE(desktop.pointer.Busy);
    EXPECT_GE(SumArr(results.BlockSizes), 20);
    Open([&](QDialog& window) {
        EXPECT_TRUE(Find<QCheckBox>(window, "chkPerformRuns").isChecked());
        EXPECT_TRUE(Find<QCheckBox>(window, "chkTableBorder").isChecked());
        EXPECT_TRUE(settings.PerformRuns);
        EXPECT_EQ(Find<LineBox>(window, "EqBlockSizeTxt").Text(), "1 x");
        EXPECT_EQ(Find<LineBox>(window, "UnEqBlockSizeTxt").Text(), "4,6");
        EXPECT_EQ(Find<LineBox>(window, "txtLevel").Text(), "0.25");
        EXPECT_EQ(Shown(window, "lblCellSp"), "2");
        Cancel(window);
    });
    EXPECT_EQ(settings.SelectedCmd, ClosedByCancel);
}

TEST_F(OptionsFormTest, BlockOptionEnablesItsFieldAndMovesTheFocusThere) {
    settings.prEqBlockSize = "12";
    settings.prUnEqBlockSize = "4-8";
    settings.prBlockOption = EqualSize;
    Open([&](QDialog& window) {
        const auto state = [&] {
            return std::tuple(Find<QWidget>(window, "EqBlockSizeTxt").isEnabled(),
                              Find<QWidget>(window, "UnEqBlockSizeTxt").isEnabled(), Focused(window));
        };
        EXPECT_EQ(state(), std::tuple(true, false, "tbsOptions"));
        Click(window, "BlkOpt_2");
        EXPECT_EQ(state(), std::tuple(false, true, "UnEqBlockSizeTxt"));
        EXPECT_EQ(Find<LineBox>(window, "UnEqBlockSizeTxt").selectedText(), "4-8");
        Click(window, "BlkOpt_3");
        EXPECT_EQ(state(), std::tuple(false, false, "BlkOpt_3"));
        Click(window, "BlkOpt_0");
        EXPECT_EQ(state(), std::tuple(false, false, "BlkOpt_0"));
        EXPECT_EQ(settings.prEqBlockSize + settings.prUnEqBlockSize, "124-8");
        Press(Qt::Key_Down);
        EXPECT_EQ(state(), std::tuple(true, false, "EqBlockSizeTxt"));
        Type("6");
        EXPECT_EQ(settings.prEqBlockSize, "6");
        Cancel(window);
    });
}

TEST_F(OptionsFormTest, CtrlTabStepsToTheNextTabFromEveryControl) {
    settings.prBlockOption = RandomSizesOf;
    Open([](QDialog& window) {
        for (const char* name : {"tbsOptions", "cmdOK", "BlkOpt_2", "UnEqBlockSizeTxt", "LenHsb",
                                 "SeqRandOpt_0", "chkTableBorder", "txtLevel"}) {
            auto& control = Find<QWidget>(window, name);
            for (int tab = 1; !control.isVisible(); ++tab)
                SelectTab(window, tab);
            control.setFocus();
            const int before = Tab(window);
            for (const Qt::KeyboardModifiers other :
                 {Qt::ControlModifier | Qt::ShiftModifier, Qt::ControlModifier | Qt::AltModifier}) {
                Press(Qt::Key_Tab, other);
                Press(Qt::Key_Backtab, other);
                EXPECT_EQ(Tab(window), before) << name;
            }
            control.setFocus();
            Press(Qt::Key_Tab, Qt::ControlModifier);
            EXPECT_EQ(Tab(window), before % 4 + 1) << name;
        }
        Cancel(window);
    });
}

TEST_F(OptionsFormTest, RefusedOKTellsWhyAndLeavesTheWindowOpen) {
    struct Row {
        std::int32_t option;
        const char* size;
        const char* sizes;
        const char* level;
        int tab;
        const char* message;
        const char* focus;
        int tabAfter;
    };
    const char* noSize = "please specify the block size";
    const char* noLevel = "Significance level must be greater than 0 ad less than 0.35";
    for (const Row& row :
         {Row{EqualSize, "abc", "", "0.05", 1, noSize, "EqBlockSizeTxt", 1},
          Row{EqualSize, "", "", "0.05", 2, noSize, "cmdOK", 2},
          Row{EqualSize, "5", "", "0.05", 1, "Block size must be divisable by the number of groups",
              "EqBlockSizeTxt", 1},
          Row{RandomSizesOf, "", "x", "0.05", 1, "please specify block sizes", "UnEqBlockSizeTxt", 1},
          Row{OnlyOneBlock, "", "", "0.31", 1, noLevel, "txtLevel", 4},
          Row{OnlyOneBlock, "", "", "", 4, noLevel, "txtLevel", 4},
          Row{OnlyOneBlock, "", "", "1e999", 3, noLevel, "txtLevel", 4}}) {
        settings.prBlockOption = row.option;
        settings.prEqBlockSize = row.size;
        settings.prUnEqBlockSize = row.sizes;
        Open([&](QDialog& window) {
            Find<LineBox>(window, "txtLevel").setText(row.level);
            SelectTab(window, row.tab);
            Click(window, "cmdOK");
            EXPECT_EQ(desktop.messages.TakeAll(), std::vector<std::string>{row.message});
            EXPECT_EQ(Focused(window), row.focus) << row.message;
            EXPECT_EQ(Tab(window), row.tabAfter);
            if (const auto* field = qobject_cast<LineBox*>(window.focusWidget())) {
                EXPECT_EQ(field->selectedText(), field->text());
            }
            ASSERT_TRUE(window.isVisible());
            Cancel(window);
        });
    }
}

TEST_F(OptionsFormTest, WithoutAnySettingsTheLevelShowsZeroAndIsRefused) {
    settings.SigLevel = 0;
    Open([&](QDialog& window) {
        EXPECT_EQ(Find<LineBox>(window, "txtLevel").Text(), "0");
        Press(Qt::Key_Return);
        EXPECT_NE(desktop.messages.Take(), "");
        Type("9");
        Press(Qt::Key_Return);
        EXPECT_NE(desktop.messages.Take(), "");
        Type("0.3"); // over the whole text
        Press(Qt::Key_Return);
    });
    EXPECT_EQ(settings.SigLevel, 0.3F);
    EXPECT_EQ(results.BlockSizes, (std::vector<std::int16_t>{0, 20}));
}

TEST_F(OptionsFormTest, ShownLevelIsWhatIsStored) {
    settings.SigLevel = std::nextafter(0.05F, 1.0F);
    Open([&](QDialog& window) {
        EXPECT_EQ(Find<LineBox>(window, "txtLevel").Text(), "0.05");
        EXPECT_EQ(settings.SigLevel, 0.05F);
        Cancel(window);
    });
    EXPECT_EQ(settings.SigLevel, 0.05F);
}

TEST_F(OptionsFormTest, FailureBehindOKIsReportedOnceAndTheWindowStays) {
    desktop.random.Fails = {"UniformNext"};
    settings.prBlockOption = RandomBlockSize;
    Open([&](QDialog& window) {
        Click(window, "cmdOK");
        EXPECT_EQ(desktop.messages.TakeAll().size(), 1U);
        EXPECT_TRUE(window.isVisible());
        EXPECT_FALSE(desktop.pointer.Busy);
        Press(Qt::Key_Escape);
    });
}

TEST_F(OptionsFormTest, EnterPressesOKAtEveryOtherControl) {
    for (const auto& [tab, name] : std::vector<std::pair<int, std::string>>{{1, "tbsOptions"},
                                                                            {1, "BlkOpt_3"},
                                                                            {1, "BlkOpt_0"},
                                                                            {2, "LenHsb"},
                                                                            {2, "SeqRandOpt_0"},
                                                                            {3, "chkTableBorder"},
                                                                            {4, "chkPerformRuns"},
                                                                            {4, "txtLevel"}}) {
        settings.SelectedCmd = NotClosedByButton;
        Open([&, tab = tab, name = name](QDialog& window) {
            SelectTab(window, tab);
            Find<QWidget>(window, name).setFocus();
            QTest::simulateEvent(QApplication::focusWidget(), true, Qt::Key_Return, {}, "\r", true);
            EXPECT_TRUE(window.isVisible()) << "a key that is held down";
            Press(tab % 2 == 0 ? Qt::Key_Enter : Qt::Key_Return);
        });
        EXPECT_EQ(settings.SelectedCmd, ClosedByOK) << name;
        EXPECT_FALSE(settings.PerformRuns || settings.TableBorder);
    }
}

TEST_F(OptionsFormTest, EnterOnAFocusedButtonPressesThatButton) {
    Open([&](QDialog& window) {
        Find<QWidget>(window, "cmdApply").setFocus();
        Press(Qt::Key_Return);
        EXPECT_TRUE(window.isVisible());
        Find<QWidget>(window, "cmdCancel").setFocus();
        Press(Qt::Key_Enter);
    });
    EXPECT_EQ(settings.SelectedCmd, ClosedByCancel);
}

} // namespace
} // namespace orvane
