// Lists as the program wrote them, read back and judged.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace orvane::driving {

struct Subject {
    std::string Code;
    std::string Group;
};

using Block = std::vector<Subject>;

/// The blocks of a list with columns of 20 characters, as in text files, in the output window and on the
/// clipboard; in table order, that is row by row. Throws Fault at anything that is no list.
std::vector<Block> BlocksOfText(const std::string& text);
/// The same of a web page.
std::vector<Block> BlocksOfPage(const std::string& page);

struct ListDemands {
    std::vector<std::string> Groups;
    std::vector<std::size_t> Sizes; ///< that a block may have
    std::size_t Least = 0;          ///< subjects
    std::size_t CodeLength = 0;
    std::string Characters; ///< that a code is made of
};

/// Throws Fault unless every block has one of the sizes and each group equally often, every code is well
/// formed and unique, and the last block was needed to reach the least number of subjects.
void Judge(const std::vector<Block>& blocks, const ListDemands& demands);

} // namespace orvane::driving
