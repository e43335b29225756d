#include "fakes/temporary_folder.h"
#include "platform/linux/linux_clock.h"
#include "platform/linux/linux_entropy.h"
#include "platform/linux/linux_registry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <ctime>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include <sys/time.h>

namespace orvane {
namespace {

TEST(LinuxRegistry, AnswersWithTheFirstSystemInformationProgram) {
    const fakes::TemporaryFolder folder;
    LinuxRegistry registry;
    RegistryKey key = 7;
    const auto open = [&](const char* path) {
        return registry.RegOpenKeyExA(HKEY_LOCAL_MACHINE_ROOT, path, 0, REGISTRY_ALL_ACCESS, key);
    };
    const char* const path = R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)";
    ::setenv("PATH", (folder.Path("bin") + ":/usr/bin:/bin").c_str(), 1);
    std::array<char, 1024> buffer{};
    std::uint32_t type = 0;
    std::uint32_t size = buffer.size();
    EXPECT_EQ(open(R"(SOFTWARE\Microsoft\Shared Tools Location)"), 2);
    EXPECT_EQ(key, 0U);
    ASSERT_EQ(open(path), 0);
    EXPECT_EQ(registry.RegQueryValueExA(key, "PATH", type, buffer, size), 2);
    folder.Put("bin/hardinfo", "", true);
    const std::string tool = folder.Put("bin/kinfocenter", "", true);
    EXPECT_EQ(registry.RegQueryValueExA(key, "MSINFO", type, buffer, size), 2);
    size = static_cast<std::uint32_t>(tool.size()); // no room for the terminator
    EXPECT_EQ(registry.RegQueryValueExA(key, "PATH", type, buffer, size), 234);
    EXPECT_EQ(registry.RegQueryValueExA(key, "PATH", type, buffer, size), 0);
    EXPECT_EQ(type, REGISTRY_TYPE_STRING);
    EXPECT_EQ(std::string(buffer.data(), size), tool + '\0');
    EXPECT_EQ(registry.RegCloseKey(key), 0);
}

TEST(LinuxClock, CountsFromLocalMidnight) {
    for (const auto& [zone, offset] : {std::pair("XXX-5:30", 19800), std::pair("XXX+11", -39600)}) {
        ::setenv("TZ", zone, 1);
        ::tzset();
        // Of a day that ends between the two looks, a second try is the judge.
        double before = 1;
        double after = 0;
        double seconds = 0;
        for (int look = 0; look < 2 && before > after; ++look) {
            const auto ofDay = [offset = offset] {
                return std::fmod(static_cast<double>(std::time(nullptr)) + offset, 86400.0);
            };
            before = ofDay();
            seconds = LinuxClock().SecondsSinceMidnight();
            after = ofDay();
        }
        EXPECT_GE(seconds, before - 0.01) << zone;
        EXPECT_LE(seconds, after + 1.01) << zone;
    }
}

TEST(LinuxClock, HasFractions) {
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
    ASSERT_NE(std::signal(SIGALRM, SIG_DFL), SIG_ERR);
    const auto tail = std::span(bytes).last(32);
    EXPECT_TRUE(std::any_of(tail.begin(), tail.end(), [](std::byte b) { return b != std::byte{0}; }));
}

} // namespace
} // namespace orvane
