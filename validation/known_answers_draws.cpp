// The group counts of a block, single draws, and whole blocks calculated by a second program from the same
// key.
#include "engine/block_shuffle.h"
#include "engine/random_draws.h"
#include "validation/figures.h"
#include "validation/known_answers_parts.h"
#include "validation/wrong_programs_model.h"

namespace orvane::validation {
namespace {

void CompareDeal(Evidence& evidence, int size, int groups, const std::string& dealt) {
    std::string observed;
    for (const std::uint8_t group :
         DealGroups(static_cast<std::size_t>(size), static_cast<std::int16_t>(groups)))
        observed += static_cast<char>('A' + group - 1);
    evidence.Compare("Block of " + std::to_string(size) + " with " + std::to_string(groups) + " groups",
                     dealt, observed, ByHand);
}

/// How often each group occurs in a block that the program has drawn.
std::string GroupCounts(const Arrangement& block, int groups) {
    std::vector<int> counts(static_cast<std::size_t>(groups));
    for (const char letter : block)
        ++counts[static_cast<std::size_t>(letter - 'A')];
    return Listed(counts);
}

void CompareDrawnCounts(Evidence& evidence, int size, int groups, const std::string& counts) {
    KnownEntropy entropy;
    StoppedClock clock;
    DeliveredProgram program(entropy, clock);
    for (int i = 0; i < 100; ++i) {
        const std::string drawn = GroupCounts(program.Block(size, groups, 0), groups);
        evidence.Demand(drawn == counts, "The groups occur " + drawn + " times in a drawn block.");
    }
    evidence.Compare("Subjects of each group in 100 drawn blocks of " + std::to_string(size), counts,
                     GroupCounts(program.Block(size, groups, 0), groups), ByHand);
}

void CompareDraws(Evidence& evidence) {
    const struct {
        std::int16_t Lo, Hi;
        const char* Value;
        float U;
        std::int16_t Drawn;
    } rows[] = {
        {1, 4, "0", 0, 1},
        {1, 4, "0.1", 0.1F, 1},
        {1, 4, "0.25", 0.25F, 2},
        {1, 4, "the highest below 1", 0x1.fffffep-1F, 4},
        {1, 1, "0.7", 0.7F, 1},
        {0, 1, "0.5", 0.5F, 0},
        {0, 1, "0.50001", 0.50001F, 1},
        {0, 3, "0.5", 0.5F, 2},
        {65, 90, "0.5", 0.5F, 77},
        {0, 35, "the highest below 1", 0x1.fffffep-1F, 35},
        {1, 14654, "0.5", 0.5F, 7327},
    };
    for (const auto& row : rows) {
        ListedValues source({row.U});
        evidence.Compare("Draw from " + std::to_string(row.Lo) + " to " + std::to_string(row.Hi) +
                             " with the random value " + row.Value,
                         std::to_string(row.Drawn), std::to_string(DrawRandomInt(source, row.Lo, row.Hi)),
                         ByHand);
    }
}

/// A block ABC and the first exchanges of its shuffle. All later exchanges exchange position 1 with itself.
void CompareExchanges(Evidence& evidence) {
    const struct {
        const char* Exchanges;
        std::vector<int> Positions;
        const char* Block;
    } rows[] = {
        {"1 with 3", {1, 3}, "CBA"},
        {"1 with 2, then 2 with 3", {1, 2, 2, 3}, "BCA"},
        {"2 with 3, then 1 with 2", {2, 3, 1, 2}, "CAB"},
        {"2 with 2", {2, 2}, "ABC"},
    };
    for (const auto& row : rows) {
        std::vector<float> values;
        for (const int position : row.Positions)
            values.push_back(ValueFor(1, 3, position));
        ListedValues source(values);
        std::vector<std::uint8_t> groups = DealGroups(3, 3);
        ShuffleBlock(source, groups);
        std::string block;
        for (const std::uint8_t group : groups)
            block += static_cast<char>('A' + group - 1);
        evidence.Compare(std::string("Block ABC, exchanges of the positions ") + row.Exchanges, row.Block,
                         block, ByHand);
    }
}

/// The delivered program and a second one, written independently from the documented rules, with the same key
/// and time.
struct TwoPrograms {
    KnownEntropy Entropy;
    KnownEntropy SameEntropy;
    StoppedClock Clock;
    ModelProgram Model{SameEntropy, Clock, Fault::None};
    DeliveredProgram Delivered{Entropy, Clock};
};

void CompareWithModel(Evidence& evidence, const std::string& what, int times,
                      const std::function<std::string(DrawingProgram&)>& draw) {
    TwoPrograms programs;
    int equal = 0;
    std::string expected;
    std::string observed;
    for (int i = 0; i < times; ++i) {
        expected = draw(programs.Model);
        observed = draw(programs.Delivered);
        equal += expected == observed ? 1 : 0;
    }
    evidence.Compare(Grouped(times) + ' ' + what + ", equal", Grouped(times), Grouped(equal),
                     "a second program from the same key");
    evidence.Compare("The last of them", expected, observed, "a second program from the same key");
}

void CompareBlocksWithModel(Evidence& evidence) {
    const struct {
        int Size;
        int Groups;
        float Level;
        int Times;
    } rows[] = {{4, 2, 0, 300}, {6, 3, 0, 300},     {12, 4, 0, 100}, {20, 2, 0.05F, 100},
                {7, 3, 0, 100}, {16, 16, 0.1F, 50}, {60, 2, 0, 20}};
    for (const auto& row : rows) {
        std::string what =
            "blocks of " + std::to_string(row.Size) + " with " + std::to_string(row.Groups) + " groups";
        if (row.Level > 0)
            what += " and the Runs test at level " + Significant(row.Level, 2);
        CompareWithModel(evidence, what, row.Times, [&](DrawingProgram& program) {
            return program.Block(row.Size, row.Groups, row.Level);
        });
    }
}

void CompareSizesAndCodesWithModel(Evidence& evidence) {
    ListSettings settings;
    settings.NumberOfGroups = 2;
    settings.SampleSize = 100;
    settings.prBlockOption = RandomSizesOf;
    settings.prUnEqBlockSize = "4,6,8,10,12";
    const auto sizes = [&](DrawingProgram& program) { return Listed(program.BlockSizes(settings)); };
    CompareWithModel(evidence, "lists of block sizes out of 4,6,8,10,12", 100, sizes);
    settings.prBlockOption = RandomBlockSize;
    CompareWithModel(evidence, "lists of random block sizes", 100, sizes);
    for (const CodeAlphabets alphabet : {Alpha, Numeric, Mixed})
        CompareWithModel(evidence, "lists of 30 random codes of 3 characters", 20,
                         [&](DrawingProgram& program) {
                             std::string codes;
                             for (const std::string& code : program.Codes(alphabet, 3, 30))
                                 codes += (codes.empty() ? "" : " ") + code;
                             return codes;
                         });
}

} // namespace

void CheckKnownDraws(Record& record) {
    RunKnown(record, "ASG-1.1", "Group counts of blocks whose size is a multiple of the number of groups",
             [](Evidence& evidence) {
                 CompareDeal(evidence, 4, 2, "ABAB");
                 CompareDeal(evidence, 6, 3, "ABCABC");
                 CompareDeal(evidence, 16, 16, "ABCDEFGHIJKLMNOP");
                 CompareDrawnCounts(evidence, 12, 4, "3, 3, 3, 3");
             });
    RunKnown(record, "ASG-2.1", "Group counts of one block of another size", [](Evidence& evidence) {
        CompareDeal(evidence, 10, 3, "ABCABCABCA");
        CompareDeal(evidence, 17, 16, "ABCDEFGHIJKLMNOPA");
        CompareDeal(evidence, 1, 2, "A");
        CompareDrawnCounts(evidence, 10, 3, "4, 3, 3");
        CompareDrawnCounts(evidence, 11, 3, "4, 4, 3");
    });
    RunKnown(record, "ASG-6.1", "Draws from known random values", CompareDraws);
    RunKnown(record, "ASG-6.6", "Block sizes and codes, calculated by a second program",
             CompareSizesAndCodesWithModel);
    RunKnown(record, "ASG-7.1", "Blocks from known exchanges", CompareExchanges);
    RunKnown(record, "ASG-7.2", "Blocks, calculated by a second program", CompareBlocksWithModel);
}

} // namespace orvane::validation
