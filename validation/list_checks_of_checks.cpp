#include "validation/list_checks.h"
#include "validation/lists.h"
#include "validation/wrong_lists.h"

#include <algorithm>
#include <array>

namespace orvane::validation {

namespace {

/// The faults that one check finds in a list; empty if it does not apply or cannot judge.
Faults Said(const ListCheck& check, const MadeList& list) {
    if (!check.Applies(list.Setup) || (check.NeedsBlocks && !list.Readable()))
        return {};
    return check.Judge(list);
}

/// The identifiers of all checks that find a fault in a list.
std::vector<std::string> Finders(const MadeList& list) {
    std::vector<std::string> finders;
    for (const ListCheck& check : ListChecks())
        if (!Said(check, list).empty())
            finders.push_back(check.Identifier);
    return finders;
}

std::string Joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : ", ") + word;
    return text;
}

std::vector<MadeList> RightLists() {
    return {RightList(Form::TextFile),
            RightList(Form::WebPage),
            RightList(Form::Window),
            RightList(Form::Clipboard),
            RightRestList(),
            RightEvenList(BlockOption::Equal),
            RightEvenList(BlockOption::RandomSizes)};
}

void CheckRightLists(Evidence& evidence, const ListCheck& check) {
    int judged = 0;
    for (const MadeList& list : RightLists()) {
        judged += check.Applies(list.Setup) ? 1 : 0;
        for (const std::string& fault : Said(check, list))
            evidence.Demand(false, "a fault is found in a correct list: " + fault);
    }
    evidence.Demand(judged > 0, "there is no correct list for this check");
    evidence.Paragraph("Correct lists that pass the check: " + std::to_string(judged) + ".");
}

void CheckWrongLists(Evidence& evidence, const ListCheck& check) {
    static const std::vector<WrongList> all = WrongLists();
    std::vector<Row> rows;
    for (const WrongList& wrong : all) {
        if (wrong.Check != check.Identifier)
            continue;
        const Faults faults = Said(check, wrong.List);
        evidence.Demand(!faults.empty(), "not found: " + wrong.What);
        rows.push_back({wrong.What, Text(wrong.List.Setup.Output),
                        faults.empty() ? "NOT FOUND" : faults.front(), Joined(Finders(wrong.List))});
    }
    evidence.Demand(!rows.empty(), "there is no faulty list for this check");
    evidence.Table({"Deliberate fault", "Form", "Message of the check", "Found by"}, rows);
}

void CheckChangedBytes(Evidence& evidence, Form form) {
    std::size_t found = 0;
    std::size_t place = 0;
    const std::vector<MadeList> lists = ListsWithOneByteChanged(form);
    for (const MadeList& list : lists) {
        ++place;
        const bool isFound = !Finders(list).empty();
        found += isFound ? 1U : 0U;
        evidence.Demand(isFound, "a change of byte " + std::to_string(place) + " is not found");
    }
    evidence.Compare("lists with one byte changed, of a list of " + std::to_string(lists.size()) +
                         " bytes: found by any check",
                     std::to_string(lists.size()), std::to_string(found));
}

} // namespace

void CheckListChecks(Record& record, const Scale&) {
    constexpr std::array<std::pair<const char*, Form>, 4> forms = {{{"REP-1", Form::TextFile},
                                                                    {"REP-2", Form::WebPage},
                                                                    {"REP-3", Form::Window},
                                                                    {"REP-4", Form::Clipboard}}};
    for (const ListCheck& check : ListChecks())
        record.Run(check.Requirement + ".20", check.Requirement,
                   "Faulty lists are found by " + check.Identifier, Chapter::ChecksOfChecks,
                   [&](Evidence& evidence) {
                       CheckRightLists(evidence, check);
                       CheckWrongLists(evidence, check);
                       for (const auto& [requirement, form] : forms)
                           if (check.Requirement == requirement)
                               CheckChangedBytes(evidence, form);
                   });
}

} // namespace orvane::validation
