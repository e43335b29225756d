// Settings files, loaded and saved through the main window and at the end of the program.
#include "settings/settings_file.h"

#include "forms/windows.h"

namespace orvane {
namespace {

Texts LinesOf(std::string bytes) {
    Texts lines;
    for (std::size_t end = 0; (end = bytes.find("\r\n")) != std::string::npos; bytes.erase(0, end + 2))
        lines.push_back(bytes.substr(0, end));
    return lines;
}
std::string BytesOfLines(const Texts& lines) {
    std::string bytes;
    for (const std::string& line : lines)
        bytes += line + "\r\n";
    return bytes;
}

/// Two set-ups of 22 lines that have no value in common but the number of groups.
const SettingsText Before{.Groups = {"  blanks  ", "line\nfeed", "nul\0 \xE9"s}, .SampleSize = "7"};
const SettingsText After{.Groups = {"Drug A", "Drug B", ""},
                         .SampleSize = "60",
                         .CodeAlphaNum = 2,
                         .CodeSeqRandom = 1,
                         .CodeLength = 4,
                         .BlockOption = 2,
                         .EqBlockSize = " 4 - 6 ",
                         .UnEqBlockSize = "6,12",
                         .OutputOption = 1};
const Texts LinesBefore = LinesOf(BytesOf(Before));
const Texts LinesAfter = LinesOf(BytesOf(After));

struct Settings : MainFormTest {
    Settings() { Open(Before); }
    /// What is saved after a load of `After` of which only so many lines were taken.
    static std::string BytesAfterLines(std::size_t taken) {
        Texts lines = LinesBefore;
        std::copy_n(LinesAfter.begin(), taken, lines.begin());
        return BytesOfLines(lines);
    }
    void NameGroup(std::int16_t group, const std::string& name) {
        Grid().SetRow(group);
        Grid().SetText(name);
    }
};

TEST_F(Settings, AreWrittenByteForByteAndReadBack) {
    EXPECT_EQ(Saved(), BytesOf(Before));
    EXPECT_EQ(Load(BytesOf(After)), Loaded);
    EXPECT_EQ(Saved(), BytesOf(After));
    EXPECT_EQ(Grid().Row(), 3) << "the last name is the current one";
    EXPECT_EQ(Grid().Col(), 1);
}

/// The lines of the values, counted from 1.
enum ValueLines : std::size_t {
    NumberOfGroups = 2,
    SampleSize = 8,
    Alphabet = 10,
    Order = 12,
    CodeLength = 14,
    BlockOption = 16,
    Channel = 22
};

TEST_F(Settings, TakeAValueAsTheNumberThatItStartsWithUnlessItIsOutOfRange) {
    const std::string refused; // the load ends there
    struct Row {
        ValueLines line;
        std::string text;
        std::string saved;
    };
    const Row rows[] = {{NumberOfGroups, "2.6abc", "3"},   {NumberOfGroups, "1", refused},
                        {NumberOfGroups, "16.6", refused}, {NumberOfGroups, "40000", refused},
                        {SampleSize, "1E999", "0"},        {SampleSize, "", "0"},
                        {Alphabet, "-1.5", "-2"},          {Order, "-2147483649", refused},
                        {CodeLength, "32766.5", "32766"},  {CodeLength, "32767.5", refused},
                        {BlockOption, "&HFFFF", "65535"},  {Channel, "1.5", "2"},
                        {Channel, "3", refused},           {Channel, "-1", refused}};
    for (const Row& row : rows) {
        SCOPED_TRACE("line " + std::to_string(row.line) + ": " + row.text);
        Load(BytesOf(Before));
        Texts lines = LinesAfter;
        lines[row.line - 1] = row.text;
        EXPECT_EQ(Load(BytesOfLines(lines)), row.saved == refused ? ErrorReport : Loaded);
        lines[row.line - 1] = row.saved;
        EXPECT_EQ(Saved(), row.saved == refused ? BytesAfterLines(row.line - 1) : BytesOfLines(lines));
    }
}

TEST_F(Settings, ThatNoFileCanHoldAreRefusedBeforeTheFileIsTouched) {
    for (const char* name : {"line end \r", "not in the code page \u2265"}) {
        NameGroup(1, name);
        desktop.files.Contents["/save.stg"] = "kept";
        EXPECT_EQ(ChooseFile("mnuFile_1", "/save.stg"), ErrorReport) << name;
        EXPECT_EQ(desktop.files.Contents["/save.stg"], "kept") << name;
    }
}

TEST_F(Settings, AreHeldUpToTheByteByTheLargestFile) {
    NameGroup(1, "");
    const std::size_t room = SettingsFile::LargestFile - Saved().size();
    NameGroup(1, std::string(room, 'x'));
    const std::string largest = Saved();
    EXPECT_EQ(largest.size(), SettingsFile::LargestFile);
    EXPECT_EQ(Load(largest), Loaded);
    NameGroup(1, std::string(room + 1, 'x'));
    EXPECT_EQ(ChooseFile("mnuFile_1", "/save.stg"), ErrorReport);
    EXPECT_EQ(Load(BytesOf({.Groups = {std::string(SettingsFile::LargestFile, 'x'), ""}})), ErrorReport);
}

TEST_F(Settings, ThatNoLineCanHoldAreReplacedAtTheEndOfTheProgram) {
    NameGroup(1, "a\u2265\rb");
    form->close();
    EXPECT_NE(desktop.messages.Take().find("were saved as \"?\": \"\u2265\" (U+2265), a line end\r\n"),
              std::string::npos);
    EXPECT_EQ(LinesOf(desktop.files.Contents[SavedPath])[3], "a??b");
}

TEST_F(Settings, OfTheStartAreReplacedAtTheEndOfTheProgram) {
    desktop.files.Contents[SavedPath] = "older";
    desktop.files.Log.clear();
    form->close();
    EXPECT_EQ(desktop.files.Log, (Texts{"Delete " + SavedPath, "OpenForOutput " + SavedPath}));
    EXPECT_EQ(desktop.files.Contents[SavedPath], BytesOf(Before));
}

TEST_F(Settings, KeepAtTheEndOfTheProgramWhatTheDiskTook) {
    desktop.files.Fails = {"Write"};
    form->close();
    EXPECT_EQ(desktop.messages.Take(), Report("cannot Write", 28, "a fake"));
    const std::string whole = BytesOf(Before);
    EXPECT_EQ(desktop.files.Contents[SavedPath], whole.substr(0, whole.size() / 2));
    EXPECT_EQ(desktop.files.Open, 0);
}

TEST_F(Settings, AreReportedOnceWhenTheFolderRefusesEverything) {
    desktop.files.Fails = {"Delete", "OpenForOutput"};
    form->close();
    EXPECT_EQ(desktop.messages.Take(), Report("cannot OpenForOutput", 5, "a fake"));
}

TEST_F(Settings, ThatCouldNotBeReadAgainLeaveTheOldFile) {
    NameGroup(1, std::string(SettingsFile::LargestFile, 'x'));
    form->close();
    EXPECT_TRUE(desktop.messages.Take().starts_with("Error Description: The settings would fill 2097"));
    EXPECT_EQ(desktop.files.Contents[SavedPath], BytesOf(Before));
}

TEST_F(Settings, ReportAFailureOfTheirFileOnce) {
    for (const char* call : {"OpenForOutput", "Write", "Close"}) {
        desktop.files.Fails = {call};
        EXPECT_EQ(ChooseFile("mnuFile_1", "/save.stg"), ErrorReport) << call;
    }
}

TEST_F(Settings, AreNotTouchedByAPromptThatIsCancelled) {
    desktop.files.Log.clear();
    dialog.Flags = 7;
    Choose("mnuFile_1");
    Choose("mnuFile_0");
    EXPECT_EQ(dialog.Shown, (Texts{"save 2, settings|Save Settings As...|Settings file (*.stg)|*.stg",
                                   "open 2, settings|Select the Settings file|Settings file (*.stg)|*.stg"}));
    EXPECT_EQ(dialog.DefaultExt, "htm");
    EXPECT_EQ(desktop.files.Log, Texts{});
}

} // namespace
} // namespace orvane
