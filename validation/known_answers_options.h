// What OK of the options window makes of settings.
#pragma once

#include "engine/list_settings.h"
#include "validation/memory_desktop.h"

#include <string>
#include <vector>

namespace orvane::validation {

/// Settings with which a list can be made: 20 subjects in `groups` groups, numeric sequential codes of 5.
ListSettings ValidSettings(std::int16_t groups, std::int16_t sampleSize);

struct OkResult {
    std::string Messages; ///< joined by " / "; empty when the options are accepted
    std::string Focus;    ///< the field that got the focus, empty for none
    std::string Sizes;    ///< of the accepted blocks, "8, 10, 6"
};

/// Presses OK with these settings. `level` stands in the field of the significance level; block sizes are
/// drawn with the random `values`. The groups are named A, B, C ... unless there are `names`.
OkResult PressOk(ListSettings settings, const std::string& level = "0.05",
                 const std::vector<float>& values = {}, const Texts& names = {});

} // namespace orvane::validation
