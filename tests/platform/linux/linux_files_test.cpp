#include "platform/linux/linux_files.h"

#include "fakes/temporary_folder.h"
#include "platform/failure.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <string>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvane {
namespace {

class LinuxFilesTest : public testing::Test {
  protected:
    /// Expects a failure of this number whose description has `path` and `words`.
    static void ExpectFailure(int number, const std::string& path, const std::string& words,
                              const std::function<void()>& use) {
        try {
            use();
            ADD_FAILURE() << "no failure: " << path;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number, number) << failure.Description;
            EXPECT_NE(failure.Description.find(path), std::string::npos) << failure.Description;
            EXPECT_NE(failure.Description.find(words), std::string::npos) << failure.Description;
        }
    }

    fakes::TemporaryFolder folder;
    LinuxFiles files;
};

TEST_F(LinuxFilesTest, WritesReadsAndDeletes) {
    const std::string path = folder.Put("Liste ü $x.txt", "a longer text of before");
    const auto output = files.OpenForOutput(path);
    output->Write("first ");
    output->Write("second");
    output->Close();
    ExpectFailure(EBADF, path, "written", [&] { output->Write("late"); });
    std::string content;
    std::array<char, 5> buffer{};
    const auto input = files.OpenForInput(path);
    while (const std::size_t count = input->Read(buffer))
        content.append(buffer.data(), count);
    EXPECT_EQ(content, "first second");
    files.Delete(path);
    EXPECT_FALSE(files.Exists(path));
}

TEST_F(LinuxFilesTest, RefusesWhatIsNoRegularFileAtOnce) {
    const std::string fifo = folder.Path("fifo");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    std::filesystem::create_symlink(fifo, folder.Path("link"));
    const std::string plain = folder.Put("plain", "kept");
    for (const std::string& path : {fifo, folder.Path("link"), folder.Path(""), std::string("/dev/zero")}) {
        const auto refuses = [&](const std::function<void()>& use) {
            ExpectFailure(failure_number::NotARegularFile, path, "could not be opened", use);
        };
        refuses([&] { files.OpenForOutput(path); });
        refuses([&] { files.OpenForInput(path); });
        refuses([&] { files.Copy(path, plain); });
        refuses([&] { files.Copy(plain, path); });
    }
    ExpectFailure(failure_number::NotARegularFile, fifo, "deleted", [&] { files.Delete(fifo); });
    files.Delete(folder.Path("link"));
    EXPECT_TRUE(files.Exists(fifo));
    EXPECT_EQ(folder.Get("plain"), "kept");
}

TEST_F(LinuxFilesTest, TellsPathNumberAndWhatWentWrong) {
    const std::string below = folder.Put("plain", "kept") + "/below";
    const std::string missing = folder.Path("none/file");
    ExpectFailure(ENOTDIR, below, "opened: Not a directory", [&] { files.OpenForOutput(below); });
    ExpectFailure(ENOENT, missing, "opened: No such file", [&] { files.OpenForInput(missing); });
    ExpectFailure(ENOTDIR, below, "created: Not a directory", [&] { files.CreatePrivate(below); });
    ExpectFailure(ENOENT, missing, "deleted: No such file", [&] { files.Delete(missing); });
    ExpectFailure(ENOENT, missing, "opened: No such file", [&] { files.Copy(missing, below); });
    ExpectFailure(ENOENT, "", "opened", [&] { files.OpenForOutput(folder.Path("plain") + '\0'); });
    EXPECT_FALSE(files.Exists(below));
    EXPECT_EQ(folder.Get("plain"), "kept");
}

TEST_F(LinuxFilesTest, TellsThatAFileCouldNotBeClosed) {
    const std::string path = folder.Path("list");
    const int next = ::dup(0); // the number that the file gets
    ::close(next);
    const auto file = files.OpenForOutput(path);
    ASSERT_EQ(::close(next), 0);
    ExpectFailure(EBADF, path, "closed", [&] { file->Close(); });
}

TEST_F(LinuxFilesTest, CreatesAPrivateFileThatWasNotThere) {
    files.CreatePrivate(folder.Path("new"))->Write("x");
    EXPECT_EQ(std::filesystem::status(folder.Path("new")).permissions(), std::filesystem::perms(0600));
    const mode_t before = ::umask(0022);
    files.OpenForOutput(folder.Path("shared"))->Write("x");
    ::umask(before);
    EXPECT_EQ(std::filesystem::status(folder.Path("shared")).permissions(), std::filesystem::perms(0644));
    std::filesystem::create_symlink(folder.Path("new"), folder.Path("link"));
    std::filesystem::create_symlink(folder.Path("victim"), folder.Path("dangling"));
    for (const std::string& path : {folder.Path("new"), folder.Path("link"), folder.Path("dangling")}) {
        EXPECT_TRUE(files.Exists(path));
        ExpectFailure(EEXIST, path, "created", [&] { files.CreatePrivate(path); });
    }
    EXPECT_EQ(folder.Get("new"), "x");
    EXPECT_FALSE(files.Exists(folder.Path("victim")));
}

TEST_F(LinuxFilesTest, CopiesToAnotherFileAndLeavesItselfAlone) {
    std::string content;
    for (int i = 0; i < 50000; ++i)
        content += std::to_string(i);
    const std::string from = folder.Put("from", content);
    files.Copy(from, folder.Put("to", content + content));
    EXPECT_EQ(folder.Get("to"), content);
    std::filesystem::create_hard_link(from, folder.Path("hard"));
    std::filesystem::create_symlink(from, folder.Path("soft"));
    for (const char* const itself : {"from", "hard", "soft"})
        files.Copy(from, folder.Path(itself));
    EXPECT_EQ(folder.Get("from"), content);
}

TEST_F(LinuxFilesTest, KeepsWhatWasWrittenBeforeAFailure) {
    const std::string list = folder.Path("list");
    const std::string source = folder.Put("source", std::string(200, 's'));
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limit{100, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    const auto file = files.OpenForOutput(list);
    file->Write(std::string(60, 'a'));
    ExpectFailure(EFBIG, list, "could not be written", [&] { file->Write(std::string(60, 'b')); });
    ExpectFailure(EFBIG, folder.Path("copy"), "written", [&] { files.Copy(source, folder.Path("copy")); });
    ::setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(folder.Get("list"), std::string(60, 'a') + std::string(40, 'b'));
    EXPECT_EQ(folder.Get("copy"), std::string(100, 's'));
}

} // namespace
} // namespace orvane
