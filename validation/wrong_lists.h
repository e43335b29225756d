// Lists with deliberate faults, to show that the checks of lists find them.
#pragma once

#include "validation/made_list.h"

#include <string>
#include <vector>

namespace orvane::validation {

/// A small correct list: blocks of 6 and 4 in three columns, made with the Runs test.
MadeList RightList(Form form);

/// A correct list of one block of three subjects, in which the first group has one subject more.
MadeList RightRestList();

/// A list without any fault: three blocks of four subjects, under equal blocks of 4 or under random sizes.
MadeList RightEvenList(BlockOption option);

struct WrongList {
    std::string What;  ///< the fault
    std::string Check; ///< identifier of the check that must find it
    MadeList List;
};

std::vector<WrongList> WrongLists();

/// Copies of a correct list. In each of them another byte is increased by one.
std::vector<MadeList> ListsWithOneByteChanged(Form form);

} // namespace orvane::validation
