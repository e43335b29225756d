#include "validation/list_p_value.h"

#include <cmath>
#include <numbers>
#include <numeric>

namespace orvane::validation {

double RunsTestValue(const std::vector<int>& groups) {
    const double count = static_cast<double>(groups.size());
    const double mean = std::accumulate(groups.begin(), groups.end(), 0.0) / count;
    double above = 0;
    double runs = 0;
    bool before = false;
    for (const int group : groups) {
        const bool now = group >= mean;
        if (runs == 0 || now != before)
            ++runs;
        above += now ? 1 : 0;
        before = now;
    }
    const double twice = 2 * above * (count - above);
    const double expected = twice / count + 1;
    const double variance = twice * (twice - count) / (count * count * (count - 1));
    const double z = (runs - expected) / std::sqrt(variance);
    return std::exp(-z * z / 2) / std::sqrt(2 * std::numbers::pi);
}

} // namespace orvane::validation
