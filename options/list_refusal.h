// Finds lists that cannot be made, while the user can still change the options and before any file is
// opened.
#pragma once

#include "engine/list_settings.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvane {

/// Why a list of these blocks cannot be made with these settings, as a message for the user; nothing when it
/// can be made.
/// Requires: every slot of `blockSizes` from 1 on is above 0, and slot 0 is 0; there is a name for each
/// group.
std::optional<std::string> ListRefusal(const ListSettings& settings,
                                       const std::vector<std::int16_t>& blockSizes);

} // namespace orvane
