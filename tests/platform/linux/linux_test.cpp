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
#include <filesystem>
#include <functional>
#include <sstream>
#include <system_error>
#include <thread>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

namespace orvane {
namespace {

TEST(CodePageIconv, HasThePageOfALanguage) {
    struct Row {
        int number;
        std::string languages;
        std::string bytes;
        std::string text;
    };
    const std::array<Row, 10> rows{{
        {1250, "cs pl_PL.UTF-8 sr_RS@latin hr", "\x9A\xE8\xF5", "ščő"},
        {1251, "ru_RU sr_RS.UTF-8 uz_UZ@cyrillic", "\xC6\xFF\xA8", "ЖяЁ"},
        {1252, "en_US de_DE.UTF-8@euro pt-BR nb_NO", "\x80\xDF\x9D", "€ß\u009D"},
        {1253, "EL", "\xE1\xD9\xD2", "αΩ\uF7D2"},
        {1254, "tr_TR uz_UZ", "\xD0\xFD\xFE", "Ğış"},
        {1255, "he_IL", "\xE9\xC8\xF9\xD1\xD9", "י\u05B8ש\u05C1\uF7D9"}, // marks stay separate characters
        {1256, "ar fa_IR", "\xC8\x81\xED", "بپي"},
        {1257, "lt_LT et", "\xE0\xFB\xA5", "ąū\uF7A5"},
        {1258, "vi_VN.UTF-8", "\xE2\xEC\xF2\xFE", "â\u0301\u0323₫"},
        {874, "th_TH", "\xA1\xE8\x80\xDB", "ก่€\uF7DB"},
    }};
    std::string everyByte;
    for (int b = 0; b < 256; ++b)
        everyByte += static_cast<char>(b);
    for (const Row& row : rows) {
        std::istringstream languages(row.languages);
        for (std::string language; languages >> language;)
            EXPECT_EQ(CodePageOfLanguage(language), row.number) << language;
        const CodePage page = CodePageOfNumber(row.number).value();
        EXPECT_EQ(page.Decode(row.bytes), row.text) << row.number;
        EXPECT_EQ(page.Encode(page.Decode(everyByte), Unmappable::Fail), everyByte) << row.number;
    }
    for (const char* const unknown : {"", "C", "zh_CN.GB18030", "@latin"})
        EXPECT_FALSE(CodePageOfLanguage(unknown).has_value()) << unknown;
    EXPECT_FALSE(CodePageOfNumber(9999).has_value());
    EXPECT_EQ(WesternCodePage().Decode(everyByte), CodePageOfNumber(1252)->Decode(everyByte));
}

TEST(CodePageIconv, TakesTheFirstKnownLanguageOfTheDesktop) {
    using Row = std::array<const char*, 3>;
    for (const auto& [locale, languages, name] :
         {Row{"el_GR.UTF-8", "", "Windows-1253"}, Row{"ja_JP.UTF-8", "ja:cs:ru", "Windows-1250"},
          Row{"C", "", "Windows-1252"}}) {
        ::setenv("LC_ALL", locale, 1);
        ::setenv("LANGUAGE", languages, 1);
        EXPECT_EQ(DesktopCodePage().Name(), name);
    }
}

/// A desktop whose viewer for web pages and texts reports its arguments; its viewer for pictures is broken.
class StubDesktop {
  public:
    StubDesktop() {
        // Writes the number of arguments, then each on its line, and renames the complete file.
        const std::string viewer = Path("bin/viewer");
        const std::string part = "'" + Path("part") + "'";
        folder.Put("bin/viewer",
                   "#! /bin/sh -e\nprintf '%s\\n' \"$#\" \"$@\" > " + part + "\nmv " + part + " '" +
                       Path("told") + "'\n",
                   true);
        using Row = std::array<std::string, 2>;
        for (const auto& [name, program] :
             {Row{"viewer", viewer}, Row{"quoted", "\"" + viewer + "\""}, Row{"open", "\"" + viewer},
              Row{"variable", "env NAME=\"some value\" " + viewer},
              Row{"broken", folder.Put("bin/broken", "#! /no/such/interpreter\n", true)}})
            folder.Put("data/applications/" + name + ".desktop",
                       "[Desktop Entry]\nType=Application\nName=" + name + "\nExec=" + program + " %f\n");
        folder.Put("config/mimeapps.list", "[Default Applications]\ntext/html=viewer.desktop\n"
                                           "text/plain=viewer.desktop\nimage/png=broken.desktop\n");
        for (const auto& [name, value] :
             {Row{"XDG_DATA_HOME", Path("data")}, Row{"XDG_DATA_DIRS", "/usr/share"},
              Row{"XDG_CONFIG_HOME", Path("config")}, Row{"XDG_CONFIG_DIRS", Path("none")}})
            ::setenv(name.c_str(), value.c_str(), 1);
        ::unsetenv("XDG_CURRENT_DESKTOP");
    }
    [[nodiscard]] std::string Path(const std::string& name) const { return folder.Path(name); }
    [[nodiscard]] std::string Entry(const std::string& name) const {
        return Path("data/applications/" + name + ".desktop");
    }
    /// What the viewer reports of its arguments; empty if it does not start.
    [[nodiscard]] std::string Told() const {
        for (int i = 0; i < 1000 && !std::filesystem::exists(Path("told")); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        std::string told = folder.Get("told");
        std::filesystem::remove(Path("told"));
        return told;
    }
    const fakes::TemporaryFolder folder;
};

// Exists before GLib reads the environment for the first time.
const StubDesktop desktop; // NOLINT(cert-err58-cpp)

TEST(GioShell, StartsTheAssociatedProgramWithTheUntouchedPath) {
    GioShell shell;
    for (const char* const name : {"list.htm", "a b \"c\" 'd' $HOME `x` ü %f;&.htm", "Größe 100%.txt"}) {
        const std::string path = desktop.folder.Put(name, "<html>");
        std::string program;
        ASSERT_GT(shell.FindExecutableA(path, program), 32) << name;
        EXPECT_EQ(program, desktop.Entry("viewer"));
        for (const char* const entry : {"viewer", "quoted", "variable"}) {
            ASSERT_GT(shell.ShellExecuteA(0, desktop.Entry(entry), path), 32) << entry;
            EXPECT_EQ(desktop.Told(), "1\n" + path + "\n") << entry;
        }
    }
    shell.StartProgram(desktop.Path("bin/viewer"));
    EXPECT_EQ(desktop.Told(), "0\n");
}

TEST(GioShell, TellsWhatIsNotFoundFromWhatDoesNotStart) {
    GioShell shell;
    std::string program = "before";
    std::filesystem::create_symlink("nowhere", desktop.Path("dangling.htm"));
    const std::string picture = desktop.folder.Put("picture.png", "x");
    for (const std::string& path : {desktop.Path("missing.htm"), desktop.Path("dangling.htm"), std::string(),
                                    desktop.folder.Put("list.zip", "PK")})
        EXPECT_LE(shell.FindExecutableA(path, program), 32) << path;
    EXPECT_EQ(program, "before");
    EXPECT_GT(shell.FindExecutableA(picture, program), 32);
    for (const std::string& entry :
         {program, desktop.Entry("open"), std::string("/no/program"), std::string()})
        EXPECT_LE(shell.ShellExecuteA(0, entry, picture), 32) << entry;
    for (const std::string& path : {desktop.Path("bin/broken"), desktop.Path("bin/missing"),
                                    desktop.Path("bin"), desktop.folder.Put("plain", "x")}) {
        const Failure failure = fakes::FailureOf([&] { shell.StartProgram(path); });
        EXPECT_EQ(failure.Number, failure_number::CannotStart);
        EXPECT_NE(failure.Description.find(path), std::string::npos) << failure.Description;
    }
}

class LinuxFilesTest : public testing::Test {
  protected:
    static void ExpectFailure(int number, const std::string& path, const std::string& what,
                              const std::function<void()>& use) {
        const Failure failure = fakes::FailureOf(use);
        EXPECT_EQ(failure.Number, number);
        EXPECT_EQ(failure.Description,
                  "The file " + path + " could not be " + what + ": " +
                      (number == failure_number::NotARegularFile ? "it is no regular file"
                                                                 : std::generic_category().message(number)));
    }

    fakes::TemporaryFolder folder;
    LinuxFiles files;
    const std::string plain = folder.Put("Liste ü $x.txt", "a longer text of before");
};

TEST_F(LinuxFilesTest, WritesReadsCopiesAndDeletes) {
    const auto output = files.OpenForOutput(plain);
    output->Write("first ");
    output->Write("second");
    output->Close();
    ExpectFailure(EBADF, plain, "written", [&] { output->Write("late"); });
    std::string content;
    std::array<char, 5> buffer{};
    const auto input = files.OpenForInput(plain);
    while (const std::size_t count = input->Read(buffer))
        content.append(buffer.data(), count);
    EXPECT_EQ(content, "first second");
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
    files.Delete(plain);
    EXPECT_FALSE(files.Exists(plain));
}

TEST_F(LinuxFilesTest, RefusesWhatIsNoRegularFileAtOnce) {
    const std::string fifo = folder.Path("fifo");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    std::filesystem::create_symlink(fifo, folder.Path("link"));
    for (const std::string& path : {fifo, folder.Path("link"), folder.Path(""), std::string("/dev/zero")}) {
        const std::array<std::function<void()>, 4> uses{
            [&] { files.OpenForOutput(path); }, [&] { files.OpenForInput(path); },
            [&] { files.Copy(path, plain); }, [&] { files.Copy(plain, path); }};
        for (const auto& use : uses)
            ExpectFailure(failure_number::NotARegularFile, path, "opened", use);
    }
    ExpectFailure(failure_number::NotARegularFile, fifo, "deleted", [&] { files.Delete(fifo); });
    files.Delete(folder.Path("link"));
    EXPECT_TRUE(files.Exists(fifo));
    EXPECT_EQ(std::filesystem::file_size(plain), 23U);
}

TEST_F(LinuxFilesTest, TellsPathNumberAndWhatWentWrong) {
    const std::string below = plain + "/below";
    const std::string missing = folder.Path("none/file");
    const std::string cut = plain + '\0';
    ExpectFailure(ENOTDIR, below, "opened", [&] { files.OpenForOutput(below); });
    ExpectFailure(ENOENT, missing, "opened", [&] { files.OpenForInput(missing); });
    ExpectFailure(ENOTDIR, below, "created", [&] { files.CreatePrivate(below); });
    ExpectFailure(ENOENT, missing, "deleted", [&] { files.Delete(missing); });
    ExpectFailure(ENOENT, missing, "opened", [&] { files.Copy(missing, below); });
    ExpectFailure(ENOENT, cut, "opened", [&] { files.OpenForOutput(cut); });
    EXPECT_FALSE(files.Exists(below));
    EXPECT_EQ(std::filesystem::file_size(plain), 23U);
    const int next = ::dup(0); // the number that the file gets
    ::close(next);
    const auto file = files.OpenForOutput(plain);
    ASSERT_EQ(::close(next), 0);
    ExpectFailure(EBADF, plain, "closed", [&] { file->Close(); });
}

TEST_F(LinuxFilesTest, CreatesAPrivateFileThatWasNotThere) {
    const auto rights = [this](const char* name) {
        return std::filesystem::status(folder.Path(name)).permissions();
    };
    files.CreatePrivate(folder.Path("new"))->Write("x");
    EXPECT_EQ(rights("new"), std::filesystem::perms(0600));
    const mode_t before = ::umask(0022);
    files.OpenForOutput(folder.Path("shared"))->Write("x");
    ::umask(before);
    EXPECT_EQ(rights("shared"), std::filesystem::perms(0644));
    std::filesystem::create_symlink(folder.Path("new"), folder.Path("link"));
    std::filesystem::create_symlink(folder.Path("victim"), folder.Path("dangling"));
    for (const std::string& path : {folder.Path("new"), folder.Path("link"), folder.Path("dangling")}) {
        EXPECT_TRUE(files.Exists(path));
        ExpectFailure(EEXIST, path, "created", [&] { files.CreatePrivate(path); });
    }
    EXPECT_EQ(folder.Get("new"), "x");
    EXPECT_FALSE(files.Exists(folder.Path("victim")));
}

TEST_F(LinuxFilesTest, KeepsWhatWasWrittenBeforeAFailure) {
    const std::string source = folder.Put("source", std::string(200, 's'));
    const std::string copy = folder.Path("copy");
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limit{100, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    const auto file = files.OpenForOutput(plain);
    file->Write(std::string(60, 'a'));
    ExpectFailure(EFBIG, plain, "written", [&] { file->Write(std::string(60, 'b')); });
    ExpectFailure(EFBIG, copy, "written", [&] { files.Copy(source, copy); });
    ::setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(folder.Get("Liste ü $x.txt"), std::string(60, 'a') + std::string(40, 'b'));
    EXPECT_EQ(folder.Get("copy"), std::string(100, 's'));
}

TEST(LinuxRegistry, AnswersWithTheFirstSystemInformationProgram) {
    const fakes::TemporaryFolder folder;
    LinuxRegistry registry;
    RegistryKey key = 7;
    std::array<char, 1024> buffer{};
    std::uint32_t type = 0;
    std::uint32_t size = buffer.size();
    const auto open = [&](const char* path) {
        return registry.RegOpenKeyExA(HKEY_LOCAL_MACHINE_ROOT, path, 0, REGISTRY_ALL_ACCESS, key);
    };
    const auto query = [&](const char* name) {
        return registry.RegQueryValueExA(key, name, type, buffer, size);
    };
    ::setenv("PATH", (folder.Path("bin") + ":/usr/bin:/bin").c_str(), 1);
    EXPECT_EQ(open(R"(SOFTWARE\Microsoft\Shared Tools Location)"), 2);
    EXPECT_EQ(open(R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)"), 0);
    EXPECT_EQ(query("PATH"), 2);
    folder.Put("bin/hardinfo", "", true);
    const std::string tool = folder.Put("bin/kinfocenter", "", true);
    EXPECT_EQ(query("MSINFO"), 2);
    size = static_cast<std::uint32_t>(tool.size()); // no room for the terminator
    EXPECT_EQ(query("PATH"), 234);
    EXPECT_EQ(query("PATH"), 0);
    EXPECT_EQ(type, REGISTRY_TYPE_STRING);
    EXPECT_EQ(std::string(buffer.data(), size), tool + '\0');
    EXPECT_EQ(registry.RegCloseKey(key), 0);
}

TEST(LinuxClock, CountsFromLocalMidnightWithFractions) {
    for (const auto& [zone, offset] : {std::pair("XXX-5:30", 19800), std::pair("XXX+11", -39600)}) {
        ::setenv("TZ", zone, 1);
        ::tzset();
        const double seconds = LinuxClock().SecondsSinceMidnight();
        const double late = static_cast<double>(std::time(nullptr)) + offset - seconds;
        EXPECT_LE(std::abs(std::remainder(late, 86400.0)), 1.1) << zone;
        EXPECT_TRUE(seconds >= 0 && seconds <= 86400) << seconds;
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
    const itimerval never{};
    ::setitimer(ITIMER_REAL, &never, nullptr);
    const auto isSet = [](std::byte b) { return b != std::byte{0}; };
    EXPECT_TRUE(std::any_of(bytes.end() - 32, bytes.end(), isSet));
}

} // namespace
} // namespace orvane
