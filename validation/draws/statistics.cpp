#include "validation/draws/statistics.h"

#include "validation/draws/known_key.h"

#include <boost/math/distributions/non_central_chi_squared.hpp>

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <set>
#include <stdexcept>

namespace orvane::validation {
namespace {

using Use = std::function<void(const std::string&)>;

/// The probability that a right program fails one statistic with a P value.
constexpr double FalseAlarm = 2e-8;
constexpr double Missed = 0.01; ///< probability that the smallest fault is not found

int RunsOf(const std::string& block) {
    int runs = 1;
    for (std::size_t i = 1; i < block.size(); ++i)
        runs += block[i] == block[i - 1] ? 0 : 1;
    return runs;
}

/// A result of a block, perhaps by the block before it.
using ResultOf = std::string (*)(const std::string& block, const std::string& before);

std::string Arrangement(const std::string& block, const std::string& /*before*/) {
    return block;
}

/// A result at one of several places.
std::string Placed(std::size_t place, char result) {
    return {static_cast<char>('a' + place), result};
}

std::string Size(const std::string& block, const std::string& /*before*/) {
    return Placed(0, static_cast<char>(block.size()));
}

/// The number of runs. Numbers that are rare are counted together, at both ends.
std::string Runs(const std::string& block, const std::string& /*before*/) {
    constexpr int fewest = 6;
    return std::to_string(std::clamp(RunsOf(block), fewest, static_cast<int>(block.size()) + 2 - fewest));
}

/// The number of positions at which both blocks have the first group.
std::string Agreement(const std::string& block, const std::string& before) {
    int both = 0;
    for (std::size_t at = 0; at < std::min(block.size(), before.size()); ++at)
        both += block[at] == 'A' && before[at] == 'A' ? 1 : 0;
    return std::to_string(both);
}

/// The law of blocks whose arrangements are equally likely. All arrangements are counted, the block before
/// each being one that has just been dealt.
template <ResultOf resultOf>
Law LawOfBlocks(const ListSetup& setup) {
    const std::string dealt = Dealt(setup.EqualSize, setup.GroupCount());
    const bool tested = setup.RunsTest();
    Law law;
    double all = 0;
    double passing = 0;
    std::string block = dealt;
    std::ranges::sort(block);
    do {
        ++all;
        // In the sample with the Runs test only four runs have a P value above the level.
        if (!tested || RunsOf(block) == 4) {
            ++passing;
            ++law.Results[resultOf(block, dealt)].Right;
        }
    } while (std::ranges::next_permutation(block).found);
    for (auto& [result, chance] : law.Results)
        chance = {chance.Right / passing, tested ? chance.Right / all : 0};
    if (!tested)
        law.Results[resultOf(dealt, dealt)].Faulty = 1;
    law.Freedom = static_cast<double>(law.Results.size()) - 1;
    return law;
}

template <ResultOf resultOf>
void CountBlocks(const Sample& sample, const Use& use) {
    const std::string dealt = Dealt(sample.Setup.EqualSize, sample.Setup.GroupCount());
    for (const LongList& list : sample.Lists)
        for (auto block = list.Blocks.begin(); block != list.Blocks.end(); ++block)
            use(resultOf(*block, block == list.Blocks.begin() ? dealt : *(block - 1)));
}

/// The law of the sizes of blocks, or of each place of a code: the two ends are half as likely as each result
/// between them. In draws with the fault they are as likely.
Law HalfAtTheEnds(const ListSetup& setup) {
    const bool areSizes = setup.Blocks == BlockOption::Listed;
    const std::string sizes(setup.ListedSizes.begin(), setup.ListedSizes.end());
    const std::string results = areSizes ? sizes : CharactersOf(setup.Characters);
    const double places = areSizes ? 1 : setup.CodeLength;
    const auto count = static_cast<double>(results.size());
    Law law;
    for (std::size_t place = 0; static_cast<double>(place) < places; ++place)
        for (const char result : results) {
            const bool isEnd = result == results.front() || result == results.back();
            const double right = (isEnd ? 0.5 : 1) / (count - 1);
            law.Results[Placed(place, result)] = {right / places, 1 / count / places};
        }
    law.Freedom = places * (count - 1);
    return law;
}

Law LawOfPositions(const ListSetup& setup) {
    Law law;
    const double size = setup.EqualSize;
    const double groups = setup.GroupCount();
    for (std::size_t position = 0; position < static_cast<std::size_t>(setup.EqualSize); ++position)
        for (const char group : Dealt(setup.GroupCount(), setup.GroupCount())) {
            const double faulty = group == 'A' ? 0 : group == 'B' ? 2 : 1;
            law.Results[Placed(position, group)] = {1 / groups / size, faulty / groups / size};
        }
    // Each block contains each group equally often, so one position follows from the others.
    law.Freedom = (size - 1) * (groups - 1);
    law.Factor = (size - 1) / size;
    return law;
}

/// Counts each letter of the blocks or of the codes with its place.
template <std::vector<std::string> LongList::*texts>
void CountLetters(const Sample& sample, const Use& use) {
    for (const LongList& list : sample.Lists)
        for (const std::string& text : list.*texts)
            for (std::size_t place = 0; place < text.size(); ++place)
                use(Placed(place, text[place]));
}

Law NothingTwice(const ListSetup& /*setup*/) {
    return {.Results = {{"new", {1, 0}}}};
}

void CountLists(const Sample& sample, const Use& use) {
    std::set<std::vector<std::string>> lists;
    for (const LongList& list : sample.Lists)
        use(lists.insert(list.Blocks).second ? "new" : "again");
}

/// The share of faulty draws that shifts the counts so far that chi-square passes `limit`, or that shows by a
/// result that is impossible, whichever is smaller.
double SmallestShare(const Law& law, double draws, double limit) {
    double shift = 0; // of Pearson's statistic by each draw, when all are faulty
    double impossible = 1;
    for (const auto& [result, chance] : law.Results) {
        shift += law.Factor * std::pow(chance.Faulty - chance.Right, 2) / chance.Right;
        impossible -= chance.Faulty;
    }
    using boost::math::non_central_chi_squared;
    const double needed = non_central_chi_squared::find_non_centrality(law.Freedom, limit, Missed);
    const double share = std::sqrt(needed / (draws * shift));
    constexpr double rounding = 1e-6;
    return impossible < rounding ? share : std::min(share, (1 - std::pow(Missed, 1 / draws)) / impossible);
}

enum SampleKind : std::size_t {
    OfFour,
    OfSix,
    OfSixInThree,
    OfTwelve,
    OfTwenty,
    OfSizes,
    OfTested,
    OfStarts
};

/// As many equal blocks as a list can have.
ListSetup Blocks(int size, const std::vector<std::string>& groups, Alphabet characters, bool randomCodes) {
    ListSetup setup;
    setup.Blocks = BlockOption::Equal;
    setup.EqualSize = size;
    setup.SampleSize = (32767 / size - 1) * size; // there is always one block more than fits into it
    setup.Groups = groups;
    setup.Characters = characters;
    setup.RandomCodes = randomCodes;
    setup.CodeLength = 10;
    return setup;
}

/// The samples in the order of SampleKind, without their lists.
std::vector<Sample> Designs() {
    ListSetup listed = Blocks(4, {"A", "B"}, Alphabet::Digits, false);
    listed.Blocks = BlockOption::Listed;
    listed.ListedSizes = {4, 6, 8, 10, 12};
    listed.ListedSizesText = "4,6,8,10,12";
    listed.SampleSize = 32767 - listed.ListedSizes.back();
    ListSetup tested = Blocks(6, {"A", "B"}, Alphabet::Digits, false);
    tested.Level = "0.3";
    ListSetup oneBlock;
    oneBlock.SampleSize = 60;
    return {
        {Blocks(4, {"A", "B"}, Alphabet::Mixed, true), 50, 6},
        {Blocks(6, {"A", "B"}, Alphabet::Letters, true), 50, 6},
        {Blocks(6, {"A", "B", "C"}, Alphabet::Digits, true), 50, 6},
        {Blocks(12, {"A", "B", "C", "D"}, Alphabet::Digits, false), 24, 4},
        {Blocks(20, {"A", "B"}, Alphabet::Digits, false), 30, 6},
        {listed, 15, 3},
        {tested, 16, 5},
        {oneBlock, 6, 3},
    };
}

LongList KeptOf(const MadeList& list) {
    if (!list.Readable() || !list.Unreadable.empty())
        throw std::runtime_error("a list could not be made or read: " + list.NotMade + list.Unreadable);
    LongList kept;
    for (const std::vector<Subject>& block : list.Blocks) {
        std::string& groups = kept.Blocks.emplace_back();
        for (const Subject& subject : block) {
            groups += static_cast<char>('A' + subject.Group - 1);
            if (list.Setup.RandomCodes)
                kept.Codes.push_back(subject.Code);
        }
    }
    return kept;
}

std::vector<Sample> MakeSamples(Session& session, const std::filesystem::path& library, const Scale& scale) {
    std::vector<Sample> samples = Designs();
    for (std::size_t kind = 0; kind < samples.size(); ++kind) {
        Sample& sample = samples[kind];
        sample.Setup.Number = 101 + static_cast<int>(kind); // behind the other lists of the record
        sample.Setup.Output = Form::Clipboard;              // faster than a file
        sample.Setup.Columns = 1;
        for (int list = 0; list < scale.Of(sample.FullLists, sample.QuickLists); ++list) {
            if (kind == OfStarts)
                session.Restart(sample.Setup, WithStandingClock(library));
            else if (list == 0)
                session.Restart(sample.Setup);
            sample.Lists.push_back(KeptOf(session.Make(sample.Setup)));
        }
    }
    session.Stop();
    return samples;
}

std::vector<Verdict> JudgeAll(Evidence& evidence, const std::vector<Sample>& samples) {
    std::vector<Verdict> verdicts;
    std::vector<Row> rows;
    double alarms = 0;
    for (const Statistic& statistic : AllStatistics()) {
        const Sample& sample = samples.at(statistic.Kind);
        const double freedom = statistic.LawOf(sample.Setup).Freedom;
        const Verdict verdict = Judge(statistic, sample);
        const std::string draws = QLocale(QLocale::English).toString(verdict.Draws).toStdString();
        rows.push_back({statistic.Hypothesis, draws + " " + statistic.Unit,
                        freedom == 0 ? "none may occur" : std::to_string(std::lround(freedom)),
                        QString::number(verdict.Value, 'f', 1).toStdString(), Significant(verdict.PValue),
                        ShareText(verdict.SmallestShare, *statistic.Fault)});
        alarms += freedom == 0 ? 0 : FalseAlarm;
        verdicts.push_back(verdict);
    }
    evidence.Table({"Hypothesis", "Sample", "Degrees of freedom", "Chi-square", "P value",
                    "Smallest fault found with 99 per cent"},
                   rows, "The program's random choices, with the entropy of this machine");
    evidence.Paragraph(
        "A statistic fails at a P value of " + Significant(FalseAlarm) +
        " or less, in the upper tail. A right program fails any of them with a probability of " +
        Significant(alarms) +
        ", the sum over all; with the error of the chi-square approximation, "
        "below 1e-06. Equal lists by chance are rarer than 1e-15 and left out. At the smallest "
        "fault, a share of faulty draws, the statistic fails with a probability of 99 per cent.");
    evidence.Paragraph(
        "No sample finds fewer exchanges than there should be, such as 10 N for a block of N: each "
        "group is then already equally likely at each position to within 0.01 per cent. The known "
        "keys of chapter 4 find it.");
    evidence.Demand(alarms > 0 && alarms < 5e-7, "the false alarms are too likely");
    return verdicts;
}

} // namespace

const std::vector<Statistic>& AllStatistics() {
    static const std::vector<Statistic> all = {
        {"ASG-3.1", "Each arrangement of a block of 4 in 2 groups is equally likely", OfFour,
         LawOfBlocks<Arrangement>, CountBlocks<Arrangement>, "blocks", &LeftAsDealt},
        {"ASG-3.2", "Each arrangement of a block of 6 in 2 groups is equally likely", OfSix,
         LawOfBlocks<Arrangement>, CountBlocks<Arrangement>, "blocks", &LeftAsDealt},
        {"ASG-3.3", "Each arrangement of a block of 6 in 3 groups is equally likely", OfSixInThree,
         LawOfBlocks<Arrangement>, CountBlocks<Arrangement>, "blocks", &LeftAsDealt},
        {"ASG-4.1", "Each of 4 groups is equally likely at each position of a block of 12", OfTwelve,
         LawOfPositions, CountLetters<&LongList::Blocks>, "positions", &GivenToB},
        {"ASG-5.1", "The runs of a block of 20 in 2 groups have the law of Wald and Wolfowitz", OfTwenty,
         LawOfBlocks<Runs>, CountBlocks<Runs>, "blocks", &LeftAsDealt},
        {"BLK-5.1", "Of the sizes 4, 6, 8, 10, 12 the ends are half as likely as the others", OfSizes,
         HalfAtTheEnds, CountBlocks<Size>, "blocks", &LevelSizes},
        {"COD-4.1", "At each place of a code A and Z are half as likely as the other letters", OfSix,
         HalfAtTheEnds, CountLetters<&LongList::Codes>, "characters", &LevelCharacters},
        {"COD-4.2", "At each place of a code 0 and 9 are half as likely as the other digits", OfSixInThree,
         HalfAtTheEnds, CountLetters<&LongList::Codes>, "characters", &LevelCharacters},
        {"COD-4.3", "At each place of a mixed code 0 and Z are half as likely as the others", OfFour,
         HalfAtTheEnds, CountLetters<&LongList::Codes>, "characters", &LevelCharacters},
        {"CON-3.1", "A block of 6 in 2 groups agrees with the one before as often as by chance", OfSix,
         LawOfBlocks<Agreement>, CountBlocks<Agreement>, "blocks", &CopiedBlock},
        {"CON-3.2", "Starts at the same time of day never make equal lists", OfStarts, NothingTwice,
         CountLists, "lists", &RepeatedList},
        {"RUN-2.2", "Of the blocks of 6 only the 8 that pass the Runs test at 0.3 occur, equally often",
         OfTested, LawOfBlocks<Arrangement>, CountBlocks<Arrangement>, "blocks", &NotTested},
    };
    return all;
}

std::string Dealt(int size, int groups) {
    std::string block;
    for (int position = 0; position < size; ++position)
        block += static_cast<char>('A' + position % groups);
    return block;
}

std::string Significant(double value) {
    return QString::number(value, 'g', 2).toStdString();
}

Verdict Judge(const Statistic& statistic, const Sample& sample) {
    const Law law = statistic.LawOf(sample.Setup);
    std::map<std::string, std::int64_t> seen;
    Verdict verdict;
    statistic.Count(sample, [&](const std::string& result) {
        ++seen[result];
        ++verdict.Draws;
    });
    const auto draws = static_cast<double>(verdict.Draws);
    for (const auto& [result, chance] : law.Results) {
        const double expected = chance.Right * draws;
        verdict.Value += law.Factor * std::pow(static_cast<double>(seen[result]) - expected, 2) / expected;
    }
    verdict.PValue = seen.size() > law.Results.size() ? 0 : 1; // an impossible result
    if (law.Freedom > 0) {
        const boost::math::chi_squared tail(law.Freedom);
        verdict.PValue *= cdf(complement(tail, verdict.Value));
        verdict.SmallestShare = SmallestShare(law, draws, quantile(complement(tail, FalseAlarm)));
    }
    verdict.Passed = verdict.PValue > FalseAlarm;
    return verdict;
}

std::vector<Sample> CheckStatistics(Record& record, Session& session, const std::filesystem::path& library,
                                    const Scale& scale) {
    std::vector<Sample> samples;
    std::vector<Verdict> verdicts(AllStatistics().size());
    record.Run("ASG-6.1", "Every random choice has the documented distribution", Chapter::Statistics,
               [&](Evidence& evidence) {
                   samples = MakeSamples(session, library, scale);
                   verdicts = JudgeAll(evidence, samples);
               });
    for (std::size_t i = 0; i < verdicts.size(); ++i)
        record.Run(AllStatistics()[i].Identifier, AllStatistics()[i].Hypothesis, Chapter::Statistics,
                   [&](Evidence& evidence) {
                       evidence.Demand(verdicts[i].Passed, "P value " + Significant(verdicts[i].PValue));
                   });
    return samples;
}

} // namespace orvane::validation
