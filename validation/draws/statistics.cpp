#include "validation/draws/statistics.h"

#include "validation/draws/known_key.h"
#include "validation/lists/session.h"

#include <boost/math/distributions/non_central_chi_squared.hpp>

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace orvane::validation {
namespace {

constexpr double Missed = 0.01; ///< probability that the smallest fault is not found

std::string Decimals(double value, int decimals) {
    return QString::number(value, 'f', decimals).toStdString();
}

/// Two significant digits, the same in every locale: "2.5e-07".
std::string Significant(double value) {
    return QString::number(value, 'g', 2).toStdString();
}

int RunsOf(const std::string& block) {
    int runs = 1;
    for (std::size_t i = 1; i < block.size(); ++i)
        runs += block[i] == block[i - 1] ? 0 : 1;
    return runs;
}

/// A letter of a text with its place.
std::string Placed(std::size_t place, char letter) {
    return {static_cast<char>('a' + place), letter};
}

Texts Arrangement(std::span<const std::string> texts) {
    return {texts.back()};
}

Texts Size(std::span<const std::string> texts) {
    return {Placed(0, static_cast<char>(texts.back().size()))};
}

Texts Letters(std::span<const std::string> texts) {
    Texts letters;
    for (const char letter : texts.back())
        letters.push_back(Placed(letters.size(), letter));
    return letters;
}

/// The number of runs. Numbers that are rare are counted together, at both ends.
Texts Runs(std::span<const std::string> texts) {
    constexpr int fewest = 6;
    const int most = static_cast<int>(texts.back().size()) + 2 - fewest;
    return {std::to_string(std::clamp(RunsOf(texts.back()), fewest, most))};
}

/// The number of positions at which a block and the one before it have the first group.
Texts Agreement(std::span<const std::string> texts) {
    if (texts.size() == 1)
        return {};
    const std::string& before = texts[texts.size() - 2];
    int both = 0;
    for (std::size_t at = 0; at < before.size(); ++at)
        both += before[at] == 'A' && texts.back().at(at) == 'A' ? 1 : 0;
    return {std::to_string(both)};
}

Texts Repetition(std::span<const std::string> texts) {
    return {std::ranges::count(texts, texts.back()) == 1 ? "new" : "again"};
}

/// The law of blocks whose arrangements are equally likely. All arrangements are counted, the block before
/// each being one that has just been dealt.
Law LawOfBlocks(const ListSetup& setup, ResultsOf resultsOf) {
    const double size = setup.EqualSize;
    const std::string dealt = Dealt(setup.EqualSize, setup.GroupCount());
    Law law;
    double all = 0;
    std::string block = dealt;
    std::ranges::sort(block);
    do {
        // In the sample with the Runs test only four runs have a P value above the level.
        if (!setup.RunsTest() || RunsOf(block) == 4)
            for (const std::string& result : resultsOf(Texts{dealt, block})) {
                ++all;
                ++law.Results[result];
            }
    } while (std::ranges::next_permutation(block).found);
    for (auto& [result, probability] : law.Results)
        probability /= all;
    law.Freedom = static_cast<double>(law.Results.size()) - 1;
    if (resultsOf == Letters) {
        // Each block contains each group equally often, so one position follows from the others.
        law.Freedom = (size - 1) * (setup.GroupCount() - 1);
        law.Factor = (size - 1) / size;
    }
    return law;
}

/// The law of the sizes of blocks, or of each place of a code: the two ends are half as likely as each result
/// between them.
Law HalfAtTheEnds(const ListSetup& setup, ResultsOf /*resultsOf*/) {
    const bool areSizes = setup.Blocks == BlockOption::Listed;
    const std::string sizes(setup.ListedSizes.begin(), setup.ListedSizes.end());
    const std::string results = areSizes ? sizes : CharactersOf(setup.Characters);
    const double places = areSizes ? 1 : setup.CodeLength;
    const auto count = static_cast<double>(results.size());
    Law law;
    for (std::size_t place = 0; static_cast<double>(place) < places; ++place)
        for (const char result : results) {
            const bool isEnd = result == results.front() || result == results.back();
            law.Results[Placed(place, result)] = (isEnd ? 0.5 : 1) / (count - 1) / places;
        }
    law.Freedom = places * (count - 1);
    return law;
}

Law NothingTwice(const ListSetup& /*setup*/, ResultsOf /*resultsOf*/) {
    return {.Results = {{"new", 1}}};
}

/// How often each result occurs.
std::unordered_map<std::string, double> Counts(const Statistic& statistic, const Sample& sample) {
    std::unordered_map<std::string, double> counts;
    const std::span<const std::string> texts = sample.*statistic.Fault.Place;
    for (std::size_t text = 1; text <= texts.size(); ++text)
        for (const std::string& result : statistic.Results(texts.first(text)))
            ++counts[result];
    return counts;
}

/// The share of faulty draws that shifts the counts so far that the statistic fails with 99 per cent, or that
/// shows so often by a result that is impossible, whichever is smaller. A sample in which every draw is
/// faulty gives their distribution.
double SmallestShare(const Statistic& statistic, const Sample& sample, double draws) {
    const Law law = statistic.LawOf(sample.Setup, statistic.Results);
    auto faulty = Counts(statistic, Planted(statistic.Fault, 1, sample));
    double shift = 0; // of Pearson's statistic by each draw, when all are faulty
    double impossible = 1;
    for (const auto& [result, right] : law.Results) {
        const double share = faulty[result] / draws;
        shift += law.Factor * std::pow(share - right, 2) / right;
        impossible -= share;
    }
    const double limit = quantile(complement(boost::math::chi_squared(law.Freedom), FalseAlarm));
    using boost::math::non_central_chi_squared;
    const double needed = non_central_chi_squared::find_non_centrality(law.Freedom, limit, Missed);
    const double share = std::sqrt(needed / (draws * shift));
    constexpr double rounding = 1e-6;
    return impossible < rounding ? share : std::min(share, (1 - std::pow(Missed, 1 / draws)) / impossible);
}

const Fault LeftAsDealt = {"blocks left as they are dealt", 0.05, &Sample::Blocks, [](const Spot& at) {
                               at.Text = Dealt(at.Setup.EqualSize, at.Setup.GroupCount());
                           }};

const Fault GivenToB = {"subjects of group A given to group B", 0.1, &Sample::Blocks,
                        [](const Spot& at) { std::ranges::replace(at.Text, 'A', 'B'); }};

const Fault LevelSizes = {"sizes drawn with the ends as likely as the others", 0.5, &Sample::Blocks,
                          [](const Spot& at) {
                              const std::vector<int>& sizes = at.Setup.ListedSizes;
                              at.Text = Dealt(sizes.at(at.Random() % sizes.size()), at.Setup.GroupCount());
                          }};

const Fault LevelCharacters = {"characters drawn with the ends as likely as the others", 0.2, &Sample::Codes,
                               [](const Spot& at) {
                                   const std::string characters = CharactersOf(at.Setup.Characters);
                                   for (char& character : at.Text)
                                       character = characters.at(at.Random() % characters.size());
                               }};

const Fault CopiedBlock = {"blocks copied from the one before", 0.05, &Sample::Blocks,
                           [](const Spot& at) { at.Text = at.Before; }};

const Fault RepeatedList = {"lists that another start has made", 0, &Sample::Blocks, CopiedBlock.Change};

const Fault NotTested = {"blocks not tested", 0.05, &Sample::Blocks,
                         [](const Spot& at) { std::ranges::shuffle(at.Text, at.Random); }};

/// Keeps the blocks of a list, and its codes if they are random.
void Keep(const MadeList& list, Sample& sample) {
    for (const std::vector<Subject>& block : list.Blocks) {
        std::string& groups = sample.Blocks.emplace_back();
        for (const Subject& subject : block) {
            groups += static_cast<char>('A' + subject.Group - 1);
            if (list.Setup.RandomCodes)
                sample.Codes.push_back(subject.Code);
        }
    }
}

/// The samples of the table. Those behind a list that could not be made or read are empty.
Samples MakeSamples(Session& session, bool isQuick) {
    Samples samples;
    for (ListSetup setup : ReadSetups(SAMPLES)) {
        const QString name = setup.Choices.at("sample");
        setup.Number += 100; // behind the other lists of the record
        samples[name].Setup = setup;
        const int lists = setup.Choices.at(isQuick ? "quick" : "full").toInt();
        for (int list = 0; list < lists; ++list) {
            if (name == "starts")
                session.Restart(setup, WithStandingClock());
            else if (list == 0)
                session.Restart(setup);
            const MadeList made = session.Make(setup);
            if (!made.HasItsForm)
                return samples;
            Keep(made, samples[name]);
        }
    }
    return samples;
}

/// The line of a statistic in the table.
Row RowOf(const Statistic& statistic, const Sample& sample, const Verdict& verdict) {
    const bool isLaw = verdict.Freedom > 0;
    const double smallest = isLaw ? SmallestShare(statistic, sample, verdict.Draws) : 0;
    const QString draws = QLocale(QLocale::English).toString(verdict.Draws, 'f', 0);
    return {statistic.Hypothesis,
            draws.toStdString() + " " + statistic.Unit,
            isLaw ? Decimals(verdict.Freedom, 0) : "none may occur",
            Decimals(verdict.Value, 1),
            Significant(verdict.PValue),
            ShareText(smallest, statistic.Fault)};
}

} // namespace

const std::vector<Statistic>& AllStatistics() {
    static const std::vector<Statistic> all = {
        {"ASG-3.1", "Each arrangement of a block of 4 in 2 groups is equally likely", "4 in 2", LawOfBlocks,
         Arrangement, "blocks", LeftAsDealt},
        {"ASG-3.2", "Each arrangement of a block of 6 in 2 groups is equally likely", "6 in 2", LawOfBlocks,
         Arrangement, "blocks", LeftAsDealt},
        {"ASG-3.3", "Each arrangement of a block of 6 in 3 groups is equally likely", "6 in 3", LawOfBlocks,
         Arrangement, "blocks", LeftAsDealt},
        {"ASG-4.1", "Each of 4 groups is equally likely at each position of a block of 8", "8 in 4",
         LawOfBlocks, Letters, "positions", GivenToB},
        {"ASG-5.1", "The runs of a block of 20 in 2 groups have the law of Wald and Wolfowitz", "20 in 2",
         LawOfBlocks, Runs, "blocks", LeftAsDealt},
        {"BLK-5.1", "Of the sizes 4, 6, 8 the ends are half as likely as the one between", "listed",
         HalfAtTheEnds, Size, "blocks", LevelSizes},
        {"COD-4.1", "At each place of a code A and Z are half as likely as the other letters", "6 in 2",
         HalfAtTheEnds, Letters, "characters", LevelCharacters},
        {"COD-4.2", "At each place of a code 0 and 9 are half as likely as the other digits", "6 in 3",
         HalfAtTheEnds, Letters, "characters", LevelCharacters},
        {"COD-4.3", "At each place of a mixed code 0 and Z are half as likely as the others", "4 in 2",
         HalfAtTheEnds, Letters, "characters", LevelCharacters},
        {"CON-3.1", "A block of 6 in 2 groups agrees with the one before as often as by chance", "6 in 2",
         LawOfBlocks, Agreement, "blocks", CopiedBlock},
        {"CON-3.2", "Starts at the same time of day never make equal lists", "starts", NothingTwice,
         Repetition, "lists", RepeatedList},
        {"RUN-2.2", "Of the blocks of 6 only the 8 that pass the Runs test at 0.3 occur, equally often",
         "tested", LawOfBlocks, Arrangement, "blocks", NotTested},
    };
    return all;
}

std::string Dealt(int size, int groups) {
    std::string block;
    for (int position = 0; position < size; ++position)
        block += static_cast<char>('A' + position % groups);
    return block;
}

Verdict Judge(const Statistic& statistic, const Sample& sample) {
    const Law law = statistic.LawOf(sample.Setup, statistic.Results);
    auto seen = Counts(statistic, sample);
    if (seen.empty())
        throw std::runtime_error("a long list could not be made or read");
    Verdict verdict{.Freedom = law.Freedom};
    for (const auto& [result, count] : seen)
        verdict.Draws += count;
    for (const auto& [result, probability] : law.Results) {
        const double expected = probability * verdict.Draws;
        verdict.Value += law.Factor * std::pow(seen[result] - expected, 2) / expected;
    }
    verdict.PValue = seen.size() > law.Results.size() ? 0 : 1; // an impossible result
    if (law.Freedom > 0)
        verdict.PValue *= cdf(complement(boost::math::chi_squared(law.Freedom), verdict.Value));
    return verdict;
}

void CheckStatistics(Record& record, Session& session) {
    const Samples samples = MakeSamples(session, record.Quick);
    std::vector<Row> rows;
    double alarms = 0;
    for (const Statistic& statistic : AllStatistics())
        record.Run(statistic.Identifier, statistic.Hypothesis, Chapter::Statistics, [&](Check& check) {
            const Sample& sample = samples.at(statistic.Sample);
            const Verdict verdict = Judge(statistic, sample);
            check.Demand(verdict.PValue > FalseAlarm, "P value " + Significant(verdict.PValue));
            rows.push_back(RowOf(statistic, sample, verdict));
            alarms += verdict.Freedom > 0 ? FalseAlarm : 0;
        });
    record.Run("ASG-6.1", "Every random choice has the documented distribution", Chapter::Statistics,
               [&](Check& check) {
                   check.Demand(rows.size() == AllStatistics().size(), "a sample is missing");
                   check.Demand(alarms < 5e-7, "the false alarms are too likely");
                   check.Exhibits = {
                       {"The program's random choices, with the entropy of this machine",
                        {"Hypothesis", "Sample", "Degrees of freedom", "Chi-square", "P value",
                         "Smallest fault found with 99 per cent"},
                        rows},
                       {"A statistic fails at a P value of " + Significant(FalseAlarm) +
                        " or less, in the upper tail. A right program fails any of them with a probability "
                        "of " +
                        Significant(alarms) +
                        ", the sum over all; with the error of the chi-square approximation, below 1e-06. "
                        "Equal lists by chance are rarer than 1e-15 and left out."}};
               });
    CheckStatisticsFindFaults(record, samples);
}

} // namespace orvane::validation
