#include "options/list_refusal.h"

#include "engine/block_shuffle.h"
#include "engine/runs_test.h"
#include "engine/subject_codes.h"

#include <algorithm>
#include <numeric>
#include <set>

namespace orvane {

namespace {

constexpr const char* ChooseSmaller = ", please choose smaller blocks or a smaller sample size";

/// The group number of each position of a block, `numbers` holding the number of group g in slot g.
std::vector<std::int16_t> BlockOf(std::int16_t size, const std::vector<std::int16_t>& numbers) {
    std::vector<std::int16_t> IntArr;
    const auto groups = static_cast<std::int16_t>(numbers.size() - 1);
    for (const std::uint8_t group : DealGroups(static_cast<std::size_t>(size), groups))
        IntArr.push_back(numbers[group]);
    return IntArr;
}

/// Whether a block could pass if no two groups had the same name.
bool PassesWithOtherNames(std::int16_t size, const ListSettings& settings) {
    std::vector<std::int16_t> numbers(settings.GroupNames.size() + 1);
    std::iota(numbers.begin(), numbers.end(), std::int16_t{0});
    return CanPassRunsTest(BlockOf(size, numbers), settings.SigLevel);
}

/// Why a block of this size cannot pass the Runs test in any order; nothing when it can.
std::optional<std::string> BlockRefusal(std::int16_t size, const ListSettings& settings) {
    const std::vector<std::int16_t> IntArr = BlockOf(size, GroupNumbers(settings.GroupNames));
    if (CanPassRunsTest(IntArr, settings.SigLevel))
        return std::nullopt;
    const bool alike = std::count(IntArr.begin(), IntArr.end(), IntArr.front()) == size;
    if (alike && PassesWithOtherNames(size, settings))
        return "a block of " + std::to_string(size) +
               " subjects cannot pass the Runs test since all its groups have the same name, please give "
               "the groups different names";
    return CannotPassRunsTest(IntArr.size(), settings.SigLevel);
}

/// The refusal of the first block of the list that cannot pass.
std::optional<std::string> RunsTestRefusal(const ListSettings& settings,
                                           const std::vector<std::int16_t>& blockSizes) {
    std::set<std::int16_t> judged{0};
    for (const std::int16_t size : blockSizes)
        if (judged.insert(size).second)
            if (auto refusal = BlockRefusal(size, settings))
                return refusal;
    return std::nullopt;
}

} // namespace

std::optional<std::string> ListRefusal(const ListSettings& settings,
                                       const std::vector<std::int16_t>& blockSizes) {
    const std::int32_t subjects = std::accumulate(blockSizes.begin(), blockSizes.end(), std::int32_t{0});
    if (subjects > LargestList)
        return "the blocks hold more than " + std::to_string(LargestList) + " subjects" + ChooseSmaller;
    if (*std::max_element(blockSizes.begin(), blockSizes.end()) > LargestBlock)
        return "a block can hold at most " + std::to_string(LargestBlock) + " subjects" + ChooseSmaller;
    if (auto refusal = CodesRefusal(settings, subjects))
        return refusal;
    return settings.PerformRuns ? RunsTestRefusal(settings, blockSizes) : std::nullopt;
}

} // namespace orvane
