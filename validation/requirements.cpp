#include "validation/record.h"

namespace orvane::validation {

const std::vector<Requirement>& Requirements() {
    static const std::vector<Requirement> all = {
        {"ASG-1", "A block holds each group equally often if its size allows it."},
        {"ASG-2", "In a block of any other size the first groups have one subject more."},
        {"ASG-3", "Within a block every arrangement of the groups is equally likely."},
        {"ASG-4", "At every position of a block every group is equally likely."},
        {"ASG-5", "The number of runs in a block is distributed as in a random order."},
        {"ASG-6", "Every random choice has the documented distribution."},
        {"CON-1", "All choices are those of the documented cipher with the key of the operating system."},
        {"CON-2", "No list is made if the operating system gives no random data."},
        {"CON-3", "Lists do not depend on each other, and no start repeats another."},
        {"CON-4", "Only its owner can read the file of a list in the window; it is deleted afterwards."},
        {"CON-5", "For each block option it is known how often an investigator guesses right."},
        {"BLK-1", "One block has exactly the sample size."},
        {"BLK-2", "Equal blocks have the chosen size; one more than fit whole into the sample size."},
        {"BLK-3", "Blocks of listed sizes are added only until the sample size is reached."},
        {"BLK-4", "Blocks of random sizes are added only until the sample size is exceeded."},
        {"BLK-5", "The two ends of a range of block sizes are half as likely as each size between them."},
        {"RUN-2",
         "With the Runs test every block has a P value above the level; each such is equally likely."},
        {"RUN-4", "A message gives the smallest and the largest P value of the blocks."},
        {"COD-1", "No code occurs twice in a list."},
        {"COD-2", "Every code has the chosen length and the chosen characters."},
        {"COD-3", "Sequential codes number the subjects in the order of the list."},
        {"COD-4", "Each character of a random code has the documented probability."},
        {"REP-1", "The text file holds exactly the list, down the columns of each block."},
        {"REP-2", "The web page holds exactly the list, down the columns of each block."},
        {"REP-3", "The window shows exactly the list; so does the file that is saved from it."},
        {"REP-4", "The clipboard holds exactly the list, down the columns of each block."},
        {"REP-6", "A character that a file cannot hold is refused or written as a reference to it."},
        {"SET-2", "Settings that are saved and loaded again are the same to the byte."},
        {"SET-3", "Damaged settings are reported."},
        {"MSG-1", "Input that cannot be used is refused with a message and stays where it was typed."},
        {"USE-4", "Lists can be made with all pairs of choices, and open in the program for their type."},
        {"REC-1", "Deliberate faults are found by the check that is meant for them."},
    };
    return all;
}

} // namespace orvane::validation
