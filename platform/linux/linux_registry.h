// The registry of a desktop that has none: it knows where the system information program is, and nothing
// else.
#pragma once

#include "platform/registry.h"

#include <cstdint>
#include <span>
#include <string>

namespace orvane {

/// Answers for the value "PATH" of the key SOFTWARE\Microsoft\Shared Tools\MSINFO with the first system
/// information program that is installed; without one the value does not exist.
class LinuxRegistry : public Registry {
  public:
    std::int32_t RegOpenKeyExA(std::uint32_t root, const std::string& path, std::uint32_t options,
                               std::uint32_t access, RegistryKey& key) override;
    /// Requires: `key` was opened here.
    std::int32_t RegQueryValueExA(RegistryKey key, const std::string& name, std::uint32_t& type,
                                  std::span<char> buffer, std::uint32_t& size) override;
    std::int32_t RegCloseKey(RegistryKey key) override;
};

} // namespace orvane
