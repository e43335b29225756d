#include "fakes/desktop.h"
#include "lists/shown_file.h"

namespace orvane {
namespace {

using namespace fakes;

struct ShownFileTest : testing::Test {
    ShownFileTest() { file.OutputFileName("f", true); }
    /// What is shown of a file with these bytes.
    std::string Shown(const std::string& bytes) {
        desktop.files.Contents["f"] = bytes;
        return file.Read();
    }
    FakeDesktop desktop;
    ScriptedDialog dialog;
    ShownFile file{desktop.platform, dialog};
};

TEST_F(ShownFileTest, EndsLinesAtCrLfAndCrAndLf) {
    desktop.pointer.ShowBusy();
    EXPECT_EQ(Shown("caf\xE9\rb\nb\r\n\r\nlast"), "café\nb\nb\n\nlast\n");
    EXPECT_FALSE(desktop.pointer.Busy);
}

TEST_F(ShownFileTest, IsShownUpToItsLimits) {
    const std::string most(ShownFile::MostLines, '\n');
    EXPECT_EQ(Shown(most), most);
    EXPECT_EQ(Shown(most + "x"), most);
    EXPECT_EQ(
        desktop.messages.Take(),
        Report("The file f has more than 131072 lines and is not shown to its end", 20012, "OutputFrm"));
    const std::string longest = std::string(ShownFile::LongestLine, 'x') + "\n";
    EXPECT_EQ(Shown(longest + "x" + longest), longest);
    EXPECT_EQ(desktop.messages.Take(),
              Report("A line of the file f is longer than 16384 characters", 20012, "reading a line"));
    std::string largest;
    while (largest.size() < ShownFile::LargestFile)
        largest += longest.substr(2) + "\n";
    EXPECT_TRUE(Shown(largest + "more") == largest);
    EXPECT_EQ(desktop.messages.Take(),
              Report("The file f is larger than 67108864 bytes and is not read to its end", 20012,
                     "reading a line"));
}

TEST_F(ShownFileTest, ThatCannotBeDeletedStaysWithoutAReport) {
    desktop.files.Fails = {"Delete"};
    file.DeleteIfTemporary();
    EXPECT_EQ(desktop.messages.Take(), "");
}

} // namespace
} // namespace orvane
