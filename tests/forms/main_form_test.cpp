#include "forms/main_form.h"

#include "windows.h"

#include <QMenu>
#include <QPushButton>

namespace orvane {
namespace {

constexpr const char* NoSampleSize = "please specify the sample size";

struct MainWindow : MainFormTest {
    /// The items of the output menu that are checked.
    std::vector<int> CheckedChannels() {
        std::vector<int> checked;
        for (const int channel : {0, 1, 2})
            if (Find<QAction>(*form, "mnuOutput_" + std::to_string(channel)).isChecked())
                checked.push_back(channel);
        return checked;
    }
    void FillSampleSize(const std::string& text) { Fill(*form, "SampSizeTxt", text); }
    /// Triggers the button as an assistive program does, which needs no way for a click.
    void TriggerGenerate() { Find<QPushButton>(*form, "cmdGenerate").click(); }

    const SettingsText ToClipboardSettings{
        .Groups = {"Verum", "Placebo"}, .SampleSize = "12", .OutputOption = 2};
};

TEST_F(MainWindow, ClipsNoTextAndNamesItsControls) {
    Open(ToClipboardSettings);
    ExpectNothingClippedOrUnnamed(*form);
    EXPECT_TRUE(form->centralWidget()->rect().contains(Find(*form, "cmdGenerate").geometry()));
    EXPECT_EQ(TabStops(*form),
              (Texts{"nogHsb", "SampSizeTxt", "GroupNameGrid", "TempTxt", "SaveExitChk", "cmdGenerate"}));
}

TEST_F(MainWindow, RefusesASampleSizeWithTheFocusOnItsBox) {
    struct Row {
        std::string text;
        std::string command;
        std::string message;
        bool optionsEnabled;
    };
    const Row rows[] = {{"", "mnuSequence_2", NoSampleSize, false},
                        {"-5", "mnuSequence_2", NoSampleSize, true},
                        {"-5", "mnuView_1", NoSampleSize, true},
                        {"32768", "mnuSequence_2", "the sample size can be at most 32767", false}};
    Open(ToClipboardSettings);
    for (const Row& row : rows) {
        SCOPED_TRACE("\"" + row.text + "\", " + row.command);
        FillSampleSize(row.text);
        EXPECT_EQ(Find<QAction>(*form, "mnuView_1").isEnabled(), row.optionsEnabled);
        Find(*form, "SaveExitChk").setFocus();
        Choose(row.command);
        EXPECT_EQ(Message(), row.message);
        EXPECT_EQ(Focused(*form), "SampSizeTxt");
        EXPECT_EQ(SelectedText(*form), row.text);
        EXPECT_FALSE(desktop.pointer.Busy);
    }
}

TEST_F(MainWindow, GeneratesAtEnterWhereverTheFocusIsButNotWhileItIsHeldDownOrWithControl) {
    Open(ToClipboardSettings);
    FillSampleSize("");
    for (const char* focused :
         {"SampSizeTxt", "TempTxt", "GroupNameGrid", "nogHsb", "SaveExitChk", "cmdGenerate"})
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            Find(*form, focused).setFocus();
            Press(key, key == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier);
            EXPECT_EQ(Message(), NoSampleSize) << focused;
        }
    const bool repeated = true; // as the window system sends the key while it is held down
    QTest::simulateEvent(QApplication::focusWidget(), true, Qt::Key_Return, {}, "\r", repeated);
    EXPECT_EQ(Message(), "");
    Press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Message(), "");
}

TEST_F(MainWindow, ChoosesTheItemOfAnOpenMenuAtEnterAndMarksIt) {
    Open(ToClipboardSettings);
    FillSampleSize("");
    auto& channels = Find<QMenu>(*form, "mnuSequence_0");
    channels.popup(form->pos());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&channels));
    QTest::keyClick(&channels, Qt::Key_Down);
    QTest::keyClick(&channels, Qt::Key_Down);
    QTest::keyClick(&channels, Qt::Key_Return);
    EXPECT_EQ(CheckedChannels(), std::vector{1});
    EXPECT_EQ(Message(), "") << "Enter reached \"Generate Random List\" too";
    EXPECT_TRUE(desktop.pointer.Calls.ends_with("BN")) << "busy while the menu opens";
    Choose("mnuOutput_1");
    EXPECT_EQ(CheckedChannels(), std::vector{1}) << "the toolkit takes the mark away";
}

TEST_F(MainWindow, CarriesOutTheItemsOfItsMenus) {
    Open(ToClipboardSettings);
    FillSampleSize("1");
    WhileOpen([this] { Choose("mnuView_1"); }, [](QDialog& window) { Click(window, "cmdOK"); });
    EXPECT_FALSE(desktop.pointer.Busy);
    EXPECT_EQ(desktop.clipboard.Content, "earlier content") << "no list from the options alone";
    WhileOpen([this] { Choose("mnuHelp_2"); }, [](QDialog& about) { about.close(); });
    desktop.files.Contents["/program/randomization.htm"] = "";
    Choose("mnuHelp_0");
    EXPECT_EQ(desktop.shell.Started, Texts{"viewer /program/randomization.htm"});
    EXPECT_EQ(desktop.shell.LastOwner, static_cast<std::intptr_t>(form->winId()));
    Choose("mnuView_0");
    EXPECT_EQ(dialog.Shown.size(), 1U) << "the prompt for a saved list";
    Choose("mnuFile_3");
    EXPECT_FALSE(form->isVisible());
}

TEST_F(MainWindow, IgnoresCommandsBehindAMessage) {
    Open(ToClipboardSettings);
    FillSampleSize("");
    desktop.messages.WhileShown = [this] {
        TriggerGenerate();
        Choose("mnuSequence_2");
        Choose("mnuOutput_1");
        Choose("mnuFile_1");
    };
    TriggerGenerate();
    EXPECT_EQ(desktop.messages.TakeAll(), Texts{NoSampleSize});
    EXPECT_EQ(CheckedChannels(), std::vector{2});
    EXPECT_EQ(dialog.Shown, Texts{});
}

TEST_F(MainWindow, ClosesAndSavesWhenTheReportOfAFailureWasAnswered) {
    SettingsText settings = ToClipboardSettings;
    settings.CodeSeqRandom = 1;
    Open(settings);
    settings.SampleSize = "25";
    FillSampleSize(settings.SampleSize);
    desktop.random.Fails = {"UniformReseed"};
    desktop.messages.WhileShown = [this] {
        EXPECT_FALSE(desktop.pointer.Busy);
        EXPECT_FALSE(form->close());
    };
    WhileOpen([this] { TriggerGenerate(); }, [](QDialog& window) { Click(window, "cmdOK"); });
    EXPECT_EQ(Message(), ErrorReport);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(desktop.files.Contents[SavedPath], BytesOf(settings));
}

TEST_F(MainWindow, ClosesAfterOneReportWhenTheSettingsCannotBeSaved) {
    Open(ToClipboardSettings);
    desktop.files.Fails = {"OpenForOutput"};
    desktop.messages.WhileShown = [this] { form->close(); };
    form->close();
    EXPECT_EQ(Message(), ErrorReport);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(MainWindow, LeavesTheSettingsOfTheLastRunAloneWhileItsBoxIsNotChecked) {
    Open(ToClipboardSettings);
    FillSampleSize("25");
    Click(*form, "SaveExitChk");
    form->close();
    EXPECT_EQ(desktop.files.Contents[SavedPath], BytesOf(ToClipboardSettings));
}

} // namespace
} // namespace orvane
