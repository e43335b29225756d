// Samples of what a program draws, with the exact shares that a right program gives.
#pragma once

#include "validation/statistics_program.h"
#include "validation/statistics_verdict.h"

#include <array>
#include <cstdint>
#include <vector>

namespace orvane::validation {

/// The upper 8 bits of each value, its lower 8 bits, and the upper 4 bits of two values that follow each
/// other, of `count` values. A value off the grid of the multiples of 2^-24 is impossible.
std::array<Sample, 3> BitsOfValues(DrawingProgram& program, int count);

/// `count` draws from Lo to Hi.
Sample Draws(DrawingProgram& program, std::int16_t Lo, std::int16_t Hi, int count);

/// All arrangements of a block, of `count` blocks. With a level above 0, all that pass the Runs test.
Sample Arrangements(DrawingProgram& program, int size, int groups, int count, float level = 0);

/// The group at each position of `count` blocks.
Sample GroupsByPosition(DrawingProgram& program, int size, int groups, int count);

/// The number of runs in each of `count` blocks of two groups. Numbers that are too rare to be judged each by
/// itself are counted together. Requires: an even size of 8 or more.
Sample RunsOfBlocks(DrawingProgram& program, int size, int count);

/// `count` block sizes of lists with these settings, which give `sizes`, the ends half as often as the
/// others.
Sample BlockSizesOf(DrawingProgram& program, const ListSettings& settings,
                    const std::vector<std::int16_t>& sizes, int count);

/// The characters at each place of codes of length 10, of `lists` lists of 500 codes each.
Sample CharactersOfCodes(DrawingProgram& program, std::int32_t alphabet, int lists);

/// How many subjects of a block of two groups have the group that the same subject has in the block made
/// right before, of `count` pairs of blocks.
Sample AgreementOfNeighbours(DrawingProgram& program, int size, int count);

/// Of `count` blocks the pairs that are equal.
std::int64_t EqualPairs(DrawingProgram& program, int size, int groups, int count);

/// How many pairs of `count` blocks chance makes equal: a pair is equal with a chance of 1 in the number of
/// arrangements of a block.
double ExpectedEqualPairs(int size, int groups, int count);

/// The number of arrangements of a block of `size` subjects in groups of equal size.
double NumberOfArrangements(int size, int groups);

/// How often a code stands a second time in its list, in `lists` lists of `count` codes of length `length`.
std::int64_t RepeatedCodes(DrawingProgram& program, std::int16_t length, std::int16_t count, int lists);

/// The runs of a block: a run is a stretch of one letter.
int CountOfRuns(const Arrangement& arrangement);

/// The P value that the Runs test gives to a block, computed anew; NaN where it has none.
double RunsDensity(const Arrangement& arrangement);

} // namespace orvane::validation
