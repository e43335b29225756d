// The clock, the registry and the program's folder.
#include "fakes/environment.h"
#include "fakes/temporary_folder.h"
#include "platform/linux/linux_clock.h"
#include "platform/linux/linux_registry.h"
#include "platform/linux/program_directory.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <cmath>
#include <ctime>
#include <string>

#include <unistd.h>

namespace orvane {
namespace {

using namespace fakes;
namespace fs = std::filesystem;

TEST(LinuxClock, CountsSecondsAndTheirFractionsFromLocalMidnight) {
    for (const int hoursAhead : {5, -11}) {
        const SetVariable zone("TZ", "XXX" + std::to_string(-hoursAhead)); // counts the other way
        ::tzset();
        const std::chrono::duration<double> now = std::chrono::system_clock::now().time_since_epoch();
        const double difference = now.count() + hoursAhead * 3600.0 - LinuxClock().SecondsSinceMidnight();
        const double late = std::remainder(difference, 86400.0);
        EXPECT_LT(late, 0.05) << hoursAhead << " hours";
        EXPECT_GT(late, -5.0) << hoursAhead << " hours";
    }
    ::tzset(); // the variable is as before
}

TEST(LinuxRegistry, HasThePathOfTheFirstSystemInformationProgram) {
    const TemporaryFolder folder;
    const SetVariable searched("PATH", folder.Path());
    LinuxRegistry registry;
    RegistryKey key = 0;
    registry.RegOpenKeyExA(HKEY_LOCAL_MACHINE_ROOT, R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)", 0,
                           REGISTRY_ALL_ACCESS, key);
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
