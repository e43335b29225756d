// The part of the desktop's registry that the About box reads.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace orvane {

inline constexpr std::uint32_t HKEY_LOCAL_MACHINE_ROOT = 0x80000002U;
inline constexpr std::uint32_t REGISTRY_ALL_ACCESS = 0x2003FU;
inline constexpr std::uint32_t REGISTRY_TYPE_STRING = 1;
inline constexpr std::uint32_t REGISTRY_TYPE_NUMBER = 4;

/// An open key; 0 means none.
using RegistryKey = std::uintptr_t;

class Registry {
  public:
    virtual ~Registry() = default;
    /// Opens `key`. Returns 0 on success, otherwise the error number of the platform.
    virtual std::int32_t RegOpenKeyExA(std::uint32_t root, const std::string& path, std::uint32_t options,
                                       std::uint32_t access, RegistryKey& key) = 0;
    /// Copies the value `name` into `buffer`, its type into `type` and its length in bytes into `size`.
    /// Returns 0 on success, otherwise the error number of the platform.
    /// Requires: `size` holds the length of the buffer.
    virtual std::int32_t RegQueryValueExA(RegistryKey key, const std::string& name, std::uint32_t& type,
                                          std::span<char> buffer, std::uint32_t& size) = 0;
    virtual std::int32_t RegCloseKey(RegistryKey key) = 0;
};

} // namespace orvane
