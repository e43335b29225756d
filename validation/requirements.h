// What the program must do, in the words of a trial statistician.
#pragma once

#include <string>
#include <vector>

namespace orvane::validation {

struct Requirement {
    std::string Identifier; ///< stays the same from version to version, such as "BLK-3"
    std::string Text;       ///< one sentence
};

/// Requirements of one kind of risk.
struct RequirementGroup {
    std::string Name;
    std::string Risk; ///< what a fault here would do to a trial, one sentence
    std::vector<Requirement> Requirements;
};

/// All requirements, the gravest risk first.
const std::vector<RequirementGroup>& AllRequirements();

} // namespace orvane::validation
