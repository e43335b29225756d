#include "options/list_refusal.h"

#include "engine/block_shuffle.h"
#include "engine/numbers.h"
#include "engine/runs_test.h"
#include "engine/subject_codes.h"

#include <algorithm>
#include <numeric>
#include <set>

namespace orvane {

namespace {

constexpr const char* ChooseSmaller = ", please choose smaller blocks or a smaller sample size";

std::string CodesTooShort(std::int16_t length, std::int32_t subjects) {
    return "code length " + std::to_string(length) + " is too short for a list of " +
           std::to_string(subjects) + " subjects, please choose longer codes or a smaller sample size";
}

std::string CannotPass(std::int16_t size, float level) {
    return "a block of " + std::to_string(size) + " subjects cannot pass the Runs test at level " +
           SevenDigits(level) + ", please choose other blocks, a lower level or no Runs test";
}

std::string NamesAlike(std::int16_t size) {
    return "a block of " + std::to_string(size) +
           " subjects cannot pass the Runs test since all its groups have the same name, please give the "
           "groups different names";
}

/// Why a block with these group numbers cannot pass the Runs test in any order; nothing when it can.
std::optional<std::string> BlockRefusal(const std::vector<std::int16_t>& IntArr, float level) {
    if (CanPassRunsTest(IntArr, level))
        return std::nullopt;
    const auto size = static_cast<std::int16_t>(IntArr.size());
    const bool alike = std::count(IntArr.begin(), IntArr.end(), IntArr.front()) == size;
    return size > 1 && alike ? NamesAlike(size) : CannotPass(size, level);
}

/// The message for the first block of the list that cannot pass the Runs test.
std::optional<std::string> RunsTestRefusal(const ListSettings& settings,
                                           const std::vector<std::int16_t>& blockSizes,
                                           const MSFlexGrid& groupNames) {
    const std::vector<std::int16_t> numbers = GroupNumbers(groupNames, settings.NumberOfGroups);
    std::set<std::int16_t> judged;
    for (auto size = blockSizes.begin() + 1; size < blockSizes.end(); ++size) {
        if (!judged.insert(*size).second)
            continue;
        std::vector<std::int16_t> IntArr;
        for (const std::uint8_t group : DealGroups(static_cast<std::size_t>(*size), settings.NumberOfGroups))
            IntArr.push_back(numbers.at(group));
        if (auto refusal = BlockRefusal(IntArr, settings.SigLevel))
            return refusal;
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> ListRefusal(const ListSettings& settings,
                                       const std::vector<std::int16_t>& blockSizes,
                                       const MSFlexGrid& groupNames) {
    const std::int32_t subjects = std::accumulate(blockSizes.begin(), blockSizes.end(), std::int32_t{0});
    if (subjects > LargestList)
        return "the blocks hold more than " + std::to_string(LargestList) + " subjects" + ChooseSmaller;
    if (std::any_of(blockSizes.begin(), blockSizes.end(),
                    [](std::int16_t size) { return size > LargestBlock; }))
        return "a block can hold at most " + std::to_string(LargestBlock) + " subjects" + ChooseSmaller;
    if (subjects > CodesAvailable(settings.CodeAlphaNum, settings.CodeSeqRandom, settings.CodeLength))
        return CodesTooShort(settings.CodeLength, subjects);
    if (settings.PerformRuns)
        return RunsTestRefusal(settings, blockSizes, groupNames);
    return std::nullopt;
}

} // namespace orvane
