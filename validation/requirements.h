// The requirements of the program, in a trial statistician's terms.
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
    std::string Risk; ///< effect of a fault on a trial, one sentence
    std::vector<Requirement> Requirements;
};

/// All requirements, in the order of their risk, the most serious first.
const std::vector<RequirementGroup>& AllRequirements();

} // namespace orvane::validation
