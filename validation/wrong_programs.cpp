#include "validation/wrong_programs.h"

#include "platform/linux/linux_clock.h"
#include "platform/linux/linux_entropy.h"
#include "validation/figures.h"
#include "validation/statistics_samples.h"
#include "validation/wrong_programs_model.h"

#include <functional>
#include <string>
#include <vector>

namespace orvane::validation {
namespace {

/// The statistics applied to one faulty program.
class Trial {
  public:
    explicit Trial(Fault fault) : Program(entropy_, clock_, fault) {}

    void Judge(const Sample& sample) { Note(sample.Text, JudgeCounts(sample)); }
    void Note(const std::string& sample, const Verdict& verdict) {
        rows_.push_back({sample, verdict.Statistic, Fixed(verdict.Value, 2), PValueText(verdict.PValue),
                         verdict.Acceptance, verdict.Passed ? "NOT FOUND" : "found"});
        if (verdict.Passed)
            missed_.push_back(sample);
    }
    void Show(Evidence& evidence) const {
        evidence.Table({"Sample", "Statistic", "Value", "P value", "Accepted", "The fault was"}, rows_);
        evidence.Demand(!rows_.empty(), "No statistic was applied.");
        for (const std::string& sample : missed_)
            evidence.Demand(false, "The fault was not found in " + sample);
    }

  private:
    LinuxEntropy entropy_;
    LinuxClock clock_;
    std::vector<Row> rows_;
    std::vector<std::string> missed_;

  public:
    ModelProgram Program;
};

struct WrongProgram {
    std::string Identifier;
    std::string Title;
    Fault Wrong;
    std::function<void(Trial&)> TryStatistics;
};

constexpr int Blocks = 20'000;

ListSettings SizesOf(BlockOptions option) {
    ListSettings settings;
    settings.SampleSize = 100;
    settings.prBlockOption = option;
    settings.prUnEqBlockSize = "4,6,8,10,12";
    return settings;
}

void TryBlocks(Trial& trial) {
    trial.Judge(Arrangements(trial.Program, 4, 2, Blocks));
    trial.Judge(Arrangements(trial.Program, 6, 2, Blocks));
    trial.Judge(Arrangements(trial.Program, 6, 3, Blocks));
    trial.Judge(Arrangements(trial.Program, 5, 5, Blocks));
    trial.Judge(GroupsByPosition(trial.Program, 12, 4, Blocks));
    trial.Judge(RunsOfBlocks(trial.Program, 20, Blocks));
    trial.Judge(Arrangements(trial.Program, 8, 2, Blocks, 0.1F));
}

void TryUnevenBlocks(Trial& trial) {
    constexpr int fewer = Blocks / 4;
    trial.Judge(Arrangements(trial.Program, 4, 2, fewer));
    trial.Judge(Arrangements(trial.Program, 6, 2, fewer));
    trial.Judge(Arrangements(trial.Program, 6, 3, fewer));
    trial.Judge(GroupsByPosition(trial.Program, 12, 4, fewer));
}

void TryDraws(Trial& trial) {
    constexpr int draws = 100'000;
    trial.Judge(Draws(trial.Program, 1, 4, draws));
    trial.Judge(Draws(trial.Program, 0, 35, draws));
    trial.Judge(Draws(trial.Program, 65, 90, draws));
    for (const CodeAlphabets alphabet : {Alpha, Numeric, Mixed})
        trial.Judge(CharactersOfCodes(trial.Program, alphabet, 20));
    trial.Judge(BlockSizesOf(trial.Program, SizesOf(RandomSizesOf), {4, 6, 8, 10, 12}, draws));
    trial.Judge(
        BlockSizesOf(trial.Program, SizesOf(RandomBlockSize), {20, 22, 24, 26, 28, 30, 32, 34}, draws));
}

void TryTruncatedDraws(Trial& trial) {
    trial.Judge(Draws(trial.Program, 0, 1, 100'000));
    TryDraws(trial);
}

/// Applies one of the three statistics of the bits of the source.
std::function<void(Trial&)> TryBits(std::size_t which) {
    return [which](Trial& trial) { trial.Judge(BitsOfValues(trial.Program, 200'000).at(which)); };
}

void TryRepetition(Trial& trial) {
    constexpr int lists = 1'000;
    trial.Note("1,000 lists of one block of 30 in 6 groups",
               JudgeNone("Equal pairs of lists", EqualPairs(trial.Program, 30, 6, lists),
                         ExpectedEqualPairs(30, 6, lists)));
    trial.Note("1,000 blocks of 12 in 4 groups",
               JudgeRareEvents("Equal pairs of blocks", EqualPairs(trial.Program, 12, 4, lists),
                               ExpectedEqualPairs(12, 4, lists)));
}

void TryNeighbours(Trial& trial) {
    trial.Judge(AgreementOfNeighbours(trial.Program, 12, Blocks));
}

void TryTestedBlocks(Trial& trial) {
    trial.Judge(Arrangements(trial.Program, 8, 2, Blocks, 0.1F));
}

void TryCodes(Trial& trial) {
    trial.Note("20 lists of 500 mixed codes of 3 characters",
               JudgeNone("Repeated codes", RepeatedCodes(trial.Program, 3, 500, 20), 0));
}

std::vector<WrongProgram> WrongPrograms() {
    return {
        {"ASG-3.51", "A shuffle of N exchanges instead of 10 N N", Fault::FewExchanges, TryBlocks},
        {"ASG-4.51", "A block with unequal groups", Fault::UnevenDeal, TryUnevenBlocks},
        {"ASG-6.51", "Draws that are remainders", Fault::RemainderDraws, TryDraws},
        {"ASG-6.52", "Draws with uniform ends", Fault::UniformEnds, TryDraws},
        {"ASG-6.53", "Draws that are cut off instead of rounded", Fault::TruncatedDraws, TryTruncatedDraws},
        {"CON-1.51", "A random source that gives remainders", Fault::RemainderValues, TryBits(0)},
        {"CON-1.52", "A random source of 16 bits", Fault::CoarseValues, TryBits(1)},
        {"CON-1.53", "A random source that gives every value twice", Fault::DoubledValues, TryBits(2)},
        {"CON-3.51", "Lists that are repeated: a source that always starts from the same key",
         Fault::RepeatedList, TryRepetition},
        {"CON-3.52", "A source that starts from one of 256 keys", Fault::FewKeys, TryRepetition},
        {"CON-3.53", "Blocks that start from the previous block", Fault::ContinuedBlocks, TryNeighbours},
        {"RUN-2.51", "Blocks that are used without regard to the Runs test", Fault::IgnoredRunsTest,
         TryTestedBlocks},
        {"COD-1.51", "A code used twice", Fault::RepeatedCode, TryCodes},
    };
}

} // namespace

void CheckStatisticsChecks(Record& record, const Scale& /*scale*/) {
    for (const WrongProgram& wrong : WrongPrograms())
        record.Run(wrong.Identifier, wrong.Identifier.substr(0, wrong.Identifier.find('.')), wrong.Title,
                   Chapter::ChecksOfChecks, [&](Evidence& evidence) {
                       Trial trial(wrong.Wrong);
                       wrong.TryStatistics(trial);
                       trial.Show(evidence);
                   });
}

} // namespace orvane::validation
