#include "platform/linux/linux_registry.h"

#include <algorithm>
#include <cstddef>

#include <glib.h>

namespace orvane {

namespace {

constexpr std::int32_t Success = 0;
constexpr std::int32_t FileNotFound = 2;
constexpr std::int32_t MoreData = 234;

/// The full path of the first installed system information program; empty if there is none.
std::string FindTool() {
    for (const char* const name : {"kinfocenter", "hardinfo2", "hardinfo"}) {
        const g_autofree gchar* found = g_find_program_in_path(name);
        if (found != nullptr)
            return found;
    }
    return {};
}

} // namespace

std::int32_t LinuxRegistry::RegOpenKeyExA(std::uint32_t root, const std::string& path,
                                          std::uint32_t /*options*/, std::uint32_t /*access*/,
                                          RegistryKey& key) {
    key = root == HKEY_LOCAL_MACHINE_ROOT && path == R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)" ? 1 : 0;
    return key == 0 ? FileNotFound : Success;
}

std::int32_t LinuxRegistry::RegQueryValueExA(RegistryKey /*key*/, const std::string& name,
                                             std::uint32_t& type, std::span<char> buffer,
                                             std::uint32_t& size) {
    const std::string tool = FindTool();
    if (name != "PATH" || tool.empty())
        return FileNotFound;
    const bool fits = tool.size() < std::min<std::size_t>(size, buffer.size());
    size = static_cast<std::uint32_t>(tool.size() + 1);
    if (!fits)
        return MoreData;
    type = REGISTRY_TYPE_STRING;
    std::copy_n(tool.c_str(), size, buffer.begin());
    return Success;
}

std::int32_t LinuxRegistry::RegCloseKey(RegistryKey /*key*/) {
    return Success;
}

} // namespace orvane
