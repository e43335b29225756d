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

std::string CodesTooShort(std::int16_t length, std::int32_t subjects) {
    return "code length " + std::to_string(length) + " is too short for a list of " +
           std::to_string(subjects) + " subjects, please choose longer codes or a smaller sample size";
}

std::string CannotPass(std::int16_t size, float level) {
    return "a block of " + std::to_string(size) + " subjects cannot pass the Runs test at level " +
           SevenDigits(level) + ", please choose other blocks, a lower level or no Runs test";
}

/// For the Runs test a group is the first row of its name, so that groups of one name are one.
std::vector<std::int16_t> NumbersOfNames(const MSFlexGrid& groupNames, std::int16_t numberOfGroups) {
    std::vector<std::int16_t> numbers{0};
    for (std::int16_t g = 1; g <= numberOfGroups; ++g)
        numbers.push_back(GetIntName(groupNames, groupNames.TextMatrix(g, 1)));
    return numbers;
}

/// The first block of the list, if any, that no arrangement can bring through the Runs test.
std::optional<std::int16_t> HopelessBlock(const ListSettings& settings,
                                          const std::vector<std::int16_t>& blockSizes,
                                          const MSFlexGrid& groupNames) {
    const std::vector<std::int16_t> numbers = NumbersOfNames(groupNames, settings.NumberOfGroups);
    std::set<std::int16_t> judged;
    for (auto size = blockSizes.begin() + 1; size < blockSizes.end(); ++size) {
        if (!judged.insert(*size).second)
            continue;
        std::vector<std::int16_t> IntArr;
        for (const std::uint8_t group : DealGroups(static_cast<std::size_t>(*size), settings.NumberOfGroups))
            IntArr.push_back(numbers.at(group));
        if (!CanPassRunsTest(IntArr, settings.SigLevel))
            return *size;
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> ListRefusal(const ListSettings& settings,
                                       const std::vector<std::int16_t>& blockSizes,
                                       const MSFlexGrid& groupNames) {
    const std::int32_t subjects = std::accumulate(blockSizes.begin(), blockSizes.end(), std::int32_t{0});
    if (subjects > LargestList)
        return "the blocks hold more than 32767 subjects, please choose smaller blocks or a smaller sample "
               "size";
    if (std::any_of(blockSizes.begin(), blockSizes.end(),
                    [](std::int16_t size) { return size > LargestBlock; }))
        return "a block can hold at most 14654 subjects, please choose smaller blocks or a smaller sample "
               "size";
    if (subjects > CodesAvailable(settings.CodeAlphaNum, settings.CodeSeqRandom, settings.CodeLength))
        return CodesTooShort(settings.CodeLength, subjects);
    if (!settings.PerformRuns)
        return std::nullopt;
    const std::optional<std::int16_t> hopeless = HopelessBlock(settings, blockSizes, groupNames);
    return hopeless ? std::optional(CannotPass(*hopeless, settings.SigLevel)) : std::nullopt;
}

} // namespace orvane
