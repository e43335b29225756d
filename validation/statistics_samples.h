// Samples of the draws of a program, with the exact probabilities of a correct program.
#pragma once

#include "validation/statistics_program.h"
#include "validation/statistics_verdict.h"

#include <array>
#include <cstdint>
#include <vector>

namespace orvane::validation {

/// Three samples of `count` values: the upper 8 bits of each value, its lower 8 bits, and the upper 4 bits of
/// two successive values. A value that is not a multiple of 2^-24 is impossible.
std::array<Sample, 3> BitsOfValues(DrawingProgram& program, int count);

/// `count` draws from Lo to Hi.
Sample Draws(DrawingProgram& program, std::int16_t Lo, std::int16_t Hi, int count);

/// The arrangements of `count` blocks. With a level above 0, blocks that pass the Runs test.
Sample Arrangements(DrawingProgram& program, int size, int groups, int count, float level = 0);

/// The group at each position of `count` blocks.
Sample GroupsByPosition(DrawingProgram& program, int size, int groups, int count);

/// The number of runs in each of `count` blocks of two groups. Rare numbers are counted together.
/// Requires: an even size of 8 or more.
Sample RunsOfBlocks(DrawingProgram& program, int size, int count);

/// `count` block sizes of lists with these settings. The possible sizes are `sizes`; the first and the last
/// are half as likely as the others.
Sample BlockSizesOf(DrawingProgram& program, const ListSettings& settings,
                    const std::vector<std::int16_t>& sizes, int count);

/// The characters at each position of codes of length 10, in `lists` lists of 500 codes each.
Sample CharactersOfCodes(DrawingProgram& program, std::int32_t alphabet, int lists);

/// For `count` pairs of successive blocks of two groups, the number of positions with the same group in both
/// blocks.
Sample AgreementOfNeighbours(DrawingProgram& program, int size, int count);

/// The number of equal pairs among `count` blocks.
std::int64_t EqualPairs(DrawingProgram& program, int size, int groups, int count);

/// The expected number of equal pairs among `count` blocks. The probability of a pair is 1 divided by the
/// number of arrangements of a block.
double ExpectedEqualPairs(int size, int groups, int count);

/// The number of arrangements of a block of `size` subjects in groups of equal size.
double NumberOfArrangements(int size, int groups);

/// How often a code occurs again in its list, in `lists` lists of `count` codes of length `length`.
std::int64_t RepeatedCodes(DrawingProgram& program, std::int16_t length, std::int16_t count, int lists);

/// The number of runs of a block. A run is a maximal sequence of one letter.
int CountOfRuns(const Arrangement& arrangement);

/// The P value of the Runs test of a block, calculated independently of the program; NaN if it has none.
double RunsDensity(const Arrangement& arrangement);

} // namespace orvane::validation
