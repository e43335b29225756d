#include "platform/linux/linux_files.h"

#include "fakes/faults.h"
#include "fakes/temporary_folder.h"

#include <gtest/gtest.h>

#include <functional>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvane {
namespace {

using namespace fakes;
namespace fs = std::filesystem;

struct LinuxFilesTest : testing::Test {
    static void ExpectFailure(int number, const std::string& path, const std::string& what,
                              const std::function<void()>& use) {
        const Failure failure = FailureOf(use);
        const std::string told = "The file " + path + " could not be " + what + ": ";
        EXPECT_EQ(failure.Number, number);
        EXPECT_EQ(failure.Description.substr(0, told.size()), told);
    }

    TemporaryFolder folder;
    LinuxFiles files;
    const std::string plain = folder.Put("Liste ü $x.txt", "a longer text of before");
};

TEST_F(LinuxFilesTest, ACopyReplacesTheWholeFileButNotItself) {
    const std::string content(300'000, 'c');
    const std::string from = folder.Put("from", content);
    fs::create_hard_link(from, folder.Path("hard link"));
    fs::create_symlink(from, folder.Path("symbolic link"));
    folder.Put("longer", content + content);
    for (const char* const to : {"longer", "from", "hard link", "symbolic link"}) {
        files.Copy(from, folder.Path(to));
        EXPECT_TRUE(folder.Get(to) == content) << to;
    }
}

TEST_F(LinuxFilesTest, WhatIsNoRegularFileIsRefusedAtOnce) {
    const std::string pipe = folder.Path("pipe");
    const std::string link = folder.Path("link");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    fs::create_symlink(pipe, link);
    const int number = failure_number::NotARegularFile;
    for (const std::string& path : {pipe, link, folder.Path(), std::string("/dev/zero")}) {
        ExpectFailure(number, path, "opened", [&] { files.OpenForOutput(path); });
        ExpectFailure(number, path, "opened", [&] { files.OpenForInput(path); });
        ExpectFailure(number, path, "opened", [&] { files.Copy(path, plain); });
        ExpectFailure(number, path, "opened", [&] { files.Copy(plain, path); });
    }
    ExpectFailure(number, pipe, "deleted", [&] { files.Delete(pipe); });
    files.Delete(link);
    EXPECT_FALSE(files.Exists(link));
    EXPECT_TRUE(files.Exists(pipe));
    EXPECT_EQ(folder.Get("Liste ü $x.txt"), "a longer text of before");
}

TEST_F(LinuxFilesTest, AFailureTellsPathNumberAndWhatWasDone) {
    const std::string missing = folder.Path("missing");
    const std::string below = plain + "/below";
    const std::string cut = plain + '\0';
    ExpectFailure(ENOENT, missing, "opened", [&] { files.OpenForInput(missing); });
    ExpectFailure(ENOENT, missing, "deleted", [&] { files.Delete(missing); });
    ExpectFailure(ENOENT, cut, "opened", [&] { files.OpenForOutput(cut); });
    ExpectFailure(ENOTDIR, below, "created", [&] { files.CreatePrivate(below); });
    const std::string unreadable = "/proc/self/mem"; // nothing lies at the address 0
    std::string buffer(1, 'x');
    ExpectFailure(EIO, unreadable, "read", [&] { files.OpenForInput(unreadable)->Read(buffer); });
}

TEST_F(LinuxFilesTest, APrivateFileIsNewAndItsOwnersAlone) {
    files.CreatePrivate(folder.Path("new"))->Write("x");
    EXPECT_EQ(fs::status(folder.Path("new")).permissions(), fs::perms(0600));
    fs::create_symlink("victim", folder.Path("dangling"));
    for (const std::string& path : {folder.Path("new"), folder.Path("dangling")}) {
        EXPECT_TRUE(files.Exists(path)) << path;
        ExpectFailure(EEXIST, path, "created", [&] { files.CreatePrivate(path); });
    }
    EXPECT_EQ(folder.Get("new"), "x");
}

TEST_F(LinuxFilesTest, WhatFitsBelowTheLimitOfTheFileSizeIsKept) {
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{20, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    ExpectFailure(EFBIG, plain, "written", [&] { files.OpenForOutput(plain)->Write(std::string(30, 'b')); });
    ::setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(folder.Get("Liste ü $x.txt"), std::string(20, 'b'));
}

} // namespace
} // namespace orvane
