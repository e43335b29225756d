#include "validation/lists.h"

#include "validation/list_checks.h"
#include "validation/list_design.h"
#include "validation/list_maker.h"
#include "validation/window_checks.h"

#include <cstdlib>
#include <iostream>
#include <memory>

namespace orvane::validation {

namespace {

constexpr const char* ListFolder = "lists";
constexpr std::size_t MostLists = 100; // the full design has fewer
constexpr std::size_t QuickLists = 8;

std::string Number(std::size_t number) {
    return std::to_string(number);
}

/// Checks what the design covers, counted independently from its lists.
void CheckDesign(Evidence& evidence, const Scale& scale, const std::vector<Combination>& design) {
    const Coverage coverage = CoverageOf(design);
    evidence.Compare("choices that occur in a list", Number(coverage.Levels), Number(coverage.CoveredLevels));
    if (scale.Quick)
        evidence.Paragraph("A quick validation covers " + Number(coverage.CoveredPairs) + " of " +
                           Number(coverage.Pairs) + " pairs of choices; a full validation covers all.");
    else
        evidence.Compare("pairs of choices that occur together in a list", Number(coverage.Pairs),
                         Number(coverage.CoveredPairs));
    for (const std::string& pair : coverage.Missing)
        evidence.Demand(scale.Quick, "no list has " + pair);
    std::vector<Row> rows;
    for (const Factor& factor : Factors()) {
        std::string levels;
        for (const std::string& level : factor.Levels)
            levels += (levels.empty() ? "" : "; ") + level;
        rows.push_back({factor.Name, levels});
    }
    evidence.Table({"What the user chooses", "Choices of the design"}, rows);
    evidence.Paragraph("Two combinations of choices are not possible, because the program refuses cells that "
                       "are wider than a column of the clipboard: clipboard with names wider than a column, "
                       "and clipboard in 10 columns with codes of 10 characters.");
}

Row SetupRow(const ListSetup& setup) {
    std::string blocks = Text(setup.Blocks);
    if (setup.Blocks == BlockOption::Equal)
        blocks += " of " + std::to_string(setup.EqualSize);
    if (setup.Blocks == BlockOption::Listed)
        blocks += " " + setup.ListedSizesText;
    std::string form = Text(setup.Output) + ", " + std::to_string(setup.Columns) +
                       (setup.Columns == 1 ? " column" : " columns");
    if (setup.Output == Form::WebPage)
        form += std::string(setup.Border ? ", border" : ", no border") + ", spacing " +
                std::to_string(setup.Spacing);
    return {std::to_string(setup.Number),
            Text(setup.Input),
            blocks,
            std::to_string(setup.SampleSize) + " in " + std::to_string(setup.GroupCount()),
            CodeText(setup),
            form,
            setup.RunsTest() ? setup.Level : "off"};
}

Row ResultRow(const MadeList& list) {
    Row row = SetupRow(list.Setup);
    row.push_back(list.Readable() ? BlocksText(list) : list.NotMade.empty() ? "not readable" : "NOT MADE");
    return row;
}

/// Makes all lists. A list that is not made fails this check and each later check that applies to it. `lists`
/// holds the lists made so far, also after an exception.
void MakeLists(Evidence& evidence, ListMaker& maker, const std::vector<ListSetup>& setups,
               std::vector<MadeList>& lists) {
    constexpr int mostInARow = 3; // every list that fails takes minutes
    int failures = 0;
    for (const ListSetup& setup : setups) {
        MadeList list;
        if (failures < mostInARow)
            list = maker.Make(setup);
        else
            list.NotMade = "not tried after " + std::to_string(mostInARow) + " failures in a row";
        list.Setup = setup;
        failures = list.NotMade.empty() ? 0 : failures + 1;
        evidence.Demand(list.NotMade.empty(),
                        "list " + std::to_string(setup.Number) + " was not made: " + list.NotMade);
        lists.push_back(std::move(list));
        std::cout << '.' << std::flush; // this check takes longest
    }
    std::vector<Row> rows;
    rows.reserve(lists.size());
    for (const MadeList& list : lists)
        rows.push_back(ResultRow(list));
    evidence.Table(
        {"List", "Set-up", "Blocks", "Sample size in groups", "Codes", "Form", "Runs test", "Blocks found"},
        rows, "The lists and the blocks read back from them");
    evidence.Paragraph(
        "Set-up: typed = with the keyboard only; clicked = with the mouse in the options window; "
        "loaded = from a settings file, the rest with the keyboard. The lists are kept in the folder \"" +
        std::string(ListFolder) + "\", list 1 as list-01, web pages as .htm, others as .txt.");
}

/// Runs one check over all lists to which it applies.
void Judge(Evidence& evidence, const ListCheck& check, const std::vector<MadeList>& lists) {
    std::vector<Row> rows;
    for (const MadeList& list : lists) {
        if (!check.Applies(list.Setup))
            continue;
        const std::string name = "list " + std::to_string(list.Setup.Number);
        Faults faults;
        if (!list.NotMade.empty())
            faults = {"was not made"};
        else if (check.NeedsBlocks && !list.Readable())
            faults = {"could not be read"};
        else
            faults = check.Judge(list);
        evidence.Demand(faults.empty(), name + ": " + (faults.empty() ? "" : faults.front()) +
                                            (faults.size() > 1 ? ", and more" : ""));
        const bool canTell = list.NotMade.empty() && (!check.NeedsBlocks || list.Readable());
        rows.push_back({std::to_string(list.Setup.Number), canTell ? check.Found(list) : "",
                        faults.empty() ? "right" : "WRONG"});
    }
    if (rows.empty())
        throw CannotRun("This check applies to none of these lists.");
    evidence.Table({"List", "Found", "Result"}, rows);
}

std::vector<ListSetup> LoadedSetups(const std::vector<ListSetup>& setups, std::size_t most) {
    std::vector<ListSetup> loaded;
    for (const ListSetup& setup : setups)
        if (setup.Input == Way::Loaded && loaded.size() < most)
            loaded.push_back(setup);
    return loaded;
}

} // namespace

void CheckLists(Record& record, const Scale& scale, const ListWorkplace& place) {
    const std::vector<Combination> design = BuildDesign(scale.Quick ? QuickLists : MostLists);
    const std::vector<ListSetup> setups = Setups(design);
    record.Run("ASG-1.11", "ASG-1", "The design of the lists", Chapter::Lists,
               [&](Evidence& evidence) { CheckDesign(evidence, scale, design); });

    std::unique_ptr<ListMaker> maker;
    std::vector<MadeList> lists;
    const auto ready = [&]() -> ListMaker& {
        if (!maker)
            throw CannotRun("The program could not be started on a display.");
        return *maker;
    };
    record.Run("USE-1.10", "USE-1", "Lists made through the windows", Chapter::Lists,
               [&](Evidence& evidence) {
                   if (std::getenv("ORVANE_DISPLAY_FOLDER") == nullptr)
                       throw CannotRun("There is no separate display for the program.");
                   maker = std::make_unique<ListMaker>(place.Program, place.Evidence / ListFolder);
                   MakeLists(evidence, *maker, setups, lists);
               });
    for (const ListCheck& check : ListChecks())
        record.Run(check.Identifier, check.Requirement, check.Title, Chapter::Lists, [&](Evidence& evidence) {
            if (lists.size() < setups.size())
                throw CannotRun("No lists were made.");
            Judge(evidence, check, lists);
        });
    record.Run("SET-2.10", "SET-2", "Settings saved and loaded through the windows", Chapter::Lists,
               [&](Evidence& evidence) {
                   CheckSettingsFiles(evidence, ready(),
                                      LoadedSetups(setups, static_cast<std::size_t>(scale.Of(4, 1))));
               });
    record.Run("MSG-1.10", "MSG-1", "Refusals in the windows", Chapter::Lists,
               [&](Evidence& evidence) { CheckRefusals(evidence, ready()); });
    record.Run("USE-1.11", "USE-1", "Commands by keyboard only", Chapter::Lists,
               [&](Evidence& evidence) { CheckCommandsByKeys(evidence, ready()); });
}

} // namespace orvane::validation
