// How often an investigator guesses the next assignment right with the convergence strategy of Blackwell and
// Hodges (1957): always name the group with the fewest assignments so far. The investigator sees every
// earlier assignment, does not know where blocks end, and names any of the groups that have the fewest.
#include "validation/record.h"

#include <QString>

#include <algorithm>
#include <functional>
#include <map>
#include <numeric>

namespace orvane::validation {
namespace {

/// Subjects of each group that are still to come in a block, the largest number first.
using Rest = std::vector<int>;

/// The expected number of right guesses, from the end of a block to its start, every arrangement being
/// equally likely. `known` keeps what is already calculated.
double RightGuesses(const Rest& rest, std::map<Rest, double>& known) {
    const int subjects = std::accumulate(rest.begin(), rest.end(), 0);
    if (subjects == 0 || known.contains(rest))
        return known[rest];
    // The group with the fewest assignments has most to come, and so it is the likeliest.
    double right = static_cast<double>(rest.front()) / subjects;
    for (std::size_t group = 0; group < rest.size() && rest[group] > 0; ++group) {
        const double chance = static_cast<double>(rest[group]) / subjects;
        Rest next = rest;
        --next[group];
        std::ranges::sort(next, std::greater<>());
        right += chance * RightGuesses(next, known);
    }
    return known[rest] = right;
}

/// The expected share of right guesses in a list of such blocks. It does not depend on the rule that ends the
/// list, as that looks only at blocks already made (Wald's identity).
double RightShare(const std::vector<int>& sizes, int groups) {
    std::map<Rest, double> known;
    double right = 0;
    for (const int size : sizes)
        right += RightGuesses(Rest(static_cast<std::size_t>(groups), size / groups), known);
    return right / std::accumulate(sizes.begin(), sizes.end(), 0);
}

struct BlockPlan {
    const char* Option;
    int Groups;
    std::vector<int> Sizes; ///< those between the ends twice, as they are twice as likely
};

// Random sizes are those of a sample of 96: about a fifth to a third of it.
const std::vector<BlockPlan> Plans = {
    {"one block of 96", 2, {96}},
    {"equal blocks of 4", 2, {4}},
    {"equal blocks of 12", 2, {12}},
    {"listed sizes 4, 6, 8", 2, {4, 6, 6, 8}},
    {"random sizes, 18 to 32", 2, {18, 20, 20, 22, 22, 24, 24, 26, 26, 28, 28, 30, 30, 32}},
    {"one block of 96", 3, {96}},
    {"equal blocks of 3", 3, {3}},
    {"equal blocks of 12", 3, {12}},
    {"listed sizes 6, 9, 12", 3, {6, 9, 9, 12}},
    {"random sizes, 18 to 33", 3, {18, 21, 21, 24, 24, 27, 27, 30, 30, 33}},
};

} // namespace

void CheckGuessing(Record& record) {
    const auto decimals = [](double value) { return QString::number(value, 'f', 4).toStdString(); };
    const auto judge = [&](Check& check) {
        // m + 2^(2m - 1) / C(2m, m) - 1/2, the formula of Blackwell and Hodges for a block of 2m.
        check.Compare("Share of right guesses in a block of 12, by the published formula",
                      decimals((6 + 2048.0 / 924 - 0.5) / 12), decimals(RightShare({12}, 2)));
        std::vector<Row> rows;
        rows.reserve(Plans.size());
        for (const auto& [option, groups, sizes] : Plans)
            rows.push_back({option, std::to_string(groups), decimals(1.0 / groups),
                            decimals(RightShare(sizes, groups))});
        check.Exhibits.push_back({"Shares of the assignments, calculated exactly",
                                  {"Block option", "Groups", "Right by chance", "Right with the strategy"},
                                  rows});
    };
    record.Run("CON-5.1", "How often an investigator guesses the next assignment", Chapter::Guessing, judge);
}

} // namespace orvane::validation
