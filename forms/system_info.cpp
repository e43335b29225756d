#include "forms/system_info.h"

#include "engine/numbers.h"

#include <array>
#include <iomanip>
#include <sstream>

namespace orvane {

namespace {

constexpr std::size_t BufferSize = 1024;

/// The hexadecimal digits of each byte from the last to the first, none with a leading zero.
std::string HexDigitsBackwards(const std::string& bytes) {
    std::ostringstream text;
    text << std::hex;
    for (const char byte : std::string(bytes.rbegin(), bytes.rend()))
        text << static_cast<int>(static_cast<unsigned char>(byte));
    return text.str();
}

std::string DecimalDigits(double number) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(0) << number;
    return text.str();
}

/// The full path of the tool, empty when none is known.
std::string ToolPath(Platform& desktop) {
    std::string KeyVal;
    if (GetKeyValue(desktop.Registry, HKEY_LOCAL_MACHINE_ROOT, R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)",
                    "PATH", KeyVal))
        return KeyVal;
    if (!GetKeyValue(desktop.Registry, HKEY_LOCAL_MACHINE_ROOT, R"(SOFTWARE\Microsoft\Shared Tools Location)",
                     "MSINFO", KeyVal))
        return "";
    const std::string path = KeyVal + desktop.Separator + "MSINFO32.EXE";
    return desktop.FileSystem.Exists(path) ? path : "";
}

} // namespace

void StartSysInfo(Platform& desktop) {
    try {
        const std::string path = ToolPath(desktop);
        if (!path.empty())
            return desktop.Shell.StartProgram(path);
    } catch (...) {
        // A failure gives the same message as a missing tool.
    }
    desktop.Messages.Show("System Information Is Unavailable At This Time");
}

bool GetKeyValue(Registry& keys, std::uint32_t KeyRoot, const std::string& KeyName,
                 const std::string& SubKeyRef, std::string& KeyVal) {
    RegistryKey key{};
    std::array<char, BufferSize> buffer{};
    std::uint32_t size = BufferSize;
    std::uint32_t type{};
    bool found = false;
    if (keys.RegOpenKeyExA(KeyRoot, KeyName, 0, REGISTRY_ALL_ACCESS, key) == 0) {
        found =
            keys.RegQueryValueExA(key, SubKeyRef, type, buffer, size) == 0 && size > 0 && size <= BufferSize;
        keys.RegCloseKey(key);
    }
    if (!found) {
        KeyVal.clear();
        return false;
    }
    const std::string bytes(buffer.data(), buffer.at(size - 1) == '\0' ? size - 1 : size);
    if (type == REGISTRY_TYPE_STRING)
        KeyVal = bytes;
    if (type == REGISTRY_TYPE_NUMBER)
        KeyVal = DecimalDigits(NumericValue("&h" + KeyVal + HexDigitsBackwards(bytes)));
    return true;
}

} // namespace orvane
