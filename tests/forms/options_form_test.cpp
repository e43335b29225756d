#include "forms/options_form.h"

#include "windows.h"

#include <QStackedWidget>

#include <cmath>

namespace orvane {
namespace {

struct Options : WindowTest {
    Options() {
        settings.SampleSize = 20;
        settings.CodeLength = 3;
        settings.SigLevel = std::nextafter(0.05F, 1.0F);
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
    /// The values of the panels. Cancel restores those before the bar.
    [[nodiscard]] std::string Values() const {
        std::ostringstream all;
        all << settings.prBlockOption << ' ' << settings.prEqBlockSize << ' ' << settings.prUnEqBlockSize
            << ' ' << settings.CodeAlphaNum << settings.CodeSeqRandom << ' ' << settings.CodeLength << ' '
            << settings.PerformRuns << ' ' << settings.SigLevel << '|' << settings.Columns
            << settings.CellSpacing << settings.TableBorder;
        return all.str();
    }
    static std::string Text(QDialog& window, const std::string& name) {
        return Find(window, name).property("text").toString().toStdString();
    }
    /// The labels of the bars: the length of a code, columns, cell spacing.
    static std::string Bars(QDialog& window) {
        return Text(window, "LenLbl") + " " + Text(window, "ColLbl") + " " + Text(window, "lblCellSp");
    }
    static bool Checked(QDialog& window, const std::string& name) {
        return Find(window, name).property("checked").toBool();
    }
    static void SelectTab(QDialog& window, int tab) {
        Find<QTabBar>(window, "tbsOptions").setCurrentIndex(tab - 1);
    }
    static int Tab(QDialog& window) {
        const int tab = Find<QTabBar>(window, "tbsOptions").currentIndex();
        EXPECT_EQ(tab, Find<QStackedWidget>(window, "picOptions").currentIndex());
        return tab + 1;
    }
    /// Changes everything that can be changed.
    static void ChangeAll(QDialog& window) {
        const auto type = [&](const std::string& field, const QString& text) {
            Find<LineBox>(window, field).setFocus();
            Find<LineBox>(window, field).selectAll();
            Type(text);
        };
        Click(window, "BlkOpt_1");
        type("EqBlockSizeTxt", "1 x");
        Click(window, "BlkOpt_2");
        type("UnEqBlockSizeTxt", "4,6");
        for (const std::string control : {"", "AlphaNumOpt_1", "SeqRandOpt_1", "LenHsb", "", "chkTableBorder",
                                          "ColHsb", "hsbCellSp", "", "chkPerformRuns"}) {
            if (control.empty())
                Press(Qt::Key_Tab, Qt::ControlModifier);
            else if (qobject_cast<QScrollBar*>(&Find(window, control)) == nullptr)
                Click(window, control);
            else
                QTest::keyClick(&Find(window, control),
                                control == "ColHsb" ? Qt::Key_PageUp : Qt::Key_PageDown);
        }
        Click(window, "cmdApply");
        type("txtLevel", "0.25");
        EXPECT_EQ(Bars(window), "4 5 2");
    }
    /// The values behind ChangeAll, but for the cell spacing and the border, which OK alone takes.
    const std::string AllChanged = "2 1 x 4,6 11 4 1 0.25|5";

    MemoryGrid grid;
    ListSettings settings;
    ListResults results;
    OptionsForm form{settings, results, grid, desktop.platform};
};

TEST_F(Options, OpenOnTheFirstTabUnderTheNormalPointer) {
    desktop.pointer.ShowBusy();
    Open([&](QDialog& window) {
        EXPECT_FALSE(desktop.pointer.Busy);
        EXPECT_EQ(Wordings(window), Told("options_form.txt"));
        EXPECT_EQ(settings.SigLevel, 0.05F) << "as shown";
        const auto& tabs = Find<QTabBar>(window, "tbsOptions");
        EXPECT_EQ(tabs.tabText(3) + tabs.tabToolTip(0), "StatisticsSet Options for blocks");
        EXPECT_EQ(Tab(window), 1);
    });
    settings.CodeAlphaNum = Mixed;
    settings.CodeSeqRandom = Random;
    // The tab, the block option, and of the Tab key's stops those in the panel.
    const std::vector<std::tuple<int, BlockOptions, std::string>> rows = {
        {1, OnlyOneBlock, "BlkOpt_0"},
        {1, EqualSize, "BlkOpt_1 EqBlockSizeTxt"},
        {1, RandomSizesOf, "BlkOpt_2 UnEqBlockSizeTxt"},
        {2, OnlyOneBlock, "LenHsb SeqRandOpt_1 AlphaNumOpt_2"},
        {3, OnlyOneBlock, "ColHsb chkTableBorder hsbCellSp"},
        {4, OnlyOneBlock, "txtLevel chkPerformRuns"}};
    for (const auto& [tab, option, stops] : rows) {
        settings.prBlockOption = option;
        Open([&, tab = tab, stops = stops](QDialog& window) {
            SelectTab(window, tab);
            EXPECT_EQ(TabStops(window), "tbsOptions cmdOK cmdCancel cmdApply " + stops);
        });
    }
}

TEST_F(Options, CodeLengthIsRaisedToItsLimitAndNeverLowered) {
    // The sample size, the code length, its limit, the length shown. 3 is the bar's position and limit before
    // the opening, where a limit that is set may push it.
    using Row = std::array<std::int16_t, 4>;
    for (const auto& [size, length, limit, shown] :
         {Row{3, 0, 1, 1}, Row{20, 3, 2, 3}, Row{20, 1, 2, 2}, Row{1000, 3, 4, 4}, Row{32767, 8, 6, 8},
          Row{32767, 0, 6, 6}, Row{100, 10, 3, 10}}) {
        settings.SampleSize = size;
        settings.CodeLength = length;
        Open([&, limit = limit, shown = shown](QDialog& window) {
            const auto& bar = Find<QScrollBar>(window, "LenHsb");
            EXPECT_EQ(std::tuple(bar.minimum(), bar.maximum()), std::tuple(limit, 10));
            EXPECT_EQ(settings.CodeLength, shown);
            EXPECT_EQ(bar.value(), shown);
            EXPECT_EQ(Text(window, "LenLbl"), std::to_string(shown));
        });
        EXPECT_EQ(settings.CodeLength, length);
    }
}

TEST_F(Options, LoadedValuesOutOfRangeAreShownAsTheNearest) {
    settings.CodeAlphaNum = 9;
    settings.CodeSeqRandom = -1;
    settings.prBlockOption = 17;
    settings.CodeLength = 300;
    settings.SigLevel = std::nextafter(0.05F, 1.0F);
    for (const auto& [columns, spacing, bars, after] :
         {std::tuple(99, -5, "10 10 0", "10-5"), {0, 6, "10 1 5", "16"}}) {
        settings.Columns = static_cast<std::int16_t>(columns);
        settings.CellSpacing = static_cast<std::int16_t>(spacing);
        Open([&, bars = bars](QDialog& window) {
            for (const char* option : {"AlphaNumOpt_2", "SeqRandOpt_0", "BlkOpt_3"})
                EXPECT_TRUE(Checked(window, option)) << option;
            EXPECT_EQ(Bars(window), bars);
            EXPECT_EQ(Text(window, "txtLevel"), "0.05");
        });
        EXPECT_EQ(Values(), "17   9-1 300 0 0.05|"s + after + "0");
        EXPECT_EQ(settings.SigLevel, 0.05F) << "as shown";
    }
}

TEST_F(Options, CancelEscAndTheFrameGoBackToTheSnapshot) {
    for (const auto& leave : std::vector<std::function<void(QDialog&)>>{
             [](QDialog& window) { Click(window, "cmdCancel"); }, [](QDialog&) { Press(Qt::Key_Escape); },
             [](QDialog& window) { window.close(); }}) {
        settings.Columns = 6;
        settings.CodeAlphaNum = 9; // out of range, shown as the nearest
        settings.SelectedCmd = ClosedByOK;
        desktop.pointer.Calls.clear();
        Open([&](QDialog& window) {
            ChangeAll(window);
            EXPECT_EQ(Values(), AllChanged + "10");
            EXPECT_EQ(settings.SelectedCmd, ClosedByOK);
            leave(window);
        });
        EXPECT_EQ(Values(), "0   90 3 0 0.05|510");
        EXPECT_EQ(settings.SelectedCmd, ClosedByCancel);
        EXPECT_EQ(desktop.pointer.Calls, "N");
    }
    EXPECT_EQ(results.BlockSizes.size(), 1U);
}

TEST_F(Options, OKKeepsAllAndTheNextOpeningShowsIt) {
    settings.Columns = 6;
    Open([&](QDialog& window) {
        ChangeAll(window);
        Press(Qt::Key_Return);
        Click(window, "cmdCancel"); // comes too late
    });
    EXPECT_EQ(settings.SelectedCmd, ClosedByOK);
    EXPECT_EQ(Values(), AllChanged + "21");
    EXPECT_TRUE(desktop.pointer.Busy);
    EXPECT_GT(results.BlockSizes.size(), 1U);
    Open([&](QDialog& window) {
        EXPECT_EQ(Values(), AllChanged + "21");
        for (const char* option :
             {"BlkOpt_2", "AlphaNumOpt_1", "SeqRandOpt_1", "chkPerformRuns", "chkTableBorder"})
            EXPECT_TRUE(Checked(window, option)) << option;
        EXPECT_EQ(Text(window, "EqBlockSizeTxt") + Text(window, "UnEqBlockSizeTxt") +
                      Text(window, "txtLevel"),
                  "1 x4,60.25");
        EXPECT_EQ(Bars(window), "4 5 2");
    });
}

TEST_F(Options, ABlockOptionEnablesItsFieldAndMovesTheFocusThere) {
    settings.prEqBlockSize = "12";
    settings.prUnEqBlockSize = "4-8";
    settings.prBlockOption = EqualSize;
    Open([&](QDialog& window) {
        const auto state = [&] {
            const auto* field = qobject_cast<LineBox*>(window.focusWidget());
            return (Find(window, "EqBlockSizeTxt").isEnabled() ? "x"s : "-") +
                   (Find(window, "UnEqBlockSizeTxt").isEnabled() ? "x " : "- ") + Focused(window) +
                   (field == nullptr ? "" : " " + field->selectedText().toStdString());
        };
        EXPECT_EQ(state(), "x- tbsOptions");
        for (const auto& [option, then] : {std::pair("BlkOpt_2", "-x UnEqBlockSizeTxt 4-8"),
                                           {"BlkOpt_3", "-- BlkOpt_3"},
                                           {"BlkOpt_0", "-- BlkOpt_0"}}) {
            Click(window, option);
            EXPECT_EQ(state(), then);
        }
        Press(Qt::Key_Down);
        EXPECT_EQ(state(), "x- EqBlockSizeTxt 12");
        Type("6");
        EXPECT_EQ(settings.prEqBlockSize + settings.prUnEqBlockSize, "64-8");
    });
}

TEST_F(Options, CtrlTabStepsToTheNextTabFromEveryControl) {
    settings.prBlockOption = RandomSizesOf;
    Open([](QDialog& window) {
        int tab = 1;
        for (const char* name : {"UnEqBlockSizeTxt", "LenHsb", "chkTableBorder", "txtLevel", "BlkOpt_2"}) {
            Find(window, name).setFocus();
            Press(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
            EXPECT_EQ(Tab(window), tab) << name;
            Find(window, name).setFocus();
            Press(Qt::Key_Tab, Qt::ControlModifier);
            EXPECT_EQ(Tab(window), tab = tab % 4 + 1) << name;
        }
    });
}

TEST_F(Options, ARefusedOKLeavesTheWindowOpenWithTheFocusOnTheFieldIfItIsInSight) {
    // The block option, its text, the level, the tab at the press, the message, the tab and the focus then.
    const std::string noSize = "please specify the block size";
    const std::string noLevel = "Significance level must be greater than 0 ad less than 0.35";
    const std::vector<std::tuple<BlockOptions, std::string, const char*, int, std::string, std::string>>
        rows = {{EqualSize, "abc", "0.05", 1, noSize, "1 EqBlockSizeTxt abc"},
                {EqualSize, "", "0.05", 2, noSize, "2 cmdOK "},
                {RandomSizesOf, "x", "0.05", 1, "please specify block sizes", "1 UnEqBlockSizeTxt x"},
                {OnlyOneBlock, "", "0.31", 1, noLevel, "4 txtLevel 0.31"},
                {OnlyOneBlock, "", "0", 3, noLevel, "4 txtLevel 0"}};
    for (const auto& row : rows) {
        settings.prEqBlockSize = settings.prUnEqBlockSize = std::get<1>(row);
        settings.prBlockOption = std::get<0>(row);
        Open([&](QDialog& window) {
            Find<LineBox>(window, "txtLevel").setText(std::get<2>(row));
            SelectTab(window, std::get<3>(row));
            Click(window, "cmdOK");
            EXPECT_EQ(Message(), std::get<4>(row));
            const auto* field = qobject_cast<LineBox*>(window.focusWidget());
            const QString selected = field == nullptr ? QString() : field->selectedText();
            EXPECT_EQ(std::to_string(Tab(window)) + " " + Focused(window) + " " + selected.toStdString(),
                      std::get<5>(row));
            EXPECT_TRUE(window.isVisible());
        });
    }
    desktop.random.Fails = {"UniformNext"};
    settings.prBlockOption = RandomBlockSize;
    Open([&](QDialog& window) {
        Click(window, "cmdOK");
        EXPECT_EQ(Message(), "report");
        EXPECT_TRUE(window.isVisible());
        EXPECT_FALSE(desktop.pointer.Busy);
    });
}

TEST_F(Options, EnterPressesOKOrTheFocusedButton) {
    for (const std::string name : {"tbsOptions", "BlkOpt_3", "cmdCancel"}) {
        Open([&](QDialog& window) {
            Find(window, "cmdApply").setFocus();
            Press(Qt::Key_Return);
            Find(window, name).setFocus();
            HoldEnterDown();
            EXPECT_TRUE(window.isVisible());
            Press(Qt::Key_Enter);
            EXPECT_FALSE(window.isVisible());
        });
        EXPECT_EQ(settings.SelectedCmd, name == "cmdCancel" ? ClosedByCancel : ClosedByOK) << name;
    }
}

} // namespace
} // namespace orvane
