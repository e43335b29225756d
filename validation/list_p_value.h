// The P value of the Runs test, calculated independently of the program.
#pragma once

#include <vector>

namespace orvane::validation {

/// The standard normal density at (runs - expected runs) / deviation, where a run is a maximal sequence of
/// group numbers that are all below the block's mean, or all at or above it (Wald and Wolfowitz, 1940, in the
/// normal approximation). At most 0.3989. NaN if all group numbers are on the same side of the mean.
double RunsTestValue(const std::vector<int>& groups);

} // namespace orvane::validation
