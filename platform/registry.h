// The registry of the desktop, as far as the About box asks it.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace orvane {

inline constexpr std::uint32_t HKEY_LOCAL_MACHINE_ROOT = 0x80000002U;
inline constexpr std::uint32_t REGISTRY_ALL_ACCESS = 0x2003FU;
inline constexpr std::uint32_t REGISTRY_TYPE_STRING = 1;
inline constexpr std::uint32_t REGISTRY_TYPE_NUMBER = 4;

/// An open key; 0 is none.
using RegistryKey = std::uintptr_t;

class Registry {
  public:
    virtual ~Registry() = default;
    /// 0 and an open `key` on success, else the platform's error number.
    virtual std::int32_t RegOpenKeyExA(std::uint32_t root, const std::string& path, std::uint32_t options,
                                       std::uint32_t access, RegistryKey& key) = 0;
    /// Puts the value `name` into `buffer`, its kind into `type` and its length in bytes into `size`, which
    /// holds the buffer's length before. 0 on success, else the platform's error number.
    virtual std::int32_t RegQueryValueExA(RegistryKey key, const std::string& name, std::uint32_t& type,
                                          std::span<char> buffer, std::uint32_t& size) = 0;
    virtual std::int32_t RegCloseKey(RegistryKey key) = 0;
};

} // namespace orvane
