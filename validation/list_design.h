// The design of the lists: each possible pair of choices of the user occurs together in some list.
#pragma once

#include "validation/list_setup.h"

#include <cstddef>
#include <string>
#include <vector>

namespace orvane::validation {

/// A setting of the user, and the choices for it that the design uses.
struct Factor {
    std::string Name;
    std::vector<std::string> Levels;
};

/// The level of each factor, numbered from 0.
using Combination = std::vector<std::size_t>;

const std::vector<Factor>& Factors();

/// False for choices that the program refuses in combination: names that are too wide for the clipboard's
/// columns.
bool Possible(const Combination& combination);

struct Coverage {
    std::size_t Levels = 0;
    std::size_t CoveredLevels = 0;
    std::size_t Pairs = 0; ///< of levels of two factors that are possible together
    std::size_t CoveredPairs = 0;
    std::vector<std::string> Missing; ///< the pairs that are not covered
};

/// Counts what the lists cover, independently of the search that made them.
Coverage CoverageOf(const std::vector<Combination>& lists);

/// Adds lists, each with as many new pairs as a search finds, until every possible pair is covered or there
/// are `most` lists. Every call gives the same result.
std::vector<Combination> BuildDesign(std::size_t most);

/// The set-ups of the lists of a design, numbered from 1.
std::vector<ListSetup> Setups(const std::vector<Combination>& lists);

} // namespace orvane::validation
