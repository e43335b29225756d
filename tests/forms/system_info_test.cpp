#include "forms/system_info.h"

#include "fakes/desktop.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace orvane {
namespace {

using namespace std::string_literals;
using Values = std::map<std::string, fakes::MemoryRegistry::Value>;

constexpr std::uint32_t Text = REGISTRY_TYPE_STRING;
constexpr std::uint32_t Number = REGISTRY_TYPE_NUMBER;
const std::string ToolPath = R"(SOFTWARE\Microsoft\Shared Tools\MSINFO|PATH)";
const std::string ToolFolder = R"(SOFTWARE\Microsoft\Shared Tools Location|MSINFO)";

TEST(SystemInfo, GetKeyValueReadsByTheKindOfTheValue) {
    const std::vector<std::tuple<std::uint32_t, std::string, bool, std::string>> rows = {
        {Text, "C:\\x.exe\0"s, true, "C:\\x.exe"},
        {Text, "no terminator", true, "no terminator"},
        {Text, "two\0\0"s, true, "two\0"s},
        {Text, "\0"s, true, ""},
        {Text, "", false, ""},
        {Text, std::string(1024, 'x'), true, std::string(1024, 'x')},
        {Text, std::string(1025, 'x'), false, ""},
        {Number, "\x01\0\0\0"s, true, "1"},
        {Number, "\x0D\x0C\x0B\x0A", true, "43981"},
        {Number, "\xFF\xFF\xFF\xFF", true, "4294967295"},
        {Number, "\xA0\x86\x01\0"s, true, "100000"},
        {Number, "\0\0\0\0"s, true, "0"},
        {3, "binary", true, "as before"},
    };
    for (const auto& [type, bytes, found, value] : rows) {
        fakes::MemoryRegistry keys;
        keys.Values["key|name"] = {type, bytes};
        std::string KeyVal = type == Number ? "" : "as before";
        EXPECT_EQ(GetKeyValue(keys, HKEY_LOCAL_MACHINE_ROOT, "key", "name", KeyVal), found);
        EXPECT_EQ(KeyVal, value);
        KeyVal = "as before";
        EXPECT_FALSE(GetKeyValue(keys, HKEY_LOCAL_MACHINE_ROOT, "other", "name", KeyVal));
        EXPECT_EQ(KeyVal, "");
        EXPECT_EQ(keys.Open, 0);
    }
}

TEST(SystemInfo, StartsTheToolThatTheFirstKeyNames) {
    // The values, a file, what a start answers, what is started ("" for the message), how many values are
    // read.
    const std::vector<std::tuple<Values, std::string, std::int32_t, std::string, std::size_t>> rows = {
        {{{ToolPath, {Text, "/tool\0"s}}, {ToolFolder, {Text, "/dir\0"s}}}, "", 42, "/tool", 1},
        {{{ToolFolder, {Text, "/dir\0"s}}}, "/dir/MSINFO32.EXE", 42, "/dir/MSINFO32.EXE", 1},
        {{{ToolFolder, {Text, "/dir\0"s}}}, "", 42, "", 1},
        {{{ToolPath, {Text, "/tool\0"s}}}, "", 2, "", 1},
        {{{ToolPath, {3, "/tool"}}}, "", 2, "", 1},
        {{{ToolPath, {Number, std::string(1000, '\xFF')}}}, "", 42, "", 1},
        {{}, "", 42, "", 0},
    };
    for (const auto& [values, file, starts, started, asked] : rows) {
        fakes::FakeDesktop desktop;
        desktop.keys.Values = values;
        desktop.files.Contents[file] = "";
        if (starts <= 32)
            desktop.shell.Fails = {"StartProgram"};
        StartSysInfo(desktop.platform);
        EXPECT_EQ(desktop.messages.Take(),
                  started.empty() ? "System Information Is Unavailable At This Time" : "");
        EXPECT_EQ(desktop.shell.Started, std::vector<std::string>(started.empty() ? 0 : 1, started));
        EXPECT_EQ(desktop.keys.Asked.size(), asked);
        EXPECT_EQ(desktop.keys.Open, 0);
    }
}

} // namespace
} // namespace orvane
