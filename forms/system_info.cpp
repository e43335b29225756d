#include "forms/system_info.h"

#include "engine/numbers.h"

#include <array>
#include <charconv>
#include <limits>
#include <optional>
#include <string_view>

namespace orvane {

namespace {

constexpr std::size_t BufferSize = 1024;
constexpr const char* ToolKey = R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)";
constexpr const char* ToolPathValue = "PATH";
constexpr const char* FolderKey = R"(SOFTWARE\Microsoft\Shared Tools Location)";
constexpr const char* FolderValue = "MSINFO";
constexpr const char* ToolFile = "MSINFO32.EXE";

class OpenKey {
  public:
    OpenKey(Registry& keys, std::uint32_t root, const std::string& name)
        : keys_(keys), opened_(keys.RegOpenKeyExA(root, name, 0, REGISTRY_ALL_ACCESS, key_) == 0) {}
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;
    ~OpenKey() {
        if (opened_)
            keys_.RegCloseKey(key_);
    }

    /// The bytes of a value, without the terminator of a text; nothing when it has none or cannot be read.
    std::optional<std::string> Query(const std::string& name, std::uint32_t& type) {
        std::array<char, BufferSize> buffer{};
        std::uint32_t size = BufferSize;
        if (!opened_ || keys_.RegQueryValueExA(key_, name, type, buffer, size) != 0)
            return std::nullopt;
        if (size == 0 || size > BufferSize)
            return std::nullopt;
        const bool terminated = buffer.at(size - 1) == '\0';
        return std::string(buffer.data(), terminated ? size - 1 : size);
    }

  private:
    Registry& keys_;
    RegistryKey key_ = 0;
    bool opened_;
};

/// The code in upper-case hexadecimal digits, none of them a leading zero.
std::string HexDigits(char character) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto code = static_cast<unsigned char>(character);
    const std::string low(1, digits.at(code % 16U));
    return code < 16U ? low : digits.at(code / 16U) + low;
}

std::string DecimalDigits(double number) {
    std::array<char, std::numeric_limits<double>::max_exponent10 + 2> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed, 0).ptr;
    return {digits.data(), end};
}

/// The full path of the tool, empty when none is known.
std::string ToolPath(Platform& desktop) {
    std::string KeyVal;
    if (GetKeyValue(desktop.Keys, HKEY_LOCAL_MACHINE_ROOT, ToolKey, ToolPathValue, KeyVal))
        return KeyVal;
    if (!GetKeyValue(desktop.Keys, HKEY_LOCAL_MACHINE_ROOT, FolderKey, FolderValue, KeyVal))
        return "";
    const std::string path = KeyVal + desktop.Separator + ToolFile;
    return desktop.FileSystem.Exists(path) ? path : "";
}

} // namespace

void StartSysInfo(Platform& desktop) {
    try {
        const std::string path = ToolPath(desktop);
        if (!path.empty())
            return desktop.Shell.StartProgram(path);
    } catch (...) {
        // Whatever failed, the user is told the same as when there is no tool.
    }
    desktop.Messages.Show("System Information Is Unavailable At This Time");
}

bool GetKeyValue(Registry& keys, std::uint32_t KeyRoot, const std::string& KeyName,
                 const std::string& SubKeyRef, std::string& KeyVal) {
    OpenKey key(keys, KeyRoot, KeyName);
    std::uint32_t type = 0;
    const std::optional<std::string> bytes = key.Query(SubKeyRef, type);
    if (!bytes) {
        KeyVal.clear();
        return false;
    }
    if (type == REGISTRY_TYPE_STRING)
        KeyVal = *bytes;
    if (type == REGISTRY_TYPE_NUMBER) {
        for (const char byte : std::string(bytes->rbegin(), bytes->rend()))
            KeyVal += HexDigits(byte);
        KeyVal = DecimalDigits(NumericValue("&h" + KeyVal));
    }
    return true;
}

} // namespace orvane
