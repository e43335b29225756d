// Which lists are made: a design in which each two choices of the user meet in some list.
#pragma once

#include "validation/list_setup.h"

#include <cstddef>
#include <string>
#include <vector>

namespace orvane::validation {

/// One thing that the user chooses, and the choices that the design tries.
struct Factor {
    std::string Name;
    std::vector<std::string> Levels;
};

/// For each factor the number of its level, from 0.
using Combination = std::vector<std::size_t>;

const std::vector<Factor>& Factors();

/// False for choices that the program refuses together: names that are too wide for the clipboard's columns.
bool Possible(const Combination& combination);

struct Coverage {
    std::size_t Levels = 0;
    std::size_t CoveredLevels = 0;
    std::size_t Pairs = 0; ///< of levels of two factors that are possible together
    std::size_t CoveredPairs = 0;
    std::vector<std::string> Missing; ///< the pairs that are not covered
};

/// Counts anew, from the lists alone, what they cover.
Coverage CoverageOf(const std::vector<Combination>& lists);

/// Adds list after list, each with as many new pairs as a search finds, until every possible pair is covered
/// or there are `most` lists. The same at every call.
std::vector<Combination> BuildDesign(std::size_t most);

/// The lists of a design as the user sets them up, numbered from 1.
std::vector<ListSetup> Setups(const std::vector<Combination>& lists);

} // namespace orvane::validation
