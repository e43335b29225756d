#include "validation/concealment.h"

#include "engine/random_source.h"
#include "platform/linux/linux_entropy.h"
#include "validation/figures.h"
#include "validation/guessing.h"
#include "validation/guessing_lists.h"
#include "validation/plots.h"
#include "validation/random_source_account.h"

#include <boost/math/distributions/normal.hpp>

#include <algorithm>
#include <cmath>
#include <functional>

namespace orvane::validation {
namespace {

/// The chance that a right program fails one comparison of a simulated share. There are twelve.
constexpr double FalseAlarmOfAShare = 3e-7;

constexpr int ShareDecimals = 4;

/// A share of right guesses over many lists, beside the exact one.
struct SimulatedShare {
    double Share = 0;
    double StandardError = 0;
    double PValue = 0; ///< two-sided
};

using ListMaker = std::function<std::vector<int>()>;

/// Each list gives one difference between right guesses and those expected of so many subjects. The
/// differences are independent and have the mean 0 when the share is right.
SimulatedShare Simulate(const ListMaker& makeList, int lists, int groups, double exactShare) {
    double right = 0;
    double subjects = 0;
    double sum = 0;
    double squares = 0;
    for (int list = 0; list < lists; ++list) {
        const std::vector<int> assignments = makeList();
        const double guessed = PlayAgainst(assignments, groups);
        const double difference = guessed - exactShare * static_cast<double>(assignments.size());
        right += guessed;
        subjects += static_cast<double>(assignments.size());
        sum += difference;
        squares += difference * difference;
    }
    const double mean = sum / lists;
    const double deviation = std::sqrt(std::max(squares / lists - mean * mean, 0.0) * lists);
    SimulatedShare result{right / subjects, deviation / subjects, 0};
    // In some plans every list is guessed equally often. What is then left of the sum is rounding.
    const double rounding = 1e-9 * subjects;
    if (deviation > rounding)
        result.PValue =
            2 * boost::math::cdf(boost::math::complement(boost::math::normal(), std::abs(sum) / deviation));
    else
        result.PValue = std::abs(sum) > rounding ? 0 : 1;
    return result;
}

Row ShareRow(const BlockPlan& plan, const Guessable& exact, const SimulatedShare& seen) {
    return {plan.Name,
            Fixed(exact.Right, ShareDecimals),
            Fixed(seen.Share, ShareDecimals),
            Fixed(seen.StandardError, 5),
            Significant(seen.PValue, 2),
            Fixed(exact.Certain, ShareDecimals)};
}

const Row ShareHead{"Block option", "Right guesses, exact", "Right guesses, program", "Standard error",
                    "P value",      "Certain at block ends"};

void ExplainStrategy(Evidence& evidence, int groups, int lists) {
    evidence.Paragraph("The investigator is not blind to the treatment, has seen every assignment so far, "
                       "counts the groups over the "
                       "whole list and names the group that is behind; where several are equally far behind, "
                       "any one of them. "
                       "Block ends are not known to this investigator. Every block of these options is even, "
                       "so the counts are level "
                       "at each block's start. The last column is for one who does know the ends: the share "
                       "of assignments that "
                       "then follow with certainty from those before.");
    evidence.Paragraph(
        "Without any knowledge the share of right guesses is " + Fixed(1.0 / groups, ShareDecimals) +
        ". The exact share is the expected number of right "
        "guesses per subject. The program's share is that of " +
        Grouped(lists) + " lists for each option, each for a sample size of " +
        std::to_string(GuessingSampleSize) +
        ". Statistic: the mean difference between right guesses and those expected, divided by its "
        "standard error, normal. Accepted above P = " +
        Significant(FalseAlarmOfAShare, 1) + ", which is the chance of a false alarm of each comparison.");
}

void CheckShares(Record& record, const Scale& scale, const std::string& identifier, int groups) {
    record.Run(
        identifier, "CON-5",
        "The program's lists are guessed as often as calculated, " + std::to_string(groups) + " groups",
        Chapter::Concealment, [&](Evidence& evidence) {
            LinuxEntropy entropy;
            RandomSource random(entropy);
            const int lists = scale.Of(4000, 1000);
            ExplainStrategy(evidence, groups, lists);
            std::vector<Row> rows;
            std::vector<Bar> bars;
            for (const BlockPlan& plan : BlockPlans()) {
                if (plan.Groups != groups)
                    continue;
                const Guessable exact = ExpectedShare(plan.Chances, groups);
                const SimulatedShare seen =
                    Simulate([&] { return MakeAssignments(plan, random); }, lists, groups, exact.Right);
                evidence.Demand(seen.PValue > FalseAlarmOfAShare,
                                plan.Name + ": P value " + Significant(seen.PValue, 2));
                rows.push_back(ShareRow(plan, exact, seen));
                bars.push_back({plan.Name, seen.Share, exact.Right});
            }
            evidence.Table(ShareHead, rows, "Share of right guesses, " + std::to_string(groups) + " groups");
            evidence.Plot(
                BarChart("Share of right guesses by block option, " + std::to_string(groups) + " groups",
                         "Block option", "Share of right guesses", bars),
                "Bars: lists of the program. Heavy lines: exact. Lower is harder to guess.");
        });
}

/// Right guesses on average over all arrangements of a block, played one by one.
double PlayedOverAll(std::vector<int> block, int groups) {
    std::sort(block.begin(), block.end());
    double right = 0;
    double arrangements = 0;
    do {
        right += PlayAgainst(block, groups);
        ++arrangements;
    } while (std::next_permutation(block.begin(), block.end()));
    return right / arrangements;
}

void CheckCalculation(Record& record) {
    record.Run(
        "CON-5.1", "CON-5", "The calculation of right guesses agrees with the formula and with a full count",
        Chapter::Concealment, [](Evidence& evidence) {
            const std::string formula = "Blackwell and Hodges, Annals of Mathematical Statistics 28 (1957)";
            constexpr int decimals = 9;
            for (const int size : {2, 4, 6, 12, 32, 96})
                evidence.Compare("Right guesses in a block of " + std::to_string(size) + ", 2 groups",
                                 Fixed(RightByFormula(size), decimals),
                                 Fixed(ExpectedOfBlock(size, 2).Right, decimals), formula);
            const std::string count = "the strategy played against every arrangement";
            evidence.Compare("Right guesses in a block of 4, 2 groups",
                             Fixed(PlayedOverAll({0, 0, 1, 1}, 2), decimals),
                             Fixed(ExpectedOfBlock(4, 2).Right, decimals), count);
            evidence.Compare("Right guesses in a block of 9, 3 groups",
                             Fixed(PlayedOverAll({0, 0, 0, 1, 1, 1, 2, 2, 2}, 3), decimals),
                             Fixed(ExpectedOfBlock(9, 3).Right, decimals), count);
            evidence.Compare("Right guesses in a block of 8, 4 groups",
                             Fixed(PlayedOverAll({0, 0, 1, 1, 2, 2, 3, 3}, 4), decimals),
                             Fixed(ExpectedOfBlock(8, 4).Right, decimals), count);
        });
}

Series ShareBySize(int groups, int largest) {
    Series series{std::to_string(groups) + " groups", {}};
    for (int size = groups; size <= largest; size += groups)
        series.Points.emplace_back(size, ExpectedShare({{size, 1}}, groups).Right);
    return series;
}

void ShowChoice(Record& record) {
    record.Run(
        "CON-5.4", "CON-5", "Larger blocks are harder to guess", Chapter::Concealment,
        [](Evidence& evidence) {
            constexpr int largest = 48;
            std::vector<Series> all;
            for (const int groups : {2, 3, 4}) {
                all.push_back(ShareBySize(groups, largest));
                const auto& points = all.back().Points;
                evidence.Demand(
                    std::is_sorted(points.begin(), points.end(),
                                   [](const auto& a, const auto& b) { return a.second > b.second; }),
                    "The share does not fall with the size, " + all.back().Name);
            }
            evidence.Plot(LineChart("Share of right guesses by block size", "Subjects in a block",
                                    "Share of right guesses, exact", all),
                          "Exact share of right guesses in blocks of one size.");
            evidence.Paragraph(
                "How to choose. Where the treatment cannot be kept from the investigator, small blocks of "
                "one size are the "
                "easiest to guess, and one who knows their size is certain of the last subjects of each. A "
                "list of sizes "
                "is guessed about as often as its middle size, but hides where a block ends. Random sizes "
                "and one block "
                "are the hardest to guess; in return the groups can be further apart while the trial is "
                "running. In a "
                "trial that is blind, and whose list is kept secret, no strategy has anything to count.");
            evidence.Paragraph(
                "A block of 4 cannot be dealt out evenly to three groups, so blocks of 3 stand in its "
                "place above, and 6, 9, 12 in place of 4, 6, 8.");
        });
}

void CheckTheGame(Record& record, const Scale& scale) {
    record.Run("CON-5.5", "CON-5",
               "Blocks that are dealt out and not shuffled are found by the guessing game",
               Chapter::ChecksOfChecks, [&](Evidence& evidence) {
                   const double exact = ExpectedShare({{4, 1}}, 2).Right;
                   const ListMaker dealt = [] {
                       std::vector<int> list;
                       for (int subject = 0; subject < GuessingSampleSize; ++subject)
                           list.push_back(subject % 2);
                       return list;
                   };
                   const SimulatedShare seen = Simulate(dealt, scale.Of(4000, 1000), 2, exact);
                   evidence.Demand(seen.PValue <= FalseAlarmOfAShare,
                                   "The fault was not found: P value " + Significant(seen.PValue, 2));
                   evidence.Table({"Share expected", "Share seen", "P value", "Accepted above"},
                                  {{Fixed(exact, ShareDecimals), Fixed(seen.Share, ShareDecimals),
                                    Significant(seen.PValue, 2), Significant(FalseAlarmOfAShare, 1)}},
                                  "Two groups in turn, without a shuffle");
               });
}

} // namespace

void CheckConcealment(Record& record, const Scale& scale) {
    CheckCalculation(record);
    CheckShares(record, scale, "CON-5.2", 2);
    CheckShares(record, scale, "CON-5.3", 3);
    ShowChoice(record);
    CheckTheGame(record, scale);
    CheckSourceAccount(record);
}

} // namespace orvane::validation
