#include "validation/requirements.h"

namespace orvane::validation {
namespace {

RequirementGroup Assignment() {
    return {
        "Assignment",
        "A fault biases the comparison of the treatments, and nobody sees it in the list.",
        {
            {"ASG-1",
             "A block whose size is a multiple of the number of groups holds every group equally often."},
            {"ASG-2",
             "In one block of another size the first groups have one subject more than the others, and "
             "no two groups differ by more than one."},
            {"ASG-3", "Within a block every arrangement of the groups is equally likely."},
            {"ASG-4", "At every position of a block every group is equally likely."},
            {"ASG-5", "The number of runs in a block follows the distribution that random order gives it."},
            {"ASG-6",
             "Every random choice follows the documented distribution, in which the two ends of a range "
             "come up half as often as each value between them."},
            {"ASG-7",
             "The group that the list gives to a subject is the group that was drawn for this place in "
             "the list."},
        }};
}

RequirementGroup Concealment() {
    return {
        "Concealment",
        "A fault lets an investigator know or guess the next assignment and select subjects by it.",
        {
            {"CON-1",
             "All random choices come from a published cipher whose key is taken from the randomness of "
             "the operating system."},
            {"CON-2", "Without randomness from the operating system no list is made."},
            {"CON-3", "Lists that are made right one after the other have nothing in common but what chance "
                      "gives."},
            {"CON-4", "A list that is shown in the window can be read by its owner alone and leaves no file "
                      "behind."},
            {"CON-5",
             "For each block option the user can know how often an investigator guesses right who always "
             "names the group that is behind."},
            {"CON-6",
             "Mixing the time of day into the random source makes no later choice easier to predict."},
        }};
}

RequirementGroup Blocks() {
    return {"Blocks",
            "A fault gives a list that is shorter than the trial, out of balance, or not the one in the "
            "protocol.",
            {
                {"BLK-1", "The option of one block gives one block of exactly the sample size."},
                {"BLK-2",
                 "The option of equal blocks of size B gives one block more than the sample size holds whole "
                 "times B, each of size B."},
                {"BLK-3",
                 "Blocks of the sizes that the user lists are added until the sample size is reached, and no "
                 "longer."},
                {"BLK-4", "Blocks of random size are added until the sample size is passed, and no longer."},
                {"BLK-5",
                 "Each block size is drawn from the user's list, its first and its last entry half as often "
                 "as each entry between them."},
                {"BLK-6",
                 "Random block sizes are the multiples of the number of groups from about a fifth to a third "
                 "of the sample size, the smallest and the largest half as often as each between them."},
                {"BLK-7", "Every block of a list is whole."},
                {"BLK-8",
                 "Block sizes that cannot be used are refused before anything is written, with a message "
                 "that says what to change."},
            }};
}

RequirementGroup RunsTest() {
    return {
        "Runs test",
        "A fault lets a block through that the protocol excludes, or reports a P value that is not its own.",
        {
            {"RUN-1", "The P value of a sequence equals the one that is published for it."},
            {"RUN-2", "In a list made with the Runs test every block has a P value above the chosen level."},
            {"RUN-3", "A block that no order of its subjects can bring through the Runs test is refused."},
            {"RUN-4",
             "After a list with the Runs test the smallest and the largest P value of its blocks are "
             "told."},
        }};
}

RequirementGroup Codes() {
    return {"Subject codes",
            "A fault makes two subjects look like one, or a code that other systems do not take.",
            {
                {"COD-1", "No code stands twice in a list."},
                {"COD-2", "Every code has the chosen length and holds only characters of the chosen kind."},
                {"COD-3", "Sequential codes number the subjects in the order of the list."},
                {"COD-4", "At each place of a random code the characters are as likely as documented."},
                {"COD-5", "A code length that is too short for the list is refused."},
            }};
}

RequirementGroup Reports() {
    return {
        "Reports",
        "A fault changes the list on its way from the draw to the reader.",
        {
            {"REP-1", "The text file holds exactly the list, byte for byte."},
            {"REP-2", "The web page holds exactly the list, byte for byte."},
            {"REP-3", "The window shows exactly the list, and its saved file holds it byte for byte."},
            {"REP-4", "The clipboard holds exactly the list, byte for byte."},
            {"REP-5", "The subjects of a block stand in list order down its columns."},
            {"REP-6", "A character that a file cannot hold is refused or written in full, never replaced in "
                      "silence."},
        }};
}

RequirementGroup Settings() {
    return {"Settings",
            "A fault makes the next list with another set-up than the one that was kept.",
            {
                {"SET-1", "A settings file has exactly the documented lines."},
                {"SET-2", "Settings that were saved give the same set-up when they are loaded."},
                {"SET-3", "Settings out of range are refused or brought into range, never used as they are."},
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
                {"USE-2", "A finished list opens in the program that the desktop has for its type."},
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
