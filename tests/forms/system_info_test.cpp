#include "forms/system_info.h"

#include "fakes/desktop.h"

namespace orvane {
namespace {

using namespace fakes;
using namespace std::string_literals;

struct SystemInfo : testing::Test {
    /// The program that is started; "" when the message comes instead.
    std::string Started() {
        desktop.shell.Started.clear();
        StartSysInfo(desktop.platform);
        EXPECT_EQ(desktop.registry.Open, 0) << "keys left open";
        const std::string message = desktop.messages.Take();
        if (desktop.shell.Started.empty()) {
            EXPECT_EQ(message, "System Information Is Unavailable At This Time");
            return "";
        }
        EXPECT_EQ(message, "");
        return desktop.shell.Started.back();
    }
    void SetPath(std::uint32_t type, const std::string& bytes) {
        desktop.registry.Values[R"(SOFTWARE\Microsoft\Shared Tools\MSINFO|PATH)"] = {type, bytes};
    }
    FakeDesktop desktop;
};

TEST_F(SystemInfo, StartsWhatTheFirstKeyNames) {
    constexpr std::uint32_t text = REGISTRY_TYPE_STRING;
    constexpr std::uint32_t number = REGISTRY_TYPE_NUMBER;
    const std::string fillsTheBuffer(1024, 'x');
    struct Row {
        const char* what;
        std::uint32_t type;
        std::string bytes;
        std::string started;
    };
    const Row rows[] = {{"a text with its terminator", text, "C:\\x.exe\0"s, "C:\\x.exe"},
                        {"the longest text", text, fillsTheBuffer, fillsTheBuffer},
                        {"a digit for each small byte", number, "\x0D\x0C\x0B\x0A", "43981"},
                        {"a number with a middle byte of 0", number, "\xA0\x86\x01\0"s, "100000"},
                        {"a number beyond all floats", number, std::string(1000, '\xFF'), ""},
                        {"another type", 3, "binary", ""}};
    for (const Row& row : rows) {
        SetPath(row.type, row.bytes);
        EXPECT_EQ(Started(), row.started) << row.what;
    }
}

TEST_F(SystemInfo, LooksInTheFolderOfTheSecondKeyWhenTheFirstHoldsNoText) {
    desktop.registry.Values[R"(SOFTWARE\Microsoft\Shared Tools Location|MSINFO)"] = {REGISTRY_TYPE_STRING,
                                                                                     "/tools\0"s};
    EXPECT_EQ(Started(), "") << "the tool is not there";
    desktop.files.Contents["/tools/MSINFO32.EXE"] = "";
    EXPECT_EQ(Started(), "/tools/MSINFO32.EXE");
    SetPath(REGISTRY_TYPE_STRING, std::string(1025, 'x'));
    EXPECT_EQ(Started(), "/tools/MSINFO32.EXE") << "a value too long for the buffer is none";
    SetPath(REGISTRY_TYPE_STRING, "/first");
    EXPECT_EQ(Started(), "/first") << "the first key wins";
}

TEST_F(SystemInfo, IsUnavailableWithoutKeysAndWhenTheToolDoesNotStart) {
    EXPECT_EQ(Started(), "");
    SetPath(REGISTRY_TYPE_STRING, "/tool");
    desktop.shell.Fails = {"StartProgram"};
    EXPECT_EQ(Started(), "");
}

} // namespace
} // namespace orvane
