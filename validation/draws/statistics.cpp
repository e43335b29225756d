#include "validation/draws/statistics.h"

#include "validation/checks.h"
#include "validation/draws/known_key.h"

#include <boost/math/distributions/non_central_chi_squared.hpp>

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <optional>
#include <stdexcept>

namespace orvane::validation {
namespace {

/// The probability that a right program fails one statistic with a P value.
constexpr double FalseAlarm = 2e-8;
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

enum SampleKind : std::size_t { OfFour, OfSix, OfSixInThree, OfEight, OfTwenty, OfSizes, OfTested, OfStarts };

/// As many equal blocks as a list can have, with random codes of these characters if there are any.
ListSetup Blocks(int size, int groups, std::optional<Alphabet> characters) {
    ListSetup setup{.Blocks = BlockOption::Equal, .CodeLength = 10, .EqualSize = size};
    setup.SampleSize = (32767 / size - 1) * size; // there is always one block more than fits into it
    setup.Groups.clear();
    for (const char group : Dealt(groups, groups))
        setup.Groups.emplace_back(1, group);
    setup.RandomCodes = characters.has_value();
    setup.Characters = characters.value_or(Alphabet::Digits);
    return setup;
}

/// The samples in the order of SampleKind, without their lists.
std::vector<Sample> Designs() {
    ListSetup listed = Blocks(4, 2, std::nullopt);
    listed.Blocks = BlockOption::Listed;
    listed.ListedSizes = {4, 6, 8, 10, 12};
    listed.ListedSizesText = "4,6,8,10,12";
    listed.SampleSize = 32767 - listed.ListedSizes.back();
    ListSetup tested = Blocks(6, 2, std::nullopt);
    tested.Level = "0.3";
    return {
        {Blocks(4, 2, Alphabet::Mixed), 50, 6},
        {Blocks(6, 2, Alphabet::Letters), 50, 6},
        {Blocks(6, 3, Alphabet::Digits), 50, 6},
        {Blocks(8, 4, std::nullopt), 24, 4},
        {Blocks(20, 2, std::nullopt), 30, 6},
        {listed, 15, 3},
        {tested, 16, 5},
        {ListSetup{.SampleSize = 60}, 6, 3},
    };
}

/// Keeps the blocks of a list, and its codes if they are random.
void Keep(const MadeList& list, Sample& sample) {
    if (!list.HasItsForm)
        throw std::runtime_error("a list could not be made or read: " + list.NotMade);
    for (const std::vector<Subject>& block : list.Blocks) {
        std::string& groups = sample.Blocks.emplace_back();
        for (const Subject& subject : block) {
            groups += static_cast<char>('A' + subject.Group - 1);
            if (list.Setup.RandomCodes)
                sample.Codes.push_back(subject.Code);
        }
    }
}

std::vector<Sample> MakeSamples(Session& session, const Record& record) {
    std::vector<Sample> samples = Designs();
    for (std::size_t kind = 0; kind < samples.size(); ++kind) {
        Sample& sample = samples[kind];
        sample.Setup.Number = 101 + static_cast<int>(kind); // behind the other lists of the record
        sample.Setup.Output = Form::Clipboard;              // faster than a file
        sample.Setup.Columns = 1;
        for (int list = 0; list < record.Size(sample.FullLists, sample.QuickLists); ++list) {
            if (kind == OfStarts)
                session.Restart(sample.Setup, WithStandingClock());
            else if (list == 0)
                session.Restart(sample.Setup);
            Keep(session.Make(sample.Setup), sample);
        }
    }
    session.Stop();
    return samples;
}

std::vector<Verdict> JudgeAll(Check& check, const std::vector<Sample>& samples) {
    std::vector<Verdict> verdicts;
    std::vector<Row> rows;
    double alarms = 0;
    for (const Statistic& statistic : AllStatistics()) {
        const Sample& sample = samples.at(statistic.Kind);
        const double freedom = statistic.LawOf(sample.Setup, statistic.Results).Freedom;
        const Verdict verdict = Judge(statistic, sample);
        const double smallest = freedom == 0 ? 0 : SmallestShare(statistic, sample, verdict.Draws);
        const QString draws = QLocale(QLocale::English).toString(verdict.Draws, 'f', 0);
        rows.push_back({statistic.Hypothesis, draws.toStdString() + " " + statistic.Unit,
                        freedom == 0 ? "none may occur" : Decimals(freedom, 0), Decimals(verdict.Value, 1),
                        Significant(verdict.PValue), ShareText(smallest, statistic.Fault)});
        alarms += freedom == 0 ? 0 : FalseAlarm;
        verdicts.push_back(verdict);
    }
    check.Exhibits = {
        {"The program's random choices, with the entropy of this machine",
         {"Hypothesis", "Sample", "Degrees of freedom", "Chi-square", "P value",
          "Smallest fault found with 99 per cent"},
         rows},
        {"A statistic fails at a P value of " + Significant(FalseAlarm) +
         " or less, in the upper tail. A right program fails any of them with a probability of " +
         Significant(alarms) +
         ", the sum over all; with the error of the chi-square approximation, below 1e-06. Equal lists by "
         "chance are rarer than 1e-15 and left out. At the smallest fault, a share of faulty draws, the "
         "statistic fails with a probability of 99 per cent."},
        {"No sample finds fewer exchanges than there should be, such as 10 N for a block of N: each group is "
         "then already equally likely at each position to within 0.01 per cent. The known keys of chapter 4 "
         "find it."}};
    check.Demand(alarms > 0 && alarms < 5e-7, "the false alarms are too likely");
    return verdicts;
}

} // namespace

const std::vector<Statistic>& AllStatistics() {
    static const std::vector<Statistic> all = {
        {"ASG-3.1", "Each arrangement of a block of 4 in 2 groups is equally likely", OfFour, LawOfBlocks,
         Arrangement, "blocks", LeftAsDealt},
        {"ASG-3.2", "Each arrangement of a block of 6 in 2 groups is equally likely", OfSix, LawOfBlocks,
         Arrangement, "blocks", LeftAsDealt},
        {"ASG-3.3", "Each arrangement of a block of 6 in 3 groups is equally likely", OfSixInThree,
         LawOfBlocks, Arrangement, "blocks", LeftAsDealt},
        {"ASG-4.1", "Each of 4 groups is equally likely at each position of a block of 8", OfEight,
         LawOfBlocks, Letters, "positions", GivenToB},
        {"ASG-5.1", "The runs of a block of 20 in 2 groups have the law of Wald and Wolfowitz", OfTwenty,
         LawOfBlocks, Runs, "blocks", LeftAsDealt},
        {"BLK-5.1", "Of the sizes 4, 6, 8, 10, 12 the ends are half as likely as the others", OfSizes,
         HalfAtTheEnds, Size, "blocks", LevelSizes},
        {"COD-4.1", "At each place of a code A and Z are half as likely as the other letters", OfSix,
         HalfAtTheEnds, Letters, "characters", LevelCharacters},
        {"COD-4.2", "At each place of a code 0 and 9 are half as likely as the other digits", OfSixInThree,
         HalfAtTheEnds, Letters, "characters", LevelCharacters},
        {"COD-4.3", "At each place of a mixed code 0 and Z are half as likely as the others", OfFour,
         HalfAtTheEnds, Letters, "characters", LevelCharacters},
        {"CON-3.1", "A block of 6 in 2 groups agrees with the one before as often as by chance", OfSix,
         LawOfBlocks, Agreement, "blocks", CopiedBlock},
        {"CON-3.2", "Starts at the same time of day never make equal lists", OfStarts, NothingTwice,
         Repetition, "lists", RepeatedList},
        {"RUN-2.2", "Of the blocks of 6 only the 8 that pass the Runs test at 0.3 occur, equally often",
         OfTested, LawOfBlocks, Arrangement, "blocks", NotTested},
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
    Verdict verdict;
    for (const auto& [result, count] : seen)
        verdict.Draws += count;
    for (const auto& [result, probability] : law.Results) {
        const double expected = probability * verdict.Draws;
        verdict.Value += law.Factor * std::pow(seen[result] - expected, 2) / expected;
    }
    verdict.PValue = seen.size() > law.Results.size() ? 0 : 1; // an impossible result
    if (law.Freedom > 0)
        verdict.PValue *= cdf(complement(boost::math::chi_squared(law.Freedom), verdict.Value));
    verdict.Passed = verdict.PValue > FalseAlarm;
    return verdict;
}

std::vector<Sample> CheckStatistics(Record& record, Session& session) {
    std::vector<Sample> samples;
    std::vector<Verdict> verdicts(AllStatistics().size());
    record.Run("ASG-6.1", "Every random choice has the documented distribution", Chapter::Statistics,
               [&](Check& check) {
                   samples = MakeSamples(session, record);
                   verdicts = JudgeAll(check, samples);
               });
    for (std::size_t i = 0; i < verdicts.size(); ++i)
        record.Run(AllStatistics()[i].Identifier, AllStatistics()[i].Hypothesis, Chapter::Statistics,
                   [&](Check& check) {
                       check.Demand(verdicts[i].Passed, "P value " + Significant(verdicts[i].PValue));
                   });
    return samples;
}

} // namespace orvane::validation
