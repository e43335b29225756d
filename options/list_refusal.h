// Lists that cannot be made. They are refused while the options can still be changed, before any file is
// touched.
#pragma once

#include "engine/list_settings.h"
#include "platform/ms_flex_grid.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvane {

/// Why a list of these blocks cannot be made with these settings, as a message for the user; nothing when it
/// can be made. Slot 0 of `blockSizes` is no block; every other slot is above 0.
std::optional<std::string> ListRefusal(const ListSettings& settings,
                                       const std::vector<std::int16_t>& blockSizes,
                                       const MSFlexGrid& groupNames);

} // namespace orvane
