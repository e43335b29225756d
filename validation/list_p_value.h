// The P value that the Runs test gives to a block, computed anew.
#pragma once

#include <vector>

namespace orvane::validation {

/// The standard normal density at (runs - expected runs) / deviation, where a run is a longest stretch of
/// group numbers that are all below the block's mean, or all at or above it (Wald and Wolfowitz, 1940, in the
/// normal approximation). At most 0.3989. Not a number if all groups lie on one side of the mean.
double RunsTestValue(const std::vector<int>& groups);

} // namespace orvane::validation
