// Lists made by the program for the guessing strategy.
#pragma once

#include "platform/uniform_source.h"
#include "validation/guessing.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane::validation {

/// One way to set up the blocks of a list.
struct BlockPlan {
    std::string Name; ///< for the record, after the options window
    int Groups = 2;
    std::int32_t Option = 0; ///< of BlockOptions
    std::string Sizes;       ///< text of the field of the option
    std::vector<SizeChance> Chances;
};

/// Sample size of every list.
inline constexpr int GuessingSampleSize = 96;

/// The plans for two groups, then those for three.
std::vector<BlockPlan> BlockPlans();

/// The groups, from 0, of a list that the program's options and its sequence builder make. Throws
/// std::runtime_error with the program's message when it refuses the plan.
std::vector<int> MakeAssignments(const BlockPlan& plan, UniformSource& random);

} // namespace orvane::validation
