// The blocks of a list for each block option, and block sizes that cannot be used.
#include "validation/known_answers_options.h"
#include "validation/known_answers_parts.h"

namespace orvane::validation {
namespace {

ListSettings WithOption(ListSettings settings, BlockOptions option, const std::string& text) {
    settings.prBlockOption = option;
    (option == EqualSize ? settings.prEqBlockSize : settings.prUnEqBlockSize) = text;
    return settings;
}

std::string Kind(const ListSettings& settings) {
    return "Sample size " + std::to_string(settings.SampleSize) + ", " +
           std::to_string(settings.NumberOfGroups) + " groups";
}

void CompareOneBlock(Evidence& evidence) {
    for (const std::int16_t size : {std::int16_t{1}, std::int16_t{10}, std::int16_t{14654}})
        evidence.Compare("Sample size " + std::to_string(size), std::to_string(size),
                         PressOk(ValidSettings(3, size)).Sizes, ByHand);
}

void CompareEqualBlocks(Evidence& evidence) {
    const struct {
        std::int16_t Groups;
        std::int16_t SampleSize;
        const char* Text;
        int Blocks;
        int Size;
    } rows[] = {{2, 20, "4", 6, 4},    {2, 22, "4", 6, 4},   {2, 100, "10", 11, 10},
                {2, 100, "8", 13, 8},  {3, 3, "6", 1, 6},    {2, 20, "12abc", 2, 12},
                {2, 20, "2.5", 11, 2}, {2, 20, "3.5", 6, 4}, {2, 20, "&HA", 3, 10}};
    for (const auto& row : rows) {
        const ListSettings settings =
            WithOption(ValidSettings(row.Groups, row.SampleSize), EqualSize, row.Text);
        const std::vector<int> blocks(static_cast<std::size_t>(row.Blocks), row.Size);
        evidence.Compare(Kind(settings) + ", block size typed as " + row.Text, Listed(blocks),
                         PressOk(settings).Sizes, ByHand);
    }
}

struct DrawnRow {
    std::int16_t Groups;
    std::int16_t SampleSize;
    std::string Text;
    std::vector<float> Values; ///< the random values; all later ones are 0
    std::string Sizes;
};

void CompareDrawn(Evidence& evidence, BlockOptions option, const std::vector<DrawnRow>& rows) {
    for (const DrawnRow& row : rows) {
        const ListSettings settings = WithOption(ValidSettings(row.Groups, row.SampleSize), option, row.Text);
        const std::string list = row.Text.empty() ? "" : ", list " + row.Text;
        evidence.Compare(Kind(settings) + list, row.Sizes, PressOk(settings, "0.05", row.Values).Sizes,
                         ByHand);
    }
    evidence.Paragraph("The check supplies the random values of these draws.");
}

void CompareListedSizes(Evidence& evidence) {
    const auto slot = [](int wanted, int last) { return ValueFor(1, last, wanted); };
    CompareDrawn(evidence, RandomSizesOf,
                 {{2, 20, "6, 8,10", {slot(2, 3), slot(3, 3), slot(1, 3)}, "8, 10, 6"},
                  {2, 12, "6", {}, "6, 6"},
                  {2, 20, "12-12", {}, "12, 12"},
                  {2, 20, "20", {}, "20"},
                  {2, 20, "30", {}, "30"},
                  {2, 6, "16-12,4", {}, "4, 4"},
                  {3, 12, "006", {}, "6, 6"},
                  {2, 9, "4 ,6", {slot(2, 2), slot(1, 2)}, "6, 4"}});
}

void CompareEndsOfLists(Evidence& evidence) {
    // The eight midpoints of the eighths of the range.
    const std::vector<float> even = {.0625, .1875, .3125, .4375, .5625, .6875, .8125, .9375};
    CompareDrawn(evidence, RandomSizesOf,
                 {{2, 48, "4,6,8", even, "4, 4, 6, 6, 6, 6, 8, 8"},
                  {2, 52, "6,6,8", even, "6, 6, 6, 6, 6, 6, 8, 8"},
                  {2, 40, "4,6", even, "4, 4, 4, 4, 6, 6, 6, 6"}});
}

void CompareRandomSizes(Evidence& evidence) {
    constexpr float highest = 0x1.fffffep-1F;
    CompareDrawn(evidence, RandomBlockSize,
                 {{2, 100, "", {}, "20, 20, 20, 20, 20, 20"},
                  {2, 100, "", {highest, 0.5F, highest}, "34, 28, 34, 20"},
                  {3, 60, "", {highest, highest}, "21, 21, 12, 12"},
                  {4, 32, "", {highest, 0.5F, highest}, "12, 8, 12, 4"},
                  {4, 20, "", {highest, highest}, "8, 8, 4, 4"},
                  {2, 1, "", {}, "2"}});
}

struct RefusedRow {
    BlockOptions Option;
    std::int16_t Groups;
    std::int16_t SampleSize;
    std::string Text;
    std::string Messages;
};

std::vector<RefusedRow> RefusedTexts() {
    const std::string no = "please specify the block size";
    const std::string uneven = "Block size must be divisable by the number of groups";
    const std::string noSizes = "please specify block sizes";
    const std::string badSizes = "Error in the value of block sizes / " + noSizes;
    const std::string unevenSizes = "block sizes must be divisable by the number of groups / " + noSizes;
    return {{EqualSize, 2, 20, "", no},
            {EqualSize, 2, 20, "abc", no},
            {EqualSize, 2, 20, "0", no},
            {EqualSize, 2, 20, "-4", no},
            {EqualSize, 2, 20, "0.4", no},
            {EqualSize, 3, 20, "10", uneven},
            {EqualSize, 2, 20, "40000", "the block size can be at most 32767"},
            {RandomSizesOf, 2, 20, "", noSizes},
            {RandomSizesOf, 2, 20, "6.5", noSizes},
            {RandomSizesOf, 2, 20, "6;8", noSizes},
            {RandomSizesOf, 2, 20, "40000", noSizes},
            {RandomSizesOf, 2, 20, "16-12", noSizes},
            {RandomSizesOf, 2, 20, "0", badSizes},
            {RandomSizesOf, 2, 20, "6,,8", badSizes},
            {RandomSizesOf, 2, 20, "7,0", badSizes},
            {RandomSizesOf, 2, 20, "2-4-6", badSizes},
            {RandomSizesOf, 2, 20, "7", unevenSizes},
            {RandomSizesOf, 2, 20, "6,8,10,12-16", unevenSizes}};
}

void CompareRefusals(Evidence& evidence) {
    for (const RefusedRow& row : RefusedTexts()) {
        const ListSettings settings =
            WithOption(ValidSettings(row.Groups, row.SampleSize), row.Option, row.Text);
        const OkResult result = PressOk(settings);
        const std::string what = (row.Option == EqualSize ? "Equal blocks of \"" : "Blocks of the sizes \"") +
                                 row.Text + "\", " + std::to_string(row.Groups) + " groups";
        evidence.Compare(what, row.Messages, result.Messages, ByHand);
        evidence.Demand(result.Sizes.empty(), what + ": a list could be made");
        evidence.Demand(result.Focus == (row.Option == EqualSize ? "EqBlockSizeTxt" : "UnEqBlockSizeTxt"),
                        what + ": the focus is not on the field");
    }
    const std::string change = ", please choose smaller blocks or a smaller sample size";
    evidence.Compare("Equal blocks of 2 for a sample size of 32766",
                     "the blocks hold more than 32767 subjects" + change,
                     PressOk(WithOption(ValidSettings(2, 32766), EqualSize, "2")).Messages, ByHand);
    evidence.Compare("One block of 14655", "a block can hold at most 14654 subjects" + change,
                     PressOk(ValidSettings(2, 14655)).Messages, ByHand);
}

} // namespace

void CheckKnownBlockSizes(Record& record) {
    RunKnown(record, "BLK-1.1", "One block", CompareOneBlock);
    RunKnown(record, "BLK-2.1", "Equal blocks", CompareEqualBlocks);
    RunKnown(record, "BLK-3.1", "Blocks of listed sizes, from known random values", CompareListedSizes);
    RunKnown(record, "BLK-4.1", "Blocks of random size, from known random values", CompareRandomSizes);
    RunKnown(record, "BLK-5.2", "The ends of a list of sizes, from random values at even distances",
             CompareEndsOfLists);
    RunKnown(record, "BLK-8.1", "Block sizes that cannot be used", CompareRefusals);
}

} // namespace orvane::validation
