// How often an investigator guesses the next assignment correctly with the convergence strategy of Blackwell
// and Hodges (1957): always guess the group with the fewest assignments so far. The investigator sees every
// earlier assignment, counts over the whole list, does not know where blocks end, and guesses any of the
// groups that have the fewest.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvane::validation {

/// Expected numbers for one block.
struct Guessable {
    double Right = 0;   ///< right guesses of the convergence strategy
    double Certain = 0; ///< last assignments that follow from the earlier ones, if the block end is known
};

/// The exact expectation for a block of `size` subjects in `groups` groups, every arrangement being equally
/// likely. If the size is not a multiple of the number of groups, the first groups have one subject more.
/// Requires: size at least 1, groups 1 to 16, and sizes small enough for the memory needed: up to a few
/// hundred with two or three groups, up to 40 with four.
Guessable ExpectedOfBlock(int size, int groups);

/// The same number of right guesses for two groups and an even size, by the formula of Blackwell and Hodges.
double RightByFormula(int size);

/// A block size and its probability.
struct SizeChance {
    int Size = 0;
    double Chance = 0;
};

/// The sizes of a list. The first and the last have half the probability of each other one; a single size has
/// probability 1.
std::vector<SizeChance> HalfAtTheEnds(const std::vector<int>& sizes);

/// The expected numbers per subject of a list whose blocks have these sizes. They do not depend on the rule
/// that ends the list, provided that the rule uses only the blocks made so far (Wald's identity).
Guessable ExpectedShare(const std::vector<SizeChance>& sizes, int groups);

/// The number of right guesses of the strategy in `assignments`, groups numbered from 0. A guess among
/// several groups with the fewest assignments counts as the probability that it is right.
double PlayAgainst(const std::vector<int>& assignments, int groups);

} // namespace orvane::validation
