#include "platform/linux/gio_shell.h"

#include "fakes/faults.h"
#include "fakes/temporary_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace orvane {
namespace {

using namespace fakes;

struct GioShellTest : testing::Test {
    /// The result of opening the page with an entry that has this command line.
    std::int32_t Open(const std::string& line) {
        const std::string entry = "[Desktop Entry]\nType=Application\nName=x\nExec=" + line + " %f\n";
        return shell.ShellExecuteA(0, folder.Put("x.desktop", entry), page);
    }
    /// The number of the viewer's arguments, then each on its line.
    [[nodiscard]] std::string Arguments() const {
        for (int i = 0; i < 1000 && !std::filesystem::exists(viewer + ".told"); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        std::string told = folder.Get("viewer.told");
        std::filesystem::remove(viewer + ".told");
        return told;
    }

    TemporaryFolder folder;
    GioShell shell;
    const std::string page = folder.Put("a b \"c\" 'd' $HOME `x` ü %f;&.htm", "<html>");
    // What it tells is complete as soon as the file is there.
    const std::string viewer =
        folder.Put("viewer", "#! /bin/sh\nprintf '%s\\n' $# \"$@\" > $0.part && mv $0.part $0.told\n", true);
    const std::string broken = folder.Put("broken", "#! /no/such/interpreter\n", true);
};

TEST_F(GioShellTest, TheProgramGetsThePathUnchangedAsItsOnlyArgument) {
    for (const std::string& line : {viewer, "\"" + viewer + "\"", "env NAME=\"some value\" " + viewer}) {
        EXPECT_GT(Open(line), 32) << line;
        EXPECT_EQ(Arguments(), "1\n" + page + "\n") << line;
    }
}

TEST_F(GioShellTest, AnEntryThatTheSystemCannotStartIsNotStarted) {
    const std::vector<std::string> lines = {
        "",                                              // no command line
        "/no/program",                                   // missing
        folder.Path(),                                   // a folder
        folder.Put("plain", "#! /bin/sh\n"),             // not executable
        "\"" + viewer,                                   // a quote that does not end
        broken,                                          // without its interpreter
        folder.Put("outer", "#!" + broken + "\n", true), // nor that of its interpreter
    };
    for (const std::string& line : lines)
        EXPECT_LE(Open(line), 32) << line;
}

TEST_F(GioShellTest, AProgramAloneIsStartedOrIsAFailureThatNamesIt) {
    shell.StartProgram(viewer);
    EXPECT_EQ(Arguments(), "0\n");
    for (const std::string& program : {broken, folder.Path("missing"), folder.Path(), page}) {
        const Failure failure = FailureOf([&] { shell.StartProgram(program); });
        EXPECT_EQ(failure.Number, failure_number::CannotStart) << program;
        EXPECT_NE(failure.Description.find(program), std::string::npos) << failure.Description;
    }
}

} // namespace
} // namespace orvane
