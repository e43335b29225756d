// The Runs test: published figures, P values, blocks that cannot pass, and the message after a list.
#include "engine/generation.h"
#include "engine/numbers.h"
#include "engine/runs_test.h"
#include "validation/figures.h"
#include "validation/known_answers_options.h"
#include "validation/known_answers_parts.h"
#include "validation/statistics_program.h"
#include "validation/statistics_samples.h"

#include <algorithm>

namespace orvane::validation {
namespace {

std::vector<std::int16_t> NumbersOf(const std::string& letters) {
    std::vector<std::int16_t> numbers;
    for (const char letter : letters)
        numbers.push_back(static_cast<std::int16_t>(letter - 'A' + 1));
    return numbers;
}

std::string Counts(const RunsCounts& counts) {
    return std::to_string(counts.n0) + " and " + std::to_string(counts.n1) + ", " +
           std::to_string(counts.runs) + " runs";
}

void CompareStatistics(Evidence& evidence) {
    const struct {
        const char* Block;
        RunsCounts Counts;
        const char* Z; ///< with the published number of decimals
        int Decimals;
        const char* Source;
    } rows[] = {
        {"BBBAABABABBBABAB",
         {6, 10, 11},
         "1.38675",
         5,
         "formula of Wald and Wolfowitz 1940, groups of 6 and 10, 11 runs"},
        {"AAAAABBBBBBCCCCCCCC",
         {11, 8, 2},
         "-4.0071",
         4,
         "formula of Wald and Wolfowitz 1940, groups of 11 and 8, 2 runs"},
        {"AAABABBAABBAABBAAABABBBAA",
         {14, 11, 13},
         "-0.13275",
         5,
         "formula of Wald and Wolfowitz 1940, groups of 14 and 11, 13 runs"},
        {"ABBA", {2, 2, 3}, "0.0000000", 7, "formula of Wald and Wolfowitz 1940, groups of 2, 3 runs"},
        {"AABB", {2, 2, 2}, "-1.2247449", 7, "formula of Wald and Wolfowitz 1940, groups of 2, 2 runs"},
        {"ABAB", {2, 2, 4}, "1.2247449", 7, "formula of Wald and Wolfowitz 1940, groups of 2, 4 runs"},
        {"ABCABC", {2, 4, 4}, "0.35355", 5, "worked by hand: the middle group counts with the upper one"},
    };
    for (const auto& row : rows) {
        const RunsCounts counts = CountRuns(NumbersOf(row.Block));
        evidence.Compare(std::string("Below and above the mean of ") + row.Block, Counts(row.Counts),
                         Counts(counts), ByHand);
        const double z = RunsStatistic(counts);
        evidence.Compare(std::string("Statistic of ") + row.Block, row.Z,
                         Fixed(z == 0 ? 0.0 : z, row.Decimals), row.Source);
    }
}

void ComparePValues(Evidence& evidence) {
    const struct {
        const char* Block;
        const char* P;
        int Decimals;
        const char* Source;
    } rows[] = {
        {"ABBA", "0.3989423", 7, "normal density at 0"},
        {"AABB", "0.1884470", 7, "formula of Wald and Wolfowitz 1940, two groups of 2, 2 runs"},
        {"ABAB", "0.1884470", 7, "formula of Wald and Wolfowitz 1940, two groups of 2, 4 runs"},
        {"AAAAABBBBB", "0.0109006", 7, "formula of Wald and Wolfowitz 1940, two groups of 5, 2 runs"},
        {"ABABABABAB", "0.0109006", 7, "formula of Wald and Wolfowitz 1940, two groups of 5, 10 runs"},
        {"AABBAABABB", "0.3989423", 7, "formula of Wald and Wolfowitz 1940, two groups of 5, 6 runs"},
        {"AAB", "0.3107", 4, "worked by hand: groups of 2 and 1, 2 runs"},
        {"ABA", "0.1468", 4, "worked by hand: groups of 2 and 1, 3 runs"},
    };
    KeptMessages messages;
    for (const auto& row : rows)
        evidence.Compare(std::string("P value of ") + row.Block, row.P,
                         Fixed(GetRandomness(NumbersOf(row.Block), messages), row.Decimals), row.Source);
    evidence.Demand(messages.Shown.empty(), "A message was shown with a P value.");
}

/// Calculates the P value of all arrangements of some blocks independently of the program.
void CompareAllArrangements(Evidence& evidence) {
    KeptMessages messages;
    for (const std::string block : {"AABB", "AAABBB", "AABBCC", "AAAABBBB", "ABCDE", "AAABBCC"}) {
        std::string arrangement = block;
        int all = 0;
        int equal = 0;
        do {
            const double p = GetRandomness(NumbersOf(arrangement), messages);
            ++all;
            equal += std::abs(p - RunsDensity(arrangement)) < 1e-6 ? 1 : 0;
        } while (std::next_permutation(arrangement.begin(), arrangement.end()));
        evidence.Compare("P values of the arrangements of " + block + " that are equal to 6 decimals",
                         std::to_string(all), std::to_string(equal),
                         "calculated independently from the definition");
    }
}

void CompareHopelessBlocks(Evidence& evidence) {
    const auto refusal = [](const std::string& size, const std::string& level) {
        return "a block of " + size + " subjects cannot pass the Runs test at level " + level +
               ", please choose other blocks, a lower level or no Runs test";
    };
    const struct {
        const char* What;
        std::int16_t SampleSize;
        Texts Names;
        float Level;
        std::string Message;
    } rows[] = {
        {"A block of 1", 1, {"A", "B"}, 0.05F, refusal("1", "0.05")},
        {"A block of 2", 2, {"A", "B"}, 0.05F, refusal("2", "0.05")},
        {"A block of 20 whose groups have one name",
         20,
         {"A", "A"},
         0.05F,
         "a block of 20 subjects cannot pass the Runs test since all its groups have the same name, please "
         "give the groups different names"},
        {"A block of 4, one against three, at level 0.25",
         4,
         {"A", "B", "B", "B"},
         0.25F,
         refusal("4", "0.25")},
        {"The same at level 0.24", 4, {"A", "B", "B", "B"}, 0.24F, ""},
        {"A block of 4 in two groups at level 0.3", 4, {"A", "B"}, 0.3F, ""},
    };
    for (const auto& row : rows) {
        ListSettings settings = ValidSettings(static_cast<std::int16_t>(row.Names.size()), row.SampleSize);
        settings.PerformRuns = true;
        settings.SigLevel = row.Level;
        evidence.Compare(
            row.What, row.Message.empty() ? "accepted" : row.Message,
            [&] {
                const OkResult result = PressOk(settings, SevenDigits(row.Level), {}, row.Names);
                return result.Sizes.empty() ? result.Messages : "accepted";
            }(),
            ByHand);
    }
}

class ClosedByOk : public OptionsWindow {
  public:
    void ShowModal() override {}
};

class NoBox : public SampleSizeBox {
  public:
    [[nodiscard]] std::string Text() const override { return ""; }
    void SetFocus() override {}
};

/// An output channel that sets these P values as the results of a list.
class KnownPValues : public OutputChannels {
  public:
    KnownPValues(ListResults& results, float lowest, float highest)
        : results_(results), lowest_(lowest), highest_(highest) {}
    void OutputToFile() override {
        results_.MinPValue = lowest_;
        results_.MaxPValue = highest_;
    }
    void OutputToWindow() override {}
    void OutputToClipBoard() override {}

  private:
    ListResults& results_;
    float lowest_;
    float highest_;
};

std::string MessageAfter(float lowest, float highest) {
    ListedValues source;
    MemoryList list(source, {"A", "B"});
    list.Settings = ValidSettings(2, 4);
    list.Settings.PerformRuns = true;
    list.Results.BlockSizes = {0, 4};
    ClosedByOk options;
    NoBox box;
    KnownPValues channels(list.Results, lowest, highest);
    Generation(list.Settings, list.Results, options, channels, box, list.Desktop.All).cmdGenerate_Click();
    return list.Desktop.Messages.Take();
}

/// Compares the smallest and largest P value of a list with values calculated independently from its blocks.
void CompareExtremes(Evidence& evidence) {
    KnownEntropy entropy;
    RandomSource source(entropy);
    MemoryList list(source, {"A", "B"});
    list.Settings.Columns = 1;
    list.Settings.PerformRuns = true;
    list.Settings.SigLevel = 0.05F;
    list.Results.CodeArr.assign(20, "code");
    list.Results.MinPValue = 1;
    list.Results.MaxPValue = 0;
    double lowest = 1;
    double highest = 0;
    for (int block = 0; block < 20; ++block) {
        Texts groups(20);
        Texts codes(20);
        list.Builder.BuildSequenceArr(groups, codes, 0);
        std::string arrangement;
        for (const std::string& group : groups)
            arrangement += group;
        lowest = std::min(lowest, RunsDensity(arrangement));
        highest = std::max(highest, RunsDensity(arrangement));
    }
    evidence.Compare("Smallest P value of 20 blocks of 20", Fixed(lowest, 5),
                     Fixed(list.Results.MinPValue, 5), "calculated anew from the blocks");
    evidence.Compare("Largest P value of 20 blocks of 20", Fixed(highest, 5),
                     Fixed(list.Results.MaxPValue, 5), "calculated anew from the blocks");
    evidence.Compare("Message after a list with P values from 0.188447 to 0.3989423",
                     "Runs test: | Minimum P value = 0.1884 | Maximum P value = 0.3989",
                     MessageAfter(0.188447F, 0.3989423F), ByHand);
    evidence.Compare("Message after a list of one P value, 0.31069", "P value of Runs test = 0.3107",
                     MessageAfter(0.31069F, 0.31069F), ByHand);
    evidence.Paragraph("In the messages \" | \" stands for a line end.");
}

} // namespace

void CheckKnownRunsTests(Record& record) {
    RunKnown(record, "RUN-1.1", "Published figures of the Runs test", CompareStatistics);
    RunKnown(record, "RUN-1.2", "P values of known sequences", ComparePValues);
    RunKnown(record, "RUN-1.3", "P values of all arrangements of a block", CompareAllArrangements);
    RunKnown(record, "RUN-3.1", "Blocks that cannot pass the Runs test", CompareHopelessBlocks);
    RunKnown(record, "RUN-4.1", "The message with the P values", CompareExtremes);
}

} // namespace orvane::validation
