// Name and version of the program.
#pragma once

#include <cstdint>

namespace orvane {

/// The caption of every plain message box and the title in the About box.
inline constexpr const char* ApplicationTitle = "Orvane Software";

/// The version in project() of CMakeLists.txt.
struct VersionRecord {
    std::int16_t Major;
    std::int16_t Minor;
    std::int16_t Revision;
};
inline constexpr VersionRecord ApplicationVersion{ORVANE_VERSION};

} // namespace orvane
