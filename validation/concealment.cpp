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

/// The probability that a correct program fails one comparison of a simulated share. There are twelve.
constexpr double FalseAlarmOfAShare = 3e-7;

constexpr int ShareDecimals = 4;

/// The share of right guesses in many lists, and its comparison with the exact share.
struct SimulatedShare {
    double Share = 0;
    double StandardError = 0;
    double PValue = 0; ///< two-sided
};

using ListMaker = std::function<std::vector<int>()>;

/// Each list gives one difference between its right guesses and the number expected for its length. The
/// differences are independent and have the mean 0 if the program is correct.
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
    // In some plans every list has the same number of right guesses. A sum other than 0 is then a rounding
    // error.
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
    evidence.Paragraph(
        "The investigator is not blinded, has seen every assignment so far, counts the subjects of each "
        "group over the whole list, and names the group with the fewest subjects; if several groups have the "
        "fewest, any one of them. This investigator does not know where a block ends. Every block of these "
        "options contains all groups equally often, so the counts are equal at the start of each block. The "
        "last column is for an investigator who knows the ends of the blocks: it gives the share of "
        "assignments that follow with certainty from the earlier ones.");
    evidence.Paragraph("Without any knowledge, the share of right guesses is " +
                       Fixed(1.0 / groups, ShareDecimals) +
                       ". The exact share is the expected number of right "
                       "guesses per subject. The program's share is the share in " +
                       Grouped(lists) + " lists for each option, each with a sample size of " +
                       std::to_string(GuessingSampleSize) +
                       ". Statistic: the mean difference between observed and expected right guesses, "
                       "divided by its standard error; it has a normal distribution. Accepted above P = " +
                       Significant(FalseAlarmOfAShare, 1) +
                       ", which is the probability of a false alarm in each comparison.");
}

void CheckShares(Record& record, const Scale& scale, const std::string& identifier, int groups) {
    record.Run(
        identifier, "CON-5",
        "The share of right guesses in the program's lists is the calculated one, " + std::to_string(groups) +
            " groups",
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
                "Bars: the program's lists. Heavy lines: exact share. The lower the share, the harder the "
                "list is to guess.");
        });
}

/// The average number of right guesses over all arrangements of a block.
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
    record.Run("CON-5.1", "CON-5",
               "The calculation of right guesses agrees with the formula and with a full enumeration",
               Chapter::Concealment, [](Evidence& evidence) {
                   const std::string formula =
                       "Blackwell and Hodges, Annals of Mathematical Statistics 28 (1957)";
                   constexpr int decimals = 9;
                   for (const int size : {2, 4, 6, 12, 32, 96})
                       evidence.Compare("Right guesses in a block of " + std::to_string(size) + ", 2 groups",
                                        Fixed(RightByFormula(size), decimals),
                                        Fixed(ExpectedOfBlock(size, 2).Right, decimals), formula);
                   const std::string count = "the strategy applied to every arrangement";
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
    record.Run("CON-5.4", "CON-5", "Larger blocks are harder to guess", Chapter::Concealment,
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
                       "How to choose. If the investigator cannot be blinded, small blocks of one size are "
                       "the easiest to guess, and an investigator who knows their size is certain of the "
                       "last assignments of each block. With a list of sizes, the share of right guesses is "
                       "about that of the middle size, but the ends of the blocks are not known. Random "
                       "sizes and one block are the hardest to guess; on the other hand, the group sizes can "
                       "differ more while the trial is running. In a blinded trial whose list is kept "
                       "secret, the investigator has nothing to count.");
                   evidence.Paragraph(
                       "A block of 4 cannot be divided equally among three groups. For three groups, blocks "
                       "of 3 are used instead of blocks of 4, and the sizes 6, 9, 12 instead of 4, 6, 8.");
               });
}

void CheckTheGame(Record& record, const Scale& scale) {
    record.Run("CON-5.5", "CON-5", "Blocks that are not shuffled are found by the share of right guesses",
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
