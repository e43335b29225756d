#include "validation/requirements.h"

namespace orvane::validation {
namespace {

RequirementGroup Assignment() {
    return {
        "Assignment",
        "A fault biases the comparison of the treatments and cannot be seen in the list.",
        {
            {"ASG-1",
             "A block whose size is a multiple of the number of groups contains every group equally often."},
            {"ASG-2", "In a single block of any other size, the first groups have one subject more than the "
                      "other groups, and no two groups differ by more than one subject."},
            {"ASG-3", "Within a block every arrangement of the groups is equally likely."},
            {"ASG-4", "At every position of a block every group is equally likely."},
            {"ASG-5",
             "The number of runs in a block has the distribution of the number of runs in a random order."},
            {"ASG-6", "Every random choice has the documented distribution, in which the two ends of a range "
                      "are half as likely as each value between them."},
            {"ASG-7", "The group that the list assigns to a subject is the group that was drawn for this "
                      "position in the list."},
        }};
}

RequirementGroup Concealment() {
    return {
        "Concealment",
        "A fault lets an investigator know or guess the next assignment, and select subjects accordingly.",
        {
            {"CON-1", "All random choices are made with a published cipher whose key comes from the random "
                      "generator of the operating system."},
            {"CON-2", "No list is made if the operating system cannot supply random data."},
            {"CON-3", "Lists that are made directly one after the other are independent of each other."},
            {"CON-4", "Only its owner can read the file of a list that is shown in the window, and the file "
                      "is deleted afterwards."},
            {"CON-5", "For each block option it is known how often an investigator guesses correctly by "
                      "always naming the group with the fewest subjects so far."},
            {"CON-6",
             "Mixing the time of day into the random source makes no later choice easier to predict."},
        }};
}

RequirementGroup Blocks() {
    return {
        "Blocks",
        "A fault gives a list that is too short for the trial, unbalanced, or not the one in the protocol.",
        {
            {"BLK-1", "The option of one block gives one block of exactly the sample size."},
            {"BLK-2", "The option of equal blocks of size B gives blocks of size B only. Their number is the "
                      "sample size divided by B, rounded down, plus one."},
            {"BLK-3",
             "With block sizes from a list, blocks are added only until the sample size is reached."},
            {"BLK-4", "With random block sizes, blocks are added only until the sample size is exceeded."},
            {"BLK-5", "Each block size is drawn from the user's list; the first and the last entry are half "
                      "as likely as each entry between them."},
            {"BLK-6", "Random block sizes are multiples of the number of groups, from about a fifth to about "
                      "a third of the sample size; the smallest and the largest are half as likely as each "
                      "size between them."},
            {"BLK-7", "Every block of a list is complete."},
            {"BLK-8",
             "Block sizes that cannot be used are refused before anything is written, with a message "
             "that says what to change."},
        }};
}

RequirementGroup RunsTest() {
    return {
        "Runs test",
        "A fault accepts a block that the protocol excludes, or reports a wrong P value.",
        {
            {"RUN-1", "The P value of a sequence is equal to the published one."},
            {"RUN-2", "In a list made with the Runs test every block has a P value above the chosen level."},
            {"RUN-3", "A block that cannot pass the Runs test in any order is refused."},
            {"RUN-4", "After a list with the Runs test, a message gives the smallest and the largest P value "
                      "of its blocks."},
        }};
}

RequirementGroup Codes() {
    return {
        "Subject codes",
        "A fault gives two subjects the same code, or makes a code that other systems do not accept.",
        {
            {"COD-1", "No code occurs twice in a list."},
            {"COD-2", "Every code has the chosen length and contains only characters of the chosen kind."},
            {"COD-3", "Sequential codes number the subjects in the order of the list."},
            {"COD-4", "At each position of a random code, each character has the documented probability."},
            {"COD-5", "A code length that is too short for the list is refused."},
        }};
}

RequirementGroup Reports() {
    return {
        "Reports",
        "A fault gives the reader a list that differs from the one that was drawn.",
        {
            {"REP-1", "The text file contains exactly the list, byte for byte."},
            {"REP-2", "The web page contains exactly the list, byte for byte."},
            {"REP-3", "The window shows exactly the list, and the file saved from it contains the list byte "
                      "for byte."},
            {"REP-4", "The clipboard contains exactly the list, byte for byte."},
            {"REP-5", "The subjects of a block are printed in list order, down one column after the other."},
            {"REP-6", "A character that a file cannot hold is refused or written as a character reference. "
                      "It is never replaced without a message."},
        }};
}

RequirementGroup Settings() {
    return {"Settings",
            "A fault makes the next list with settings that differ from the saved ones.",
            {
                {"SET-1", "A settings file has exactly the documented lines."},
                {"SET-2", "Settings that are saved and loaded again give the same set-up."},
                {"SET-3", "Settings out of range are refused or replaced by the nearest value in range; they "
                          "are never used as they are."},
            }};
}

RequirementGroup Convenience() {
    return {"Use",
            "A fault costs time and is noticed at once.",
            {
                {"MSG-1",
                 "Input that is missing or cannot be used is refused with a message, and nothing that was "
                 "typed is lost."},
                {"USE-1", "Every command can be given by the keyboard alone."},
                {"USE-2", "A finished list opens in the program that the desktop uses for its file type."},
                {"USE-3", "This record can be printed and filed."},
            }};
}

} // namespace

const std::vector<RequirementGroup>& AllRequirements() {
    static const std::vector<RequirementGroup> all = {Assignment(), Concealment(), Blocks(),   RunsTest(),
                                                      Codes(),      Reports(),     Settings(), Convenience()};
    return all;
}

} // namespace orvane::validation
