#include "validation/lists/checks.h"

#include "validation/draws/second_program.h"
#include "validation/lists/rules.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <set>

namespace orvane::validation {

namespace {

constexpr std::size_t QuickLists = 10;

/// A list made from a known key and what the second program makes.
struct Twins {
    MadeList List;
    PredictedList Predicted;
};

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
std::vector<Twins> Make(Session& session, const std::vector<ListSetup>& setups,
                        const std::filesystem::path& library) {
    std::vector<Twins> all;
    std::optional<SecondProgram> second;
    int chances = 3; // every list that fails takes a minute
    for (const ListSetup& setup : setups) {
        if (!second || setup.Input != Way::Loaded) {
            const Key key = KeyNumber(static_cast<std::uint32_t>(setup.Number));
            session.Restart(setup.Input == Way::Started ? setup : OtherThan(setup), WithKey(library, key));
            second.emplace(key, TimeOfLists());
        }
        all.push_back({session.Make(setup), second->Make(setup)});
        if (!all.back().List.NotMade.empty()) {
            second.reset();
            if (--chances == 0)
                break;
        }
    }
    return all;
}

/// Counts the pairs of choices in the lists. The clipboard refuses names that are wider than its columns.
void CheckCoverage(Evidence& evidence, const SetupTable& table, std::size_t used) {
    std::size_t possible = 0;
    std::size_t covered = 0;
    for (std::size_t a = 1; a < table.Columns.size(); ++a) // not the input, the first column
        for (std::size_t b = a + 1; b < table.Columns.size(); ++b) {
            std::set<std::pair<std::string, std::string>> pairs;
            for (std::size_t list = 0; list < used; ++list)
                pairs.emplace(table.Lines[list][a], table.Lines[list][b]);
            const bool isRefused = table.Columns[a] == "names" && table.Columns[b] == "form";
            possible += table.Choices(a).size() * table.Choices(b).size() - (isRefused ? 1 : 0);
            covered += pairs.size();
        }
    evidence.Demand(covered == possible || used < table.Lines.size(), "a pair of choices has no list");
    evidence.Paragraph(std::to_string(covered) + " of " + std::to_string(possible) +
                       " possible pairs of choices occur together in a list. A full validation has all.");
}

/// The set-ups as their table has them, and how often the prediction drew again.
void ShowLists(Evidence& evidence, const SetupTable& table, const std::vector<Twins>& twins) {
    Row head = {"list"};
    head.insert(head.end(), table.Columns.begin(), table.Columns.end());
    head.insert(head.end(), {"blocks found", "shuffles", "drawn again"});
    std::vector<Row> rows;
    for (const auto& [list, predicted] : twins) {
        const std::string number = std::to_string(list.Setup.Number);
        const Row& choices = table.Lines[rows.size()];
        Row row = {number};
        row.insert(row.end(), choices.begin(), choices.end());
        row.push_back(std::to_string(predicted.Blocks.size()));
        row.push_back(std::to_string(std::reduce(predicted.Shuffles.begin(), predicted.Shuffles.end())));
        row.push_back(std::to_string(predicted.CodesDrawnAgain));
        rows.push_back(row);
        evidence.Demand(list.NotMade.empty(), "list " + number + ": " + list.NotMade);
    }
    evidence.Table(
        head, rows,
        "The lists. \"Started\" is read by the program at its start; \"typed\" and \"loaded\" replace "
        "other settings. Every file was opened in the program for its type. Shuffles beyond the "
        "number of blocks follow upon rejections by the Runs test");
}

/// One table of all rules and all lists.
void ShowRules(Evidence& evidence, const std::vector<Twins>& twins) {
    Row head = {"Rule"};
    for (const Twins& pair : twins)
        head.push_back(std::to_string(pair.List.Setup.Number));
    std::vector<Row> rows;
    for (const Rule& rule : Rules()) {
        rows.push_back({rule.Identifier});
        for (const Twins& pair : twins) {
            const bool applies = rule.Applies(pair.List.Setup);
            rows.back().emplace_back(!applies ? "" : Breaks(pair.List, rule) ? "WRONG" : "+");
        }
    }
    evidence.Table(head, rows, "+: the list follows the rule; blank: the rule is not for this list");
}

/// Demands for each list that `fault` finds nothing in it.
template <typename Fault>
void CheckEach(Record& record, const std::string& identifier, const std::string& title, Chapter place,
               const std::vector<Twins>& twins, const Fault& fault) {
    record.Run(identifier, title, place, [&](Evidence& evidence) {
        for (const Twins& pair : twins) {
            const std::string found = fault(pair);
            evidence.Demand(found.empty(), "list " + std::to_string(pair.List.Setup.Number) + ": " + found);
        }
    });
}

} // namespace

std::vector<MadeList> CheckLists(Record& record, Session& session, const SetupTable& table,
                                 const std::filesystem::path& library, const Scale& scale) {
    std::vector<ListSetup> setups = SetupsOf(table);
    if (scale.Quick)
        setups.resize(std::min(setups.size(), QuickLists));
    const std::vector<Twins> twins = Make(session, setups, library);
    record.Run("USE-4.1", "The choices that the lists cover", Chapter::Lists,
               [&](Evidence& evidence) { CheckCoverage(evidence, table, setups.size()); });
    record.Run("USE-4.2", "The lists are made through the windows", Chapter::Lists, [&](Evidence& evidence) {
        ShowLists(evidence, table, twins);
        ShowRules(evidence, twins);
    });
    for (const Rule& rule : Rules())
        CheckEach(record, rule.Identifier, rule.Text, Chapter::Lists, twins,
                  [&](const Twins& pair) { return Breaks(pair.List, rule) ? "wrong" : ""; });
    CheckEach(record, "CON-1.2", "Every list is equal to its prediction", Chapter::KnownKey, twins,
              [](const Twins& pair) { return DifferenceFrom(pair.Predicted, pair.List); });
    CheckEach(record, "RUN-4.1", "The message shows the P values of the prediction", Chapter::KnownKey, twins,
              [](const Twins& pair) {
                  const std::string& message = pair.List.RunsMessage;
                  return message == pair.Predicted.RunsMessage ? "" : "the message \"" + message + "\"";
              });
    std::vector<MadeList> lists(twins.size());
    std::ranges::transform(twins, lists.begin(), &Twins::List);
    return lists;
}

} // namespace orvane::validation
