#include "engine/runs_test.h"

#include "engine/numbers.h"

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

std::int16_t GetIntName(const std::vector<std::string>& groupNames, const std::string& strName) {
    const auto found = std::find(groupNames.begin(), groupNames.end(), strName);
    return found == groupNames.end() ? std::int16_t{0}
                                     : static_cast<std::int16_t>(found - groupNames.begin() + 1);
}

std::vector<std::int16_t> GroupNumbers(const std::vector<std::string>& groupNames) {
    std::vector<std::int16_t> numbers{0};
    for (const std::string& name : groupNames)
        numbers.push_back(GetIntName(groupNames, name));
    return numbers;
}

float GetRandomness(std::span<const std::int16_t> IntArr, MessageBox& messages) {
    const std::optional<float> z = RunsStatistic(CountRuns(IntArr));
    if (z)
        return RunsPValue(*z);
    messages.Show("Insufficient memory to perform statistics");
    return 0;
}

// Needs no memory, so that a test cannot fail for lack of it.
RunsCounts CountRuns(std::span<const std::int16_t> IntArr) {
    const float mean = MeanOf(IntArr);
    const auto isBelow = [mean](std::int16_t number) { return static_cast<float>(number) < mean; };
    RunsCounts counts{0, 0, 1};
    bool current = isBelow(IntArr.front());
    for (const std::int16_t number : IntArr) {
        const bool below = isBelow(number);
        if (below != current)
            ++counts.runs;
        current = below;
        ++(below ? counts.n0 : counts.n1);
    }
    return counts;
}

std::optional<float> RunsStatistic(const RunsCounts& counts) {
    if (!HasStatistic(counts))
        return std::nullopt;
    const double a = 2.0 * counts.n0 * counts.n1;
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
    const std::int32_t most = MostRuns(counts);
    for (counts.runs = 2; counts.runs <= most; ++counts.runs) {
        const std::optional<float> z = RunsStatistic(counts);
        if (z && RunsPValue(*z) > sigLevel)
            return true;
    }
    return false;
}

std::string CannotPassRunsTest(std::size_t size, float sigLevel) {
    return "a block of " + std::to_string(size) + " subjects cannot pass the Runs test at level " +
           SevenDigits(sigLevel) + ", please choose other blocks, a lower level or no Runs test";
}

} // namespace orvane
