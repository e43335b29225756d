// The clock, the random bytes, the registry and the program's folder.
#include "fakes/environment.h"
#include "fakes/temporary_folder.h"
#include "platform/linux/linux_clock.h"
#include "platform/linux/linux_entropy.h"
#include "platform/linux/linux_registry.h"
#include "platform/linux/program_directory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <csignal>
#include <ctime>
#include <string>
#include <vector>

#include <unistd.h>

namespace orvane {
namespace {

using namespace fakes;
namespace fs = std::filesystem;

TEST(LinuxClock, CountsFromLocalMidnight) {
    for (const int hoursAhead : {5, -11}) {
        const SetVariable zone("TZ", "XXX" + std::to_string(-hoursAhead)); // counts the other way
        ::tzset();
        const double now = std::difftime(std::time(nullptr), 0) + hoursAhead * 3600.0;
        const double late = now - LinuxClock().SecondsSinceMidnight();
        EXPECT_LE(std::abs(std::remainder(late, 86400.0)), 1.1) << hoursAhead << " hours";
    }
    ::tzset(); // the variable is as before
}

TEST(LinuxClock, CountsFractionsOfASecond) {
    float fraction = 0;
    for (int look = 0; look < 100'000'000 && fraction == 0; ++look)
        fraction = std::fmod(LinuxClock().SecondsSinceMidnight(), 1.0F);
    EXPECT_GT(fraction, 0.0F);
}

TEST(LinuxEntropy, FillsToTheLastByteThoughSignalsCutItShort) {
    auto* const before = std::signal(SIGALRM, [](int) {});
    ::ualarm(1000, 1000); // a signal each millisecond
    std::vector<std::byte> bytes(40'000'000);
    LinuxEntropy().Fill(bytes);
    ::ualarm(0, 0);
    ASSERT_NE(std::signal(SIGALRM, before), SIG_ERR);
    EXPECT_LT(std::count(bytes.end() - 32, bytes.end(), std::byte{0}), 32);
}

TEST(LinuxRegistry, HasThePathOfTheFirstSystemInformationProgram) {
    const TemporaryFolder folder;
    const SetVariable searched("PATH", folder.Path());
    LinuxRegistry registry;
    RegistryKey key = 0;
    const std::string path = R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)";
    EXPECT_EQ(registry.RegOpenKeyExA(HKEY_LOCAL_MACHINE_ROOT, path, 0, REGISTRY_ALL_ACCESS, key), 0);
    std::string buffer(1024, '\0');
    std::uint32_t type = 0;
    std::uint32_t size = 1024;
    const auto query = [&] { return registry.RegQueryValueExA(key, "PATH", type, buffer, size); };
    EXPECT_EQ(query(), 2) << "none is installed";
    folder.Put("hardinfo", "", true);
    const std::string first = folder.Put("kinfocenter", "", true);
    size = static_cast<std::uint32_t>(first.size());
    EXPECT_EQ(query(), 234) << "no room for the terminator";
    EXPECT_EQ(query(), 0) << "with the size that was told";
    EXPECT_EQ(type, REGISTRY_TYPE_STRING);
    EXPECT_EQ(buffer.substr(0, size), first + '\0');
}

TEST(ProgramDirectoryDeathTest, IsWhereTheProgramFileItselfLies) {
    const fs::path file = fs::path(ProgramDirectory()) / program_invocation_short_name;
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(file))) << file;
}

TEST(ProgramDirectoryDeathTest, IsTheSameForAProgramStartedThroughALink) {
    const TemporaryFolder folder;
    const std::string link = folder.Path(program_invocation_short_name);
    fs::create_symlink(fs::canonical("/proc/self/exe"), link);
    EXPECT_EXIT(
        ::execl(link.c_str(), link.c_str(), "--gtest_filter=*.IsWhereTheProgramFileItselfLies", nullptr),
        testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace orvane
