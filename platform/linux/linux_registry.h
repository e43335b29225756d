// Replaces the registry on a desktop that has none: answers only where the system information program is.
#pragma once

#include "platform/registry.h"

#include <cstdint>
#include <span>
#include <string>

namespace orvane {

/// The value "PATH" of the key SOFTWARE\Microsoft\Shared Tools\MSINFO is the path of the first system
/// information program that is installed. If there is none, the value does not exist. No other key exists.
class LinuxRegistry : public Registry {
  public:
    std::int32_t RegOpenKeyExA(std::uint32_t root, const std::string& path, std::uint32_t options,
                               std::uint32_t access, RegistryKey& key) override;
    /// Requires: `key` was opened by this object.
    std::int32_t RegQueryValueExA(RegistryKey key, const std::string& name, std::uint32_t& type,
                                  std::span<char> buffer, std::uint32_t& size) override;
    std::int32_t RegCloseKey(RegistryKey key) override;
};

} // namespace orvane
