#include "platform/linux/linux_registry.h"

#include "platform/linux/glib_pointers.h"

#include <algorithm>
#include <cstddef>

namespace orvane {

namespace {

constexpr std::int32_t Success = 0;
constexpr std::int32_t FileNotFound = 2;
constexpr std::int32_t InvalidHandle = 6;
constexpr std::int32_t MoreData = 234;

constexpr RegistryKey ToolKey = 1;
constexpr const char* ToolPath = R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)";
constexpr const char* ToolValue = "PATH";

/// The full path of the first system information program that is installed, else empty.
std::string FindTool() {
    for (const char* const name : {"kinfocenter", "hardinfo2", "hardinfo"}) {
        const GLibPointer<gchar> found(g_find_program_in_path(name));
        if (found)
            return found.get();
    }
    return {};
}

} // namespace

std::int32_t LinuxRegistry::RegOpenKeyExA(std::uint32_t root, const std::string& path,
                                          std::uint32_t /*options*/, std::uint32_t /*access*/,
                                          RegistryKey& key) {
    key = 0;
    if (root != HKEY_LOCAL_MACHINE_ROOT || path != ToolPath || FindTool().empty())
        return FileNotFound;
    key = ToolKey;
    return Success;
}

std::int32_t LinuxRegistry::RegQueryValueExA(RegistryKey key, const std::string& name, std::uint32_t& type,
                                             std::span<char> buffer, std::uint32_t& size) {
    if (key != ToolKey)
        return InvalidHandle;
    const std::string tool = FindTool();
    if (name != ToolValue || tool.empty())
        return FileNotFound;
    const std::size_t room = std::min<std::size_t>(size, buffer.size());
    const std::size_t length = tool.size() + 1;
    type = REGISTRY_TYPE_STRING;
    size = static_cast<std::uint32_t>(length);
    if (length > room)
        return MoreData;
    std::copy_n(tool.c_str(), length, buffer.begin());
    return Success;
}

std::int32_t LinuxRegistry::RegCloseKey(RegistryKey key) {
    return key == ToolKey ? Success : InvalidHandle;
}

} // namespace orvane
