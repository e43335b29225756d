#include "validation/statistics.h"

#include "platform/linux/linux_clock.h"
#include "platform/linux/linux_entropy.h"
#include "validation/figures.h"
#include "validation/statistics_samples.h"

#include <string>

namespace orvane::validation {
namespace {

class StatisticsChecks {
  public:
    StatisticsChecks(Record& record, const Scale& scale) : record_(record), scale_(scale) {}

    void CheckArrangements();
    void CheckDraws();
    void CheckSource();
    void CheckBlockSizes();
    void CheckCodes();
    void CheckRepetition();
    void CheckFalseAlarms();

  private:
    template <class Body>
    void Run(const std::string& identifier, const std::string& title, Body&& body) {
        record_.Run(identifier, identifier.substr(0, identifier.find('.')), title, Chapter::Statistics, body);
    }

    void Show(Evidence& evidence, const std::string& hypothesis, const Sample& sample,
              const std::string& what) {
        alarms_ += FalseAlarm;
        ShowSample(evidence, hypothesis, sample, what);
    }
    void Show(Evidence& evidence, const std::string& hypothesis, const std::string& sample,
              const Verdict& verdict) {
        alarms_ += verdict.Alarm;
        ShowVerdict(evidence, hypothesis, sample, verdict);
    }

    /// Checks all arrangements of one kind of block.
    void CheckArrangementsOf(const std::string& identifier, int size, int groups, int blocks);

    Record& record_;
    const Scale& scale_;
    double alarms_ = 0; ///< sum of the probabilities of a false alarm so far
    LinuxEntropy entropy_;
    LinuxClock clock_;
    DeliveredProgram program_{entropy_, clock_};
};

void StatisticsChecks::CheckArrangementsOf(const std::string& identifier, int size, int groups, int blocks) {
    const std::string kind =
        "a block of " + std::to_string(size) + " with " + std::to_string(groups) + " groups";
    Run(identifier, "All arrangements of " + kind, [&](Evidence& evidence) {
        const Sample sample = Arrangements(program_, size, groups, blocks);
        Show(evidence,
             "each of the " + std::to_string(sample.Categories.size()) + " arrangements of " + kind +
                 " is equally likely",
             sample, "arrangement");
    });
}

void StatisticsChecks::CheckArrangements() {
    CheckArrangementsOf("ASG-3.1", 4, 2, scale_.Of(1'000'000, 60'000));
    CheckArrangementsOf("ASG-3.2", 6, 2, scale_.Of(1'000'000, 60'000));
    CheckArrangementsOf("ASG-3.3", 6, 3, scale_.Of(1'000'000, 60'000));
    CheckArrangementsOf("ASG-3.4", 5, 5, scale_.Of(1'000'000, 60'000));
    Run("ASG-4.1", "Group by position of a block of 12 with 4 groups", [&](Evidence& evidence) {
        Show(evidence, "at each position each of the 4 groups is equally likely",
             GroupsByPosition(program_, 12, 4, scale_.Of(1'000'000, 40'000)), "position and group");
    });
    Run("ASG-5.1", "Number of runs of a block of 20", [&](Evidence& evidence) {
        Show(evidence,
             "the number of runs of a block of 20 with 2 groups has the exact distribution of Wald and "
             "Wolfowitz (1940)",
             RunsOfBlocks(program_, 20, scale_.Of(1'000'000, 60'000)), "number of runs");
    });
    Run("RUN-2.1", "Arrangements that pass the Runs test", [&](Evidence& evidence) {
        constexpr float level = 0.1F;
        ShowSample(evidence,
                   "of the arrangements of a block of 8 with 2 groups only those with a P value above the "
                   "level occur, and each of them is equally likely",
                   Arrangements(program_, 8, 2, scale_.Of(400'000, 40'000), level), "arrangement");
    });
}

void StatisticsChecks::CheckDraws() {
    const std::pair<std::int16_t, std::int16_t> ranges[] = {{0, 1}, {1, 4}, {0, 35}, {65, 90}};
    int number = 2;
    for (const auto& [Lo, Hi] : ranges) {
        const std::string range = std::to_string(Lo) + " to " + std::to_string(Hi);
        Run("ASG-6." + std::to_string(number++), "Draws from " + range,
            [&, Low = Lo, High = Hi](Evidence& evidence) {
                Show(evidence,
                     "each value between the ends of " + range +
                         " is equally likely, and each end half as likely",
                     Draws(program_, Low, High, scale_.Of(10'000'000, 400'000)), "value");
            });
    }
}

void StatisticsChecks::CheckSource() {
    Run("CON-1.2", "Bits of the random source", [&](Evidence& evidence) {
        const int values = scale_.Of(8'000'000, 1'000'000);
        for (const Sample& sample : BitsOfValues(program_, values))
            Show(evidence, "each of the 256 combinations of these bits is equally likely", sample,
                 "combination");
    });
}

void StatisticsChecks::CheckBlockSizes() {
    ListSettings settings;
    settings.NumberOfGroups = 2;
    settings.SampleSize = 100;
    const int blocks = scale_.Of(400'000, 60'000);
    Run("BLK-5.1", "Block sizes drawn from a list", [&](Evidence& evidence) {
        settings.prBlockOption = RandomSizesOf;
        settings.prUnEqBlockSize = "4,6,8,10,12";
        ShowSample(
            evidence,
            "of the list 4,6,8,10,12 the sizes 6, 8 and 10 are equally likely, and 4 and 12 half as likely",
            BlockSizesOf(program_, settings, {4, 6, 8, 10, 12}, blocks), "block size");
    });
    Run("BLK-6.1", "Block sizes drawn at random", [&](Evidence& evidence) {
        settings.prBlockOption = RandomBlockSize;
        ShowSample(
            evidence,
            "for a sample size of 100 in 2 groups the sizes from 22 to 32 are equally likely, and 20 and "
            "34 half as likely",
            BlockSizesOf(program_, settings, {20, 22, 24, 26, 28, 30, 32, 34}, blocks), "block size");
    });
}

void StatisticsChecks::CheckCodes() {
    const struct {
        const char* Identifier;
        const char* Kind;
        std::int32_t Alphabet;
        const char* Hypothesis;
    } kinds[] = {
        {"COD-4.1", "alphabetic", Alpha, "the letters B to Y are equally likely, and A and Z half as likely"},
        {"COD-4.2", "numeric", Numeric, "the digits 1 to 8 are equally likely, and 0 and 9 half as likely"},
        {"COD-4.3", "mixed", Mixed,
         "the characters 1 to 9 and A to Y are equally likely, and 0 and Z half as likely"},
    };
    for (const auto& kind : kinds)
        Run(kind.Identifier, std::string("Characters of ") + kind.Kind + " random codes, by position",
            [&](Evidence& evidence) {
                Show(evidence, std::string("at each position of a code ") + kind.Hypothesis,
                     CharactersOfCodes(program_, kind.Alphabet, scale_.Of(1'000, 60)), "character");
            });
    Run("COD-1.1", "No random code twice in a list", [&](Evidence& evidence) {
        const int lists = scale_.Of(500, 50);
        Show(evidence, "no code occurs twice in its list, although the codes are short",
             Grouped(lists) + " lists of 500 mixed codes of 3 characters, in which chance alone would "
                              "repeat about 3 codes in each list",
             JudgeNone("Repeated codes", RepeatedCodes(program_, 3, 500, lists), 0));
    });
}

void StatisticsChecks::CheckRepetition() {
    constexpr int lists = 10'000;
    Run("CON-3.1", "10,000 lists of 30 subjects, one directly after the other", [&](Evidence& evidence) {
        const double expected = ExpectedEqualPairs(30, 6, lists);
        evidence.Paragraph("There are " + Significant(NumberOfArrangements(30, 6), 4) +
                           " arrangements, so that " + Significant(expected, 2) +
                           " equal pairs of lists are expected by chance.");
        Show(evidence, "no list is the same as an earlier one",
             "10,000 lists of one block of 30 subjects in 6 groups, made one directly after the other",
             JudgeNone("Equal pairs of lists", EqualPairs(program_, 30, 6, lists), expected));
    });
    Run("CON-3.2", "10,000 blocks of 12, one directly after the other", [&](Evidence& evidence) {
        const double expected = ExpectedEqualPairs(12, 4, lists);
        evidence.Paragraph("There are " + Grouped(static_cast<std::int64_t>(NumberOfArrangements(12, 4))) +
                           " arrangements, so that " + Fixed(expected, 2) +
                           " equal pairs of the 49,995,000 pairs are expected by chance; the number of equal "
                           "pairs follows Poisson's "
                           "distribution.");
        Show(evidence, "two blocks are equal as often as by chance",
             "10,000 blocks of 12 subjects in 4 groups, made one directly after the other",
             JudgeRareEvents("Equal pairs of blocks", EqualPairs(program_, 12, 4, lists), expected));
    });
    Run("CON-3.3", "A list gives no information about the next one", [&](Evidence& evidence) {
        ShowSample(evidence,
                   "the number of subjects with the same group in a block and in the next one has "
                   "the hypergeometric distribution of independent blocks",
                   AgreementOfNeighbours(program_, 12, scale_.Of(200'000, 60'000)), "number of subjects");
    });
}

void StatisticsChecks::CheckFalseAlarms() {
    Run("ASG-6.7", "False alarms of the statistics of the draws", [&](Evidence& evidence) {
        evidence.Paragraph(
            "The probability that a correct program fails at least one of the statistics above is at most " +
            Significant(alarms_, 2) + ", the sum of the probabilities for all of them. The limit is " +
            Significant(AllFalseAlarms, 2) + ", which allows for the error of the chi-square approximation.");
        evidence.Demand(alarms_ > 0 && alarms_ < AllFalseAlarms,
                        "The probability of a false alarm is too high.");
    });
}

} // namespace

void CheckStatistics(Record& record, const Scale& scale) {
    StatisticsChecks checks(record, scale);
    checks.CheckArrangements();
    checks.CheckDraws();
    checks.CheckSource();
    checks.CheckBlockSizes();
    checks.CheckCodes();
    checks.CheckRepetition();
    checks.CheckFalseAlarms();
}

} // namespace orvane::validation
