// The Wald-Wolfowitz runs test above and below the mean, in its normal approximation, on the group numbers of
// a block. Its "P value" is not a tail probability. It is the density of the standard normal distribution at
// the test statistic: at most 0.398942280401433, and smaller the more the number of runs differs from its
// expectation.
#pragma once

#include "platform/message_box.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace orvane {

/// The group number of a name: of the first group that has it, counted from 1; 0 when none has it.
std::int16_t GetIntName(const std::vector<std::string>& groupNames, const std::string& strName);

/// GetIntName of the name of each group, group g in slot g; slot 0 is no group. So groups of the same name
/// have the same number.
std::vector<std::int16_t> GroupNumbers(const std::vector<std::string>& groupNames);

/// The P value of a block, `IntArr` holding the group number of each position. When the statistic has no
/// value (0 divided by 0), a message says so and the result is 0. Requires: 1 to 32767 positions.
float GetRandomness(std::span<const std::int16_t> IntArr, MessageBox& messages);

/// The counts that the test rests on.
struct RunsCounts {
    std::int32_t n0;   ///< positions below the mean
    std::int32_t n1;   ///< positions at or above the mean
    std::int32_t runs; ///< runs of equal flags in position order
};
RunsCounts CountRuns(std::span<const std::int16_t> IntArr);

/// The test statistic of these counts (Wald and Wolfowitz 1940, without continuity correction); none where it
/// is 0 divided by 0.
std::optional<float> RunsStatistic(const RunsCounts& counts);

/// The density of the standard normal distribution at z.
float RunsPValue(float z);

/// Whether a block with these group numbers has a P value above `sigLevel` in at least one order. Exact:
/// tries every number of runs that such a block can have.
bool CanPassRunsTest(std::span<const std::int16_t> IntArr, float sigLevel);

/// The text for a block of `size` subjects that cannot.
std::string CannotPassRunsTest(std::size_t size, float sigLevel);

} // namespace orvane
