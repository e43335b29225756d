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
    /// The same with this value in the first key.
    std::string ResultOf(std::uint32_t type, const std::string& bytes) {
        desktop.registry.Values[R"(SOFTWARE\Microsoft\Shared Tools\MSINFO|PATH)"] = {type, bytes};
        return Result();
    }
    FakeDesktop desktop;
};

TEST_F(SystemInfo, StartsWhatTheFirstKeyNames) {
    const std::string fillsTheBuffer(1024, 'x');
    EXPECT_EQ(ResultOf(REGISTRY_TYPE_STRING, "C:\\x.exe\0"s), "C:\\x.exe") << "without the terminator";
    EXPECT_EQ(ResultOf(REGISTRY_TYPE_STRING, fillsTheBuffer), fillsTheBuffer);
    EXPECT_EQ(ResultOf(REGISTRY_TYPE_NUMBER, "\x0D\x0C\x0B\x0A"), "43981") << "a digit for each small byte";
    EXPECT_EQ(ResultOf(REGISTRY_TYPE_NUMBER, "\xA0\x86\x01\0"s), "100000") << "a middle byte of 0";
    EXPECT_EQ(ResultOf(REGISTRY_TYPE_NUMBER, std::string(1000, '\xFF')), Unavailable) << "beyond all floats";
    EXPECT_EQ(ResultOf(3, "binary"), Unavailable);
}

TEST_F(SystemInfo, LooksInTheFolderOfTheSecondKeyWhenTheFirstHoldsNoText) {
    EXPECT_EQ(Result(), Unavailable) << "there are no keys";
    desktop.registry.Values[R"(SOFTWARE\Microsoft\Shared Tools Location|MSINFO)"] = {REGISTRY_TYPE_STRING,
                                                                                     "/tools\0"s};
    EXPECT_EQ(Result(), Unavailable) << "the tool is not there";
    const std::string tool = "/tools/MSINFO32.EXE";
    desktop.files.Contents[tool] = "";
    EXPECT_EQ(ResultOf(REGISTRY_TYPE_STRING, ""), tool);
    EXPECT_EQ(ResultOf(REGISTRY_TYPE_STRING, std::string(1025, 'x')), tool) << "too long for the buffer";
    EXPECT_EQ(ResultOf(REGISTRY_TYPE_STRING, "x"), "x");
    desktop.shell.Fails = {"StartProgram"};
    EXPECT_EQ(Result(), Unavailable) << "the tool does not start";
}

} // namespace
} // namespace orvane
