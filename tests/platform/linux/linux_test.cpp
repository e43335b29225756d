// The parts of the desktop that the operating system provides.
#include "fakes/faults.h"
#include "fakes/temporary_folder.h"
#include "platform/linux/code_page_iconv.h"
#include "platform/linux/gio_shell.h"
#include "platform/linux/linux_clock.h"
#include "platform/linux/linux_entropy.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/linux_registry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <csignal>
#include <ctime>
#include <sstream>
#include <thread>
#include <tuple>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

namespace orvane {
namespace {

TEST(CodePageIconv, HasThePageOfALanguage) {
    // The number of a page, languages that it serves, bytes and the text they stand for.
    using Row = std::tuple<int, const char*, const char*, const char*>;
    std::string everyByte;
    for (int b = 0; b < 256; ++b)
        everyByte += static_cast<char>(b);
    for (const auto& [number, served, bytes, text] :
         {Row{1250, "cs pl_PL.UTF-8 sr_RS@latin hr", "\x9A\xE8\xF5", "ščő"},
          Row{1251, "ru_RU sr_RS.UTF-8 uz_UZ@cyrillic", "\xC6\xFF\xA8", "ЖяЁ"},
          Row{1252, "en_US de_DE.UTF-8@euro pt-BR nb_NO", "\x80\xDF\x9D", "€ß\u009D"},
          Row{1253, "EL", "\xE1\xD9\xD2", "αΩ\uF7D2"}, Row{1254, "tr_TR uz_UZ", "\xD0\xFD\xFE", "Ğış"},
          Row{1255, "he_IL", "\xE9\xC8\xF9\xD1\xD9", "י\u05B8ש\u05C1\uF7D9"},
          Row{1256, "ar fa_IR", "\xC8\x81\xED", "بپي"}, Row{1257, "lt_LT et", "\xE0\xFB\xA5", "ąū\uF7A5"},
          Row{1258, "vi_VN.UTF-8", "\xE2\xEC\xF2\xFE", "â\u0301\u0323₫"},
          Row{874, "th_TH", "\xA1\xE8\x80\xDB", "ก่€\uF7DB"}}) {
        std::istringstream languages(served);
        for (std::string language; languages >> language;)
            EXPECT_EQ(CodePageOfLanguage(language), number) << language;
        const CodePage page = CodePageOfNumber(number).value();
        EXPECT_EQ(page.Decode(bytes), text) << number;
        EXPECT_EQ(page.Encode(page.Decode(everyByte), Unmappable::Fail), everyByte) << number;
    }
    for (const char* const unknown : {"", "C", "zh_CN.GB18030", "@latin"})
        EXPECT_FALSE(CodePageOfLanguage(unknown).has_value()) << unknown;
    ::setenv("LC_ALL", "ja_JP.UTF-8", 1);
    for (const auto& [languages, name] : {std::pair("ja:cs:ru", "Windows-1250"), {"", "Windows-1252"}}) {
        ::setenv("LANGUAGE", languages, 1);
        EXPECT_EQ(DesktopCodePage().Name(), name);
    }
}

TEST(GioShell, StartsProgramsAndTellsWhatDoesNotStart) {
    const fakes::TemporaryFolder folder;
    // Tells the number of its arguments, then each on its line, in a file that is complete when it is there.
    const std::string viewer =
        folder.Put("viewer", "#! /bin/sh\nprintf '%s\\n' $# \"$@\" > $0.part && mv $0.part $0.told\n", true);
    const std::string broken = folder.Put("broken", "#! /no/such/interpreter\n", true);
    const std::string path = folder.Put("a b \"c\" 'd' $HOME `x` ü %f;&.htm", "<html>");
    GioShell shell;
    const auto start = [&](const std::string& line) {
        const std::string entry = "[Desktop Entry]\nType=Application\nName=x\nExec=" + line + " %f\n";
        return shell.ShellExecuteA(0, folder.Put("x.desktop", entry), path);
    };
    const auto expectTold = [&](const std::string& expected) {
        for (int i = 0; i < 1000 && !std::filesystem::exists(viewer + ".told"); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        EXPECT_EQ(folder.Get("viewer.told"), expected);
        std::filesystem::remove(viewer + ".told");
    };
    for (const std::string& line : {viewer, "\"" + viewer + "\"", "env NAME=\"some value\" " + viewer}) {
        EXPECT_GT(start(line), 32) << line;
        expectTold("1\n" + path + "\n");
    }
    for (const std::string& line : {broken, "\"" + viewer, std::string("/no/program"), std::string()})
        EXPECT_LE(start(line), 32) << line;
    shell.StartProgram(viewer);
    expectTold("0\n");
    for (const std::string& program : {broken, folder.Path("missing"), folder.Path(), path}) {
        const Failure failure = fakes::FailureOf([&] { shell.StartProgram(program); });
        EXPECT_EQ(failure.Number, failure_number::CannotStart);
        EXPECT_NE(failure.Description.find(program), std::string::npos) << failure.Description;
    }
}

class LinuxFilesTest : public testing::Test {
  protected:
    static void ExpectFailure(int number, const std::string& path, const std::string& what,
                              const std::function<void()>& use) {
        const Failure failure = fakes::FailureOf(use);
        const std::string reason = number == failure_number::NotARegularFile
                                       ? "it is no regular file"
                                       : std::generic_category().message(number);
        EXPECT_EQ(failure.Number, number);
        EXPECT_EQ(failure.Description, "The file " + path + " could not be " + what + ": " + reason);
    }

    fakes::TemporaryFolder folder;
    LinuxFiles files;
    const std::string plain = folder.Put("Liste ü $x.txt", "a longer text of before");
};

TEST_F(LinuxFilesTest, CopiesWholeFilesAndLeavesAFileCopiedOntoItself) {
    const std::string content(300'000, 'c');
    const std::string from = folder.Put("from", content);
    std::filesystem::create_hard_link(from, folder.Path("hard"));
    std::filesystem::create_symlink(from, folder.Path("soft"));
    folder.Put("to", content + content);
    for (const char* const to : {"to", "from", "hard", "soft"}) {
        files.Copy(from, folder.Path(to));
        EXPECT_EQ(folder.Get(to), content) << to;
    }
}

TEST_F(LinuxFilesTest, RefusesWhatIsNoRegularFileAtOnce) {
    const std::string fifo = folder.Path("fifo");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    std::filesystem::create_symlink(fifo, folder.Path("link"));
    for (const std::string& path : {fifo, folder.Path("link"), folder.Path(""), std::string("/dev/zero")})
        for (const std::function<void()>& use : std::initializer_list<std::function<void()>>{
                 [&] { files.OpenForOutput(path); }, [&] { files.OpenForInput(path); },
                 [&] { files.Copy(path, plain); }, [&] { files.Copy(plain, path); }})
            ExpectFailure(failure_number::NotARegularFile, path, "opened", use);
    ExpectFailure(failure_number::NotARegularFile, fifo, "deleted", [&] { files.Delete(fifo); });
    files.Delete(folder.Path("link"));
    EXPECT_TRUE(files.Exists(fifo));
    EXPECT_EQ(std::filesystem::file_size(plain), 23U);
}

TEST_F(LinuxFilesTest, TellsPathNumberAndWhatWentWrong) {
    const std::string below = plain + "/below";
    const std::string cut = plain + '\0';
    ExpectFailure(ENOTDIR, below, "created", [&] { files.CreatePrivate(below); });
    ExpectFailure(ENOTDIR, below, "opened", [&] { files.Copy(below, plain); });
    ExpectFailure(ENOENT, cut, "opened", [&] { files.OpenForOutput(cut); });
    const int next = ::dup(0); // the number that the file gets
    ::close(next);
    const auto file = files.OpenForOutput(plain);
    ASSERT_EQ(::close(next), 0);
    ExpectFailure(EBADF, plain, "closed", [&] { file->Close(); });
    ExpectFailure(EBADF, plain, "written", [&] { file->Write("late"); });
}

TEST_F(LinuxFilesTest, CreatesAPrivateFileThatWasNotThere) {
    files.CreatePrivate(folder.Path("new"))->Write("x");
    EXPECT_EQ(std::filesystem::status(folder.Path("new")).permissions(), std::filesystem::perms(0600));
    std::filesystem::create_symlink("victim", folder.Path("dangling"));
    for (const std::string& path : {folder.Path("new"), folder.Path("dangling")}) {
        EXPECT_TRUE(files.Exists(path));
        ExpectFailure(EEXIST, path, "created", [&] { files.CreatePrivate(path); });
    }
    EXPECT_EQ(folder.Get("new"), "x");
}

TEST_F(LinuxFilesTest, KeepsWhatWasWrittenBeforeAFailure) {
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const rlim_t before = std::exchange(limit.rlim_cur, 20);
    ::setrlimit(RLIMIT_FSIZE, &limit);
    ExpectFailure(EFBIG, plain, "written", [&] { files.OpenForOutput(plain)->Write(std::string(30, 'b')); });
    limit.rlim_cur = before;
    ::setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_EQ(folder.Get("Liste ü $x.txt"), std::string(20, 'b'));
}

TEST(LinuxRegistry, AnswersWithTheFirstSystemInformationProgram) {
    const fakes::TemporaryFolder folder;
    LinuxRegistry registry;
    RegistryKey key = 7;
    std::array<char, 1024> buffer{};
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    registry.RegOpenKeyExA(HKEY_LOCAL_MACHINE_ROOT, R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)", 0,
                           REGISTRY_ALL_ACCESS, key);
    const auto query = [&] { return registry.RegQueryValueExA(key, "PATH", type, buffer, size); };
    ::setenv("PATH", (folder.Path() + ":/usr/bin:/bin").c_str(), 1);
    EXPECT_EQ(query(), 2);
    folder.Put("hardinfo", "", true);
    const std::string tool = folder.Put("kinfocenter", "", true);
    size = static_cast<std::uint32_t>(tool.size()); // no room for the terminator
    EXPECT_EQ(query(), 234);
    EXPECT_EQ(query(), 0);
    EXPECT_EQ(type, REGISTRY_TYPE_STRING);
    EXPECT_EQ(std::string(buffer.data(), size), tool + '\0');
}

TEST(LinuxClock, CountsFromLocalMidnightWithFractions) {
    for (const auto& [zone, offset] : {std::pair("XXX-5:30", 19800), std::pair("XXX+11", -39600)}) {
        ::setenv("TZ", zone, 1);
        ::tzset();
        const double late = double(std::time(nullptr)) + offset - LinuxClock().SecondsSinceMidnight();
        EXPECT_LE(std::abs(std::remainder(late, 86400.0)), 1.1) << zone;
    }
    float fraction = 0;
    for (int look = 0; look < 100'000'000 && fraction == 0; ++look)
        fraction = std::fmod(LinuxClock().SecondsSinceMidnight(), 1.0F);
    EXPECT_GT(fraction, 0.0F);
}

TEST(LinuxEntropy, FillsToTheLastByte) {
    // A signal makes the kernel give less than was asked for.
    ASSERT_NE(std::signal(SIGALRM, [](int) {}), SIG_ERR);
    const itimerval often{{0, 1000}, {0, 1000}};
    ::setitimer(ITIMER_REAL, &often, nullptr);
    std::vector<std::byte> bytes(40'000'000);
    LinuxEntropy().Fill(bytes);
    ASSERT_NE(std::signal(SIGALRM, SIG_IGN), SIG_ERR);
    EXPECT_LT(std::count(bytes.end() - 32, bytes.end(), std::byte{0}), 32);
}

} // namespace
} // namespace orvane
