// The result of pressing OK in the options window.
#pragma once

#include "engine/list_settings.h"
#include "validation/memory_desktop.h"

#include <string>
#include <vector>

namespace orvane::validation {

/// Settings with which a list can be made, with numeric sequential codes of length 5.
ListSettings ValidSettings(std::int16_t groups, std::int16_t sampleSize);

struct OkResult {
    std::string Messages; ///< joined by " / "; empty when the options are accepted
    std::string Focus;    ///< the field that got the focus; empty if none
    std::string Sizes;    ///< of the accepted blocks, "8, 10, 6"
};

/// Presses OK with these settings. `level` is the text of the significance level field; block sizes are drawn
/// with the random `values`. The groups are named A, B, C ... if `names` is empty.
OkResult PressOk(ListSettings settings, const std::string& level = "0.05",
                 const std::vector<float>& values = {}, const Texts& names = {});

} // namespace orvane::validation
