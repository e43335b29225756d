#include "validation/statistics_runs_test.h"

#include <boost/math/distributions/normal.hpp>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace orvane::validation {

double RunsDensity(const std::string& arrangement) {
    const int sum = std::accumulate(arrangement.begin(), arrangement.end(), 0,
                                    [](int total, char letter) { return total + (letter - 'A'); });
    const auto size = static_cast<int>(arrangement.size());
    const auto isLow = [&](char letter) { return (letter - 'A') * size < sum; };
    const auto low = static_cast<double>(std::count_if(arrangement.begin(), arrangement.end(), isLow));
    const double high = size - low;
    int runs = 1;
    for (std::size_t i = 1; i < arrangement.size(); ++i)
        runs += isLow(arrangement[i]) == isLow(arrangement[i - 1]) ? 0 : 1;
    const double mean = 2 * low * high / size + 1;
    const double variance = (mean - 1) * (mean - 2) / (size - 1.0);
    if (!(variance > 0))
        return std::numeric_limits<double>::quiet_NaN();
    return boost::math::pdf(boost::math::normal(), (runs - mean) / std::sqrt(variance));
}

} // namespace orvane::validation
