#include "validation/lists/checks.h"

#include "validation/lists/rules.h"

#include <algorithm>
#include <stdexcept>

namespace orvane::validation {

namespace {

using Lists = std::vector<MadeList>;

/// A fault that breaks one rule alone in at least one of the lists.
struct Fault {
    const char* What;
    const char* Rule;
    void (*Plant)(MadeList&);
};

/// The first code of a list.
std::string& First(MadeList& list) {
    return list.Blocks.front().front().Code;
}

std::string& Last(MadeList& list) {
    return list.Blocks.back().back().Code;
}

void GiveAnotherGroup(MadeList& list) {
    int& group = list.Blocks.front().front().Group;
    group = group % list.Setup.GroupCount() + 1;
}

void DropTheLastBlock(MadeList& list) {
    list.Blocks.pop_back();
}

void SortByGroup(MadeList& list) {
    for (auto& block : list.Blocks)
        std::ranges::stable_sort(block, {}, &Subject::Group);
}

void AddASpace(MadeList& list) {
    list.Bytes.insert(list.Bytes.find("\r\n"), " ");
    ReadBack(list);
}

constexpr Fault Faults[] = {
    {"a subject in another group", "ASG-1.1", GiveAnotherGroup},
    {"a subject in another group", "ASG-2.1", GiveAnotherGroup},
    {"a second block", "BLK-1.1",
     [](MadeList& list) {
         list.Blocks.push_back({{std::string(First(list).size(), 'Z'), 1}});
     }},
    {"the last block missing", "BLK-2.1", DropTheLastBlock},
    {"the last block missing", "BLK-3.1", DropTheLastBlock},
    {"the last block missing", "BLK-4.1", DropTheLastBlock},
    {"a code used twice", "COD-1.1", [](MadeList& list) { Last(list) = First(list); }},
    {"a wrong character in a code", "COD-2.1", [](MadeList& list) { First(list)[0] = '*'; }},
    {"two codes exchanged", "COD-3.1", [](MadeList& list) { std::swap(First(list), Last(list)); }},
    {"blocks in the order of their groups", "RUN-2.1", SortByGroup},
    {"a space too many", "REP-1.1", AddASpace},
    {"a space too many", "REP-2.1", AddASpace},
    {"a window that shows another list", "REP-3.1", [](MadeList& list) { list.Window->Text[0] = '*'; }},
    {"a space too many", "REP-4.1", AddASpace},
    {"a file that all can read", "CON-4.1", [](MadeList& list) { list.Window->HasOnePrivateFile = false; }},
};

/// The rules that a list breaks.
std::string Broken(const MadeList& list) {
    std::string broken;
    for (const Rule& rule : Rules())
        if (Breaks(list, rule))
            broken += (broken.empty() ? "" : ", ") + rule.Identifier;
    return broken;
}

void CheckFaults(Evidence& evidence, const Lists& lists) {
    std::vector<Row> rows;
    for (const Rule& rule : Rules())
        evidence.Demand(std::ranges::count(Faults, rule.Identifier, &Fault::Rule) != 0,
                        rule.Identifier + " has no fault");
    for (const Fault& fault : Faults) {
        const auto rule = std::ranges::find(Rules(), fault.Rule, &Rule::Identifier);
        const auto found = std::ranges::find_if(lists, [&](MadeList list) {
            if (!rule->Applies(list.Setup) || !Broken(list).empty())
                return false;
            fault.Plant(list);
            return Broken(list) == fault.Rule;
        });
        const std::string number = found == lists.end() ? "none" : std::to_string(found->Setup.Number);
        evidence.Demand(found != lists.end(), fault.What + (" is not found by " + std::string(fault.Rule)));
        rows.push_back({fault.What, fault.Rule, number});
    }
    evidence.Table({"Fault", "Rule that must find it, and no other", "Found in list"}, rows,
                   "Lists of the program with one fault each");
}

/// Changes each byte of the shortest numbered list of each form. In a list of random codes a rule cannot tell
/// a changed character from a right one.
void CheckChangedBytes(Evidence& evidence, const Lists& lists) {
    for (const Form form : {Form::TextFile, Form::WebPage, Form::Window, Form::Clipboard}) {
        const MadeList* shortest = nullptr;
        for (const MadeList& list : lists)
            if (list.Setup.Output == form && !list.Setup.RandomCodes &&
                (shortest == nullptr || list.Bytes.size() < shortest->Bytes.size()))
                shortest = &list;
        if (shortest == nullptr)
            throw std::runtime_error("there is no numbered list of each form");
        std::size_t found = 0;
        for (std::size_t at = 0; at < shortest->Bytes.size(); ++at) {
            MadeList changed = *shortest;
            changed.Bytes[at] = static_cast<char>(changed.Bytes[at] + 1);
            ReadBack(changed);
            found += Broken(changed).empty() ? 0U : 1U;
        }
        evidence.Compare("List " + std::to_string(shortest->Setup.Number) + ", " + Text(form) +
                             ": bytes changed, one at a time, and found",
                         std::to_string(shortest->Bytes.size()), std::to_string(found));
    }
}

} // namespace

void CheckRulesFindFaults(Record& record, const Lists& lists) {
    constexpr Chapter here = Chapter::PlantedFaults;
    record.Run("REC-1.1", "Every rule finds the faults that break it", here,
               [&](Evidence& evidence) { CheckFaults(evidence, lists); });
    record.Run("REC-1.2", "The rules find every changed byte", here,
               [&](Evidence& evidence) { CheckChangedBytes(evidence, lists); });
}

} // namespace orvane::validation
