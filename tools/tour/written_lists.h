// Reads lists that the program wrote, and checks them.
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
/// clipboard. The order is that of the table, row by row. Throws Fault for a text that is not such a list.
std::vector<Block> BlocksOfText(const std::string& text);
/// The blocks of a list that is a web page. Throws Fault for a text that is not such a page.
std::vector<Block> BlocksOfPage(const std::string& page);

struct ListDemands {
    std::vector<std::string> Groups;
    std::vector<std::size_t> Sizes; ///< allowed sizes of a block
    std::size_t Least = 0;          ///< smallest number of subjects
    std::size_t CodeLength = 0;
    std::string Characters; ///< allowed characters of a code
};

/// Throws Fault unless every block has an allowed size and contains each group equally often, every code has
/// the right length and characters and is unique, and the list ends with the block that reaches the smallest
/// number of subjects.
void Judge(const std::vector<Block>& blocks, const ListDemands& demands);

} // namespace orvane::driving
