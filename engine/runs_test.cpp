#include "engine/runs_test.h"

#include "engine/numbers.h"
#include "platform/failure.h"

#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

float MeanOf(std::span<const std::int16_t> IntArr) {
    std::int32_t total = 0;
    for (const std::int16_t number : IntArr)
        total += number;
    return static_cast<float>(static_cast<double>(total) / static_cast<double>(IntArr.size()));
}

/// The statistic is 0 divided by 0 for a block of one position, for a block of two positions, one on each
/// side of the mean, and for a block whose positions are all on the same side.
bool HasStatistic(const RunsCounts& counts) {
    return counts.n0 > 0 && counts.n1 > 0 && counts.n0 + counts.n1 > 2;
}

/// The most runs that n0 and n1 flags can form.
std::int32_t MostRuns(const RunsCounts& counts) {
    return 2 * std::min(counts.n0, counts.n1) + (counts.n0 == counts.n1 ? 0 : 1);
}

} // namespace

std::int16_t GetIntName(const MSFlexGrid& groupNames, const std::string& strName) {
    for (std::int16_t i = 1; i < groupNames.Rows(); ++i)
        if (groupNames.TextMatrix(i, 1) == strName)
            return i;
    return 0;
}

std::vector<std::int16_t> GroupNumbers(const MSFlexGrid& groupNames, std::int16_t numberOfGroups) {
    std::vector<std::int16_t> numbers{0};
    for (std::int16_t g = 1; g <= numberOfGroups; ++g)
        numbers.push_back(GetIntName(groupNames, groupNames.TextMatrix(g, 1)));
    return numbers;
}

float GetRandomness(std::span<const std::int16_t> IntArr, MessageBox& messages) {
    try {
        return RunsPValue(RunsStatistic(CountRuns(IntArr)));
    } catch (const Failure& failure) {
        if (failure.Number == failure_number::Arithmetic)
            messages.Show("Insufficient memory to perform statistics");
    } catch (const std::exception&) {
        // No message for other failures, such as no memory: the result tells that the test failed.
    }
    return 0;
}

// Needs no memory, so that a test cannot fail for lack of it.
RunsCounts CountRuns(std::span<const std::int16_t> IntArr) {
    if (IntArr.empty())
        return {0, 0, 0};
    const float mean = MeanOf(IntArr);
    const auto isBelow = [mean](std::int16_t number) { return static_cast<float>(number) < mean; };
    RunsCounts counts{0, 0, 1};
    bool current = isBelow(IntArr.front());
    for (const std::int16_t number : IntArr) {
        const bool below = isBelow(number);
        if (below != current)
            counts.runs = Add16(counts.runs, 1);
        current = below;
        ++(below ? counts.n0 : counts.n1);
    }
    return counts;
}

float RunsStatistic(const RunsCounts& counts) {
    if (!HasStatistic(counts))
        throw Failure("The Runs test has no value for this block.", failure_number::Arithmetic,
                      "GetRandomness");
    const double a = Multiply32(Multiply32(2, counts.n0), counts.n1);
    const double m = counts.n0 + counts.n1;
    const auto expected = static_cast<float>(a / m + 1);
    const double variance = (a * (a - m)) / (m * m * (m - 1));
    const double deviation = std::sqrt(variance);
    return static_cast<float>((counts.runs - static_cast<double>(expected)) / deviation);
}

float RunsPValue(float z) {
    constexpr double densityAtZero = 0.398942280401433; // 1 / sqrt(2 pi)
    const double square = static_cast<double>(z) * static_cast<double>(z);
    return static_cast<float>(densityAtZero * std::exp(-square / 2));
}

bool CanPassRunsTest(std::span<const std::int16_t> IntArr, float sigLevel) {
    RunsCounts counts = CountRuns(IntArr);
    if (!HasStatistic(counts))
        return false;
    for (std::int32_t runs = 2; runs <= MostRuns(counts); ++runs) {
        counts.runs = static_cast<std::int16_t>(runs);
        if (RunsPValue(RunsStatistic(counts)) > sigLevel)
            return true;
    }
    return false;
}

} // namespace orvane
