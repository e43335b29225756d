// The P value of the Runs test, calculated anew from the definition of Wald and Wolfowitz.
#pragma once

#include <string>

namespace orvane::validation {

/// The density of the standard normal distribution at the Runs test's statistic of a block. Groups are
/// letters, "A" the first; those below the mean of their numbers are one kind, the others the other kind. NaN
/// where the statistic has no value.
double RunsDensity(const std::string& arrangement);

} // namespace orvane::validation
