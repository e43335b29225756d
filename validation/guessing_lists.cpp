#include "validation/guessing_lists.h"

#include "engine/sequence_builder.h"
#include "engine/subject_codes.h"
#include "options/option_validation.h"
#include "validation/memory_desktop.h"

#include <numeric>
#include <stdexcept>

namespace orvane::validation {
namespace {

std::string Joined(const std::vector<int>& sizes) {
    std::string text;
    for (const int size : sizes)
        text += (text.empty() ? "" : ",") + std::to_string(size);
    return text;
}

BlockPlan Equal(int groups, int size) {
    return {"equal blocks of " + std::to_string(size), groups, EqualSize, std::to_string(size), {{size, 1}}};
}

BlockPlan Listed(int groups, const std::vector<int>& sizes) {
    const std::string text = Joined(sizes);
    return {"sizes " + text, groups, RandomSizesOf, text, HalfAtTheEnds(sizes)};
}

/// The multipliers go from about a fifth to a third of the rounds of all groups in the sample.
BlockPlan OfRandomSize(int groups) {
    const int deals = 1 + GuessingSampleSize / groups;
    std::vector<int> sizes;
    for (int multiplier = deals / 5; multiplier <= deals / 3; ++multiplier)
        sizes.push_back(groups * multiplier);
    return {"random sizes, " + std::to_string(sizes.front()) + " to " + std::to_string(sizes.back()), groups,
            RandomBlockSize, "", HalfAtTheEnds(sizes)};
}

BlockPlan OneBlock(int groups) {
    return {"one block of " + std::to_string(GuessingSampleSize),
            groups,
            OnlyOneBlock,
            "",
            {{GuessingSampleSize, 1}}};
}

} // namespace

std::vector<BlockPlan> BlockPlans() {
    return {OneBlock(2), Equal(2, 4), Equal(2, 6), Equal(2, 12), Listed(2, {4, 6, 8}),  OfRandomSize(2),
            OneBlock(3), Equal(3, 3), Equal(3, 6), Equal(3, 12), Listed(3, {6, 9, 12}), OfRandomSize(3)};
}

std::vector<int> MakeAssignments(const BlockPlan& plan, UniformSource& random) {
    Texts names;
    for (int group = 0; group < plan.Groups; ++group)
        names.push_back(std::to_string(group));
    MemoryList list(random, names);
    list.Settings.SampleSize = GuessingSampleSize;
    list.Settings.Columns = 1; // then the cells are in list order
    list.Settings.prBlockOption = plan.Option;
    list.Settings.prEqBlockSize = list.Settings.prUnEqBlockSize = plan.Sizes;
    list.Settings.CodeAlphaNum = Numeric;
    list.Settings.CodeLength = 4;

    FilledInOptions controls;
    OptionValidation options(list.Settings, list.Results, list.Names, controls, list.Desktop.All);
    if (options.NotValidInputs())
        throw std::runtime_error("The program refused " + plan.Name + ": " + list.Desktop.Messages.Take());
    CreateCodeArr(list.Settings, list.Results, random, list.Desktop.Clock);

    std::vector<int> assignments;
    for (std::size_t block = 1; block < list.Results.BlockSizes.size(); ++block) {
        const auto size = static_cast<std::size_t>(list.Results.BlockSizes[block]);
        Texts groups(size);
        Texts codes(size);
        list.Builder.BuildSequenceArr(groups, codes, static_cast<std::int16_t>(assignments.size()));
        for (const std::string& group : groups)
            assignments.push_back(std::stoi(group));
    }
    return assignments;
}

} // namespace orvane::validation
