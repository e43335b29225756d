#include "validation/draws/known_key.h"
#include "validation/lists/list.h"
#include "validation/lists/session.h"

#include <QString>

#include <algorithm>
#include <optional>
#include <set>

namespace orvane::validation {
namespace {

constexpr std::size_t QuickLists = 10;

std::string NumberOf(const MadeList& list) {
    return std::to_string(list.Setup.Number);
}

/// Settings that differ in every box from those that are then typed or loaded.
ListSetup OtherThan(const ListSetup& setup) {
    ListSetup other = setup;
    other.Groups.assign(5, "Other");
    other.SampleSize += 50;
    other.Characters = setup.Characters == Alphabet::Digits ? Alphabet::Mixed : Alphabet::Digits;
    other.RandomCodes = !setup.RandomCodes;
    other.CodeLength = 7;
    other.Blocks = setup.Blocks == BlockOption::Equal ? BlockOption::Listed : BlockOption::Equal;
    other.EqualSize += 5;
    other.ListedSizesText += "5,15";
    other.Output = setup.Output == Form::Window ? Form::Clipboard : Form::Window;
    return other;
}

/// Makes the lists of the set-ups. Each start has a key of its own; a list that is loaded goes on in the
/// start of the list before it. Ends early when the program has made no list three times.
std::vector<MadeList> Make(Session& session, const std::vector<ListSetup>& setups) {
    std::vector<MadeList> lists;
    std::optional<SecondProgram> second;
    int chances = 3; // every list that fails takes a minute
    for (const ListSetup& setup : setups) {
        if (!second || setup.Input != Way::Loaded) {
            const QByteArray key = KeyNumber(setup.Number);
            session.Restart(setup.Input == Way::Started ? setup : OtherThan(setup), WithKey(key));
            second.emplace(key);
        }
        lists.push_back(session.Make(setup));
        lists.back().Predicted = second->Make(setup);
        if (!lists.back().NotMade.empty()) {
            second.reset();
            if (--chances == 0)
                break;
        }
    }
    return lists;
}

/// Counts the pairs of choices in the first `used` set-ups. The clipboard refuses names that are wider than
/// its columns, and the way of input is no choice about a list.
void CheckCoverage(Check& check, const std::vector<ListSetup>& setups, std::size_t used) {
    const auto different = [&](std::size_t count, const QString& a, const QString& b) {
        std::set<QString> pairs;
        for (std::size_t list = 0; list < count; ++list)
            pairs.insert(setups[list].Choices.at(a) + "," + setups[list].Choices.at(b));
        return pairs.size();
    };
    std::size_t possible = 0;
    std::size_t covered = 0;
    for (const auto& [a, first] : setups.front().Choices)
        for (const auto& [b, second] : setups.front().Choices) {
            if (a >= b || a == "input" || b == "input")
                continue;
            const bool isRefused = a == "form" && b == "names";
            possible += different(setups.size(), a, a) * different(setups.size(), b, b) - (isRefused ? 1 : 0);
            covered += different(used, a, b);
        }
    check.Demand(covered == possible || used < setups.size(), "a pair of choices has no list");
    check.Exhibits.push_back({std::to_string(covered) + " of " + std::to_string(possible) +
                              " possible pairs of choices occur together in a list. A full validation has "
                              "all."});
}

/// The set-ups as their table has them, and how often the prediction drew again.
void ShowLists(Check& check, const std::vector<MadeList>& lists) {
    Row head = {"list"};
    std::vector<Row> rows;
    for (const MadeList& list : lists) {
        rows.push_back({NumberOf(list)});
        for (const auto& [column, cell] : list.Setup.Choices) {
            if (rows.size() == 1)
                head.push_back(column.toStdString());
            rows.back().push_back(cell.toStdString());
        }
        for (const std::size_t count :
             {list.Blocks.size(), list.Predicted.Shuffles, list.Predicted.CodesDrawnAgain})
            rows.back().push_back(std::to_string(count));
        check.Demand(list.NotMade.empty(), "list " + NumberOf(list) + ": " + list.NotMade);
    }
    head.insert(head.end(), {"blocks", "shuffles", "codes drawn again"});
    check.Exhibits.push_back({"The lists", head, rows});
}

/// One table of all rules and all lists.
void ShowRules(Check& check, const std::vector<MadeList>& lists) {
    Row head = {"Rule"};
    for (const MadeList& list : lists)
        head.push_back(NumberOf(list));
    std::vector<Row> rows;
    for (const Rule& rule : Rules()) {
        rows.push_back({rule.Identifier});
        for (const MadeList& list : lists) {
            const bool applies = rule.Applies(list.Setup);
            rows.back().emplace_back(!applies ? "" : Breaks(list, rule) ? "WRONG" : "+");
        }
    }
    check.Exhibits.push_back(
        {"+: the list follows the rule; blank: the rule is not for this list", head, rows});
}

/// Demands for each list that `fault` finds nothing in it.
template <typename Fault>
void CheckEach(Record& record, const std::string& identifier, const std::string& title, Chapter place,
               const std::vector<MadeList>& lists, const Fault& fault) {
    record.Run(identifier, title, place, [&](Check& check) {
        for (const MadeList& list : lists) {
            const std::string found = fault(list);
            check.Demand(found.empty(), "list " + NumberOf(list) + ": " + found);
        }
    });
}

} // namespace

void CheckLists(Record& record, Session& session) {
    const std::vector<ListSetup> setups = ReadSetups(SETUPS);
    std::vector<ListSetup> used = setups;
    if (record.Quick)
        used.resize(QuickLists);
    const std::vector<MadeList> lists = Make(session, used);
    record.Run("USE-4.1", "The choices that the lists cover", Chapter::Lists,
               [&](Check& check) { CheckCoverage(check, setups, used.size()); });
    record.Run("USE-4.2", "The lists are made through the windows", Chapter::Lists, [&](Check& check) {
        ShowLists(check, lists);
        ShowRules(check, lists);
    });
    for (const Rule& rule : Rules())
        CheckEach(record, rule.Identifier, rule.Text, Chapter::Lists, lists,
                  [&](const MadeList& list) { return Breaks(list, rule) ? "wrong" : ""; });
    CheckEach(record, "CON-1.2", "Every list is equal to its prediction", Chapter::KnownKey, lists,
              DifferenceFromPrediction);
    CheckEach(record, "RUN-4.1", "The message shows the P values of the prediction", Chapter::KnownKey, lists,
              [](const MadeList& list) {
                  const bool isEqual = list.RunsMessage == list.Predicted.RunsMessage;
                  return isEqual ? "" : "the message \"" + list.RunsMessage + "\"";
              });
    CheckRulesFindFaults(record, lists);
}

} // namespace orvane::validation
