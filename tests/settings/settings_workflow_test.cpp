// The end of the program, when nobody can save the settings a second time.

#include "fakes/desktop.h"
#include "fakes/settings_text.h"
#include "settings/settings_workflow.h"

namespace orvane {
namespace {

using namespace fakes;

const std::string Path = "/program/saved.stg";

/// The main window without its controls: two groups, whose names cannot be changed.
struct EndOfProgram : testing::Test, MainControls, MSFlexGrid {
    void SetNogHsb(std::int16_t position) override { settings.NumberOfGroups = position; }
    void SetSampSizeTxt(const std::string& /*text*/) override {}
    void mnuOutput_Click(std::int16_t Index) override { settings.OutputOption = Index; }
    void SetRows(std::int16_t /*rows*/) override {}
    [[nodiscard]] std::int16_t Row() const override { return 1; }
    void SetRow(std::int16_t /*row*/) override {}
    [[nodiscard]] std::int16_t Col() const override { return 1; }
    void SetCol(std::int16_t col) override { Column = col; }
    [[nodiscard]] std::string Text() const override { return Name; }
    void SetText(const std::string& /*text*/) override {}
    [[nodiscard]] std::string TextMatrix(std::int16_t /*row*/, std::int16_t /*col*/) const override {
        return Name;
    }

    FakeDesktop desktop;
    ListSettings settings;
    std::int16_t Column = 0;   ///< of the current cell
    std::string Name = "Drug"; ///< of each group
    ScriptedDialog dialog;
    SettingsFile file{settings, *this, *this, desktop.platform};
    SettingsWorkflow workflow{file, dialog, desktop.platform};
};

TEST_F(EndOfProgram, ReplacesTheFileOfTheStart) {
    desktop.files.Contents[Path] = "older";
    workflow.AtEnd();
    EXPECT_EQ(desktop.files.Log, (Texts{"Delete " + Path, "OpenForOutput " + Path}));
    EXPECT_EQ(Column, 1) << "that of the names";
    EXPECT_EQ(desktop.files.Contents[Path],
              BytesOf({.Groups = {"Drug", "Drug"}, .SampleSize = "0", .CodeAlphaNum = 0, .CodeLength = 0}));
}

TEST_F(EndOfProgram, KeepsWhatTheDiskTookAndReportsOnceWhenItIsFull) {
    workflow.AtEnd();
    const std::string whole = desktop.files.Contents[Path];
    desktop.files.Fails = {"Write"};
    workflow.AtEnd();
    EXPECT_EQ(desktop.messages.Take(), Report("cannot Write", 28, "a fake"));
    EXPECT_EQ(desktop.files.Contents[Path], whole.substr(0, whole.size() / 2));
    EXPECT_EQ(desktop.files.Open, 0);
}

TEST_F(EndOfProgram, ReportsOnceWhenTheFolderRefusesEverything) {
    desktop.files.Fails = {"Delete", "OpenForOutput"};
    workflow.AtEnd();
    EXPECT_EQ(desktop.messages.Take(), Report("cannot OpenForOutput", 5, "a fake"));
}

TEST_F(EndOfProgram, KeepsTheOldFileWhenTheNewOneCouldNotBeReadAgain) {
    desktop.files.Contents[Path] = "older";
    Name = std::string(SettingsFile::LargestFile / 2, 'x');
    workflow.AtEnd();
    EXPECT_TRUE(desktop.messages.Take().starts_with("Error Description: The settings would fill 2097"));
    EXPECT_EQ(desktop.files.Contents[Path], "older");
}

} // namespace
} // namespace orvane
