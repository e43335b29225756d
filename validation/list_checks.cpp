#include "validation/list_checks.h"

#include "validation/list_judgements.h"

#include <map>

namespace orvane::validation {

namespace {

bool Always(const ListSetup&) {
    return true;
}

template <BlockOption Option>
bool Has(const ListSetup& setup) {
    return setup.Blocks == Option;
}

template <Form Output>
bool Is(const ListSetup& setup) {
    return setup.Output == Output;
}

bool IsFile(const ListSetup& setup) {
    return Is<Form::TextFile>(setup) || Is<Form::WebPage>(setup);
}

bool HasRest(const ListSetup& setup) {
    return setup.Blocks == BlockOption::One && setup.SampleSize % setup.GroupCount() != 0;
}

bool HasNoRest(const ListSetup& setup) {
    return !HasRest(setup);
}

bool HasNumbers(const ListSetup& setup) {
    return !setup.RandomCodes;
}

bool HasRunsTest(const ListSetup& setup) {
    return setup.RunsTest();
}

std::string CodesText(const MadeList& list) {
    const Subject& first = list.Blocks.front().front();
    const Subject& last = list.Blocks.back().back();
    std::size_t subjects = 0;
    for (const auto& block : list.Blocks)
        subjects += block.size();
    return std::to_string(subjects) + " codes, " + first.Code + " to " + last.Code;
}

std::string LengthText(const MadeList& list) {
    return std::to_string(list.Bytes.size()) + " bytes, " + std::to_string(list.Setup.Columns) + " columns";
}

std::string MessageText(const MadeList& list) {
    return list.RunsMessage;
}

std::string RightsText(const MadeList& list) {
    if (!list.Window)
        return "";
    std::string text;
    for (const std::string& rights : list.Window->TemporaryFiles)
        text += (text.empty() ? "" : ", ") + rights;
    return text + "; " + std::to_string(list.Window->LeftBehind.size()) + " left behind";
}

std::string ViewerText(const MadeList& list) {
    return list.Viewer.empty() ? "" : list.Viewer.front();
}

} // namespace

std::string BlocksText(const MadeList& list) {
    std::map<std::size_t, int> sizes;
    for (const auto& block : list.Blocks)
        ++sizes[block.size()];
    std::string text;
    for (const auto& [size, count] : sizes)
        text += (text.empty() ? "" : ", ") + std::to_string(count) + " of " + std::to_string(size);
    return text;
}

const std::vector<ListCheck>& ListChecks() {
    static const std::vector<ListCheck> checks = {
        {"ASG-1.10", "ASG-1", "Every group occurs equally often in the blocks of the lists", true, HasNoRest,
         EvenBlocks, BlocksText},
        {"ASG-2.10", "ASG-2", "Single blocks of another size have one subject more in the first groups", true,
         HasRest, FirstGroupsHaveOneMore, BlocksText},
        {"CON-4.10", "CON-4", "The temporary file of the window is private and is deleted", false,
         Is<Form::Window>, PrivateTemporaryFile, RightsText},
        {"BLK-1.10", "BLK-1", "Lists of one block", true, Has<BlockOption::One>, OneBlockOfTheSample,
         BlocksText},
        {"BLK-2.10", "BLK-2", "Lists of equal blocks", true, Has<BlockOption::Equal>, EqualBlocks,
         BlocksText},
        {"BLK-3.10", "BLK-3", "Lists with block sizes from a list of the user", true,
         Has<BlockOption::Listed>, BlocksOfListedSizes, BlocksText},
        {"BLK-4.10", "BLK-4", "Lists of random block sizes", true, Has<BlockOption::RandomSizes>,
         BlocksOfRandomSizes, BlocksText},
        {"BLK-7.10", "BLK-7", "Every block of a list is complete", true, Always, WholeBlocks, BlocksText},
        {"RUN-2.10", "RUN-2", "P values of all blocks, calculated independently", true, HasRunsTest,
         ValuesAboveTheLevel, ValuesText},
        {"RUN-4.10", "RUN-4", "The Runs test message shows the P values of the list", true, HasRunsTest,
         ToldValues, MessageText},
        {"COD-1.10", "COD-1", "Codes of a list are unique", true, Always, UniqueCodes, CodesText},
        {"COD-2.10", "COD-2", "Codes of a list have the chosen length and kind", true, Always,
         WellFormedCodes, CodesText},
        {"COD-3.10", "COD-3", "Sequential codes number the subjects", true, HasNumbers, NumberedCodes,
         CodesText},
        {"REP-1.10", "REP-1", "Every byte of the text files", false, Is<Form::TextFile>, Layout, LengthText},
        {"REP-2.10", "REP-2", "Every byte of the web pages", false, Is<Form::WebPage>, Layout, LengthText},
        {"REP-3.10", "REP-3", "Every byte of the window's saved files, and the window's text", false,
         Is<Form::Window>, WindowShowsTheList, LengthText},
        {"REP-4.10", "REP-4", "Every byte of the pasted lists", false, Is<Form::Clipboard>, Layout,
         LengthText},
        {"REP-5.10", "REP-5", "Blocks are filled down their columns", true, Always, DownColumns, LengthText},
        {"USE-2.10", "USE-2", "Finished files open in the associated program", false, IsFile, OpenedInViewer,
         ViewerText},
    };
    return checks;
}

} // namespace orvane::validation
