// Lists that are wrong on purpose, to show that the checks of lists find what is wrong.
#pragma once

#include "validation/made_list.h"

#include <string>
#include <vector>

namespace orvane::validation {

/// A small list without any fault: blocks of 6 and 4 in three columns, made with the Runs test.
MadeList RightList(Form form);

/// A list without any fault: one block of three subjects, so that the first group has one more.
MadeList RightRestList();

/// A list without any fault: three blocks of four subjects, under equal blocks of 4 or under random sizes.
MadeList RightEvenList(BlockOption option);

struct WrongList {
    std::string What;  ///< is wrong
    std::string Check; ///< identifier of the check that must find it
    MadeList List;
};

std::vector<WrongList> WrongLists();

/// A right list with each of its bytes changed in turn, every time to the byte that follows it in the code.
std::vector<MadeList> ListsWithOneByteChanged(Form form);

} // namespace orvane::validation
