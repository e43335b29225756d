#include "forms/system_info.h"

#include "fakes/desktop.h"

namespace orvane {
namespace {

using namespace fakes;
using namespace std::string_literals;

constexpr const char* Unavailable = "System Information Is Unavailable At This Time";

struct SystemInfo : testing::Test {
    /// The program that is started, or else the message that comes.
    std::string Result() {
        desktop.shell.Started.clear();
        StartSysInfo(desktop.platform);
        EXPECT_EQ(desktop.registry.Open, 0) << "keys left open";
        return desktop.shell.Started.empty() ? desktop.messages.Take() : desktop.shell.Started.back();
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
        std::string result;
    };
    const Row rows[] = {{"a text with its terminator", text, "C:\\x.exe\0"s, "C:\\x.exe"},
                        {"the longest text", text, fillsTheBuffer, fillsTheBuffer},
                        {"a digit for each small byte", number, "\x0D\x0C\x0B\x0A", "43981"},
                        {"a number with a middle byte of 0", number, "\xA0\x86\x01\0"s, "100000"},
                        {"a number beyond all floats", number, std::string(1000, '\xFF'), Unavailable},
                        {"another type", 3, "binary", Unavailable}};
    for (const Row& row : rows) {
        SetPath(row.type, row.bytes);
        EXPECT_EQ(Result(), row.result) << row.what;
    }
}

TEST_F(SystemInfo, LooksInTheFolderOfTheSecondKeyWhenTheFirstHoldsNoText) {
    EXPECT_EQ(Result(), Unavailable) << "there are no keys";
    desktop.registry.Values[R"(SOFTWARE\Microsoft\Shared Tools Location|MSINFO)"] = {REGISTRY_TYPE_STRING,
                                                                                     "/tools\0"s};
    EXPECT_EQ(Result(), Unavailable) << "the tool is not there";
    desktop.files.Contents["/tools/MSINFO32.EXE"] = "";
    for (const std::size_t unusable : {0, 1025}) {
        SetPath(REGISTRY_TYPE_STRING, std::string(unusable, 'x'));
        EXPECT_EQ(Result(), "/tools/MSINFO32.EXE") << unusable << " bytes";
    }
    SetPath(REGISTRY_TYPE_STRING, "/first");
    EXPECT_EQ(Result(), "/first") << "the first key wins";
    desktop.shell.Fails = {"StartProgram"};
    EXPECT_EQ(Result(), Unavailable) << "the tool does not start";
}

} // namespace
} // namespace orvane
