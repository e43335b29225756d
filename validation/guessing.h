// How often an investigator guesses the next assignment who always names the group that is behind: the
// convergence strategy of Blackwell and Hodges (1957). The investigator sees every assignment so far, counts
// the groups over the whole list, knows nothing of block ends, and names any of them where several are
// equally far behind.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvane::validation {

/// What is expected of one block.
struct Guessable {
    double Right = 0; ///< guesses of the convergence strategy that are right
    double Certain =
        0; ///< last assignments that follow from those before, for one who knows where the block ends
};

/// Exact for blocks of `size` subjects of which every arrangement is equally likely, dealt out to `groups`
/// groups, the first ones getting one subject more where the size is no multiple.
/// Requires: size at least 1, groups 1 to 16, and few enough arrangements of counts for memory: sizes up to
/// some hundred with two or three groups, up to 40 with four.
Guessable ExpectedOfBlock(int size, int groups);

/// The same number of right guesses for two groups and an even size, by the formula of Blackwell and Hodges.
double RightByFormula(int size);

/// A block size and its chance.
struct SizeChance {
    int Size = 0;
    double Chance = 0;
};

/// The sizes from a list of two or more, of which the first and the last come up half as often as the others;
/// one size comes up always.
std::vector<SizeChance> HalfAtTheEnds(const std::vector<int>& sizes);

/// The expected share of the subjects of a list whose blocks have these sizes. It does not depend on the rule
/// that ends the list, as long as that rule looks at the blocks made so far alone (Wald's identity).
Guessable ExpectedShare(const std::vector<SizeChance>& sizes, int groups);

/// Plays the strategy against `assignments`, groups from 0, and counts right guesses. A guess among several
/// groups that are equally far behind counts as the share of it that is right on average.
double PlayAgainst(const std::vector<int>& assignments, int groups);

} // namespace orvane::validation
