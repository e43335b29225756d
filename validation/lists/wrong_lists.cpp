#include "validation/lists/list.h"

#include <algorithm>
#include <stdexcept>

namespace orvane::validation {
namespace {

using Lists = std::vector<MadeList>;

/// A fault that breaks one rule alone in at least one of the lists.
struct WrongList {
    const char* What;
    const char* Rule;
    void (*Plant)(MadeList&);
};

std::string& FirstCode(MadeList& list) {
    return list.Blocks.front().front().Code;
}

std::string& LastCode(MadeList& list) {
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

constexpr WrongList Faults[] = {
    {"a subject in another group", "ASG-1.1", GiveAnotherGroup},
    {"a subject in another group", "ASG-2.1", GiveAnotherGroup},
    {"a second block", "BLK-1.1",
     [](MadeList& list) {
         list.Blocks.push_back({{std::string(FirstCode(list).size(), 'Z'), 1}});
     }},
    {"the last block missing", "BLK-2.1", DropTheLastBlock},
    {"the last block missing", "BLK-3.1", DropTheLastBlock},
    {"the last block missing", "BLK-4.1", DropTheLastBlock},
    {"a code used twice", "COD-1.1", [](MadeList& list) { LastCode(list) = FirstCode(list); }},
    {"a wrong character in a code", "COD-2.1", [](MadeList& list) { FirstCode(list)[0] = '*'; }},
    {"two codes exchanged", "COD-3.1", [](MadeList& list) { std::swap(FirstCode(list), LastCode(list)); }},
    {"blocks in the order of their groups", "RUN-2.1", SortByGroup},
    {"a space too many", "REP-1.1", AddASpace},
    {"a space too many", "REP-2.1", AddASpace},
    {"a window that shows another list", "REP-3.1", [](MadeList& list) { list.WindowText[0] = '*'; }},
    {"a space too many", "REP-4.1", AddASpace},
    {"a file that all can read", "CON-4.1", [](MadeList& list) { list.HasOnePrivateFile = false; }},
};

/// The rules that a list breaks.
std::string Broken(const MadeList& list) {
    std::string broken;
    for (const Rule& rule : Rules())
        if (Breaks(list, rule))
            broken += (broken.empty() ? "" : ", ") + rule.Identifier;
    return broken;
}

void CheckFaults(Check& check, const Lists& lists) {
    std::vector<Row> rows;
    for (const Rule& rule : Rules())
        check.Demand(std::ranges::count(Faults, rule.Identifier, &WrongList::Rule) != 0,
                     rule.Identifier + " has no fault");
    for (const WrongList& fault : Faults) {
        const auto rule = std::ranges::find(Rules(), fault.Rule, &Rule::Identifier);
        const auto found = std::ranges::find_if(lists, [&](MadeList list) {
            if (!rule->Applies(list.Setup) || !Broken(list).empty())
                return false;
            fault.Plant(list);
            return Broken(list) == fault.Rule;
        });
        const std::string number = found == lists.end() ? "none" : std::to_string(found->Setup.Number);
        check.Demand(found != lists.end(), fault.What + (" is not found by " + std::string(fault.Rule)));
        rows.push_back({fault.What, fault.Rule, number});
    }
    check.Exhibits.push_back({"Lists of the program with one fault each",
                              {"Fault", "Rule that must find it, and no other", "Found in list"},
                              rows});
}

/// Changes each byte of the shortest numbered list of each form. In a list of random codes a rule cannot tell
/// a changed character from a right one.
void CheckChangedBytes(Check& check, const Lists& lists) {
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
        check.Compare("List " + std::to_string(shortest->Setup.Number) + ", " + Text(form) +
                          ": bytes changed, one at a time, and found",
                      std::to_string(shortest->Bytes.size()), std::to_string(found));
    }
}

} // namespace

void CheckRulesFindFaults(Record& record, const Lists& lists) {
    record.Run("REC-1.1", "Every rule finds the faults that break it", Chapter::PlantedFaults,
               [&](Check& check) { CheckFaults(check, lists); });
    record.Run("REC-1.2", "The rules find every changed byte", Chapter::PlantedFaults,
               [&](Check& check) { CheckChangedBytes(check, lists); });
}

} // namespace orvane::validation
