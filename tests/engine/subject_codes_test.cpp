#include "engine/subject_codes.h"
#include "fakes/desktop.h"

namespace orvane {
namespace {

using namespace fakes;

struct Codes {
    Codes(CodeAlphabets alphabet, CodeOrders order, int length, std::vector<std::int16_t> blockSizes,
          const std::vector<float>& draws = {}) {
        settings.CodeAlphaNum = alphabet;
        settings.CodeSeqRandom = order;
        settings.CodeLength = static_cast<std::int16_t>(length);
        results.BlockSizes = std::move(blockSizes);
        desktop.random.Values = draws;
    }
    void Make() { CreateCodeArr(settings, results, desktop.random, desktop.clock); }
    std::string Code(std::size_t position) {
        Make();
        return results.CodeArr.at(position - 1);
    }
    FakeDesktop desktop;
    ListSettings settings;
    ListResults results;
};

TEST(SubjectCodes, SequentialCodesCountInTheirAlphabet) {
    const std::vector<std::int16_t> blocks = {0, 900, 99};
    EXPECT_EQ(Codes(Numeric, Sequential, 10, blocks).Code(999), "0000000999");
    EXPECT_EQ(Codes(Alpha, Sequential, 3, blocks).Code(25), "AAZ");
    EXPECT_EQ(Codes(Alpha, Sequential, 3, blocks).Code(26), "ABA");
    EXPECT_EQ(Codes(Mixed, Sequential, 3, blocks).Code(35), "00Z");
    EXPECT_EQ(Codes(Mixed, Sequential, 3, blocks).Code(36), "010");
}

TEST(SubjectCodes, RandomCodesReachBothEndsOfTheirAlphabet) {
    const std::vector<float> draws = {0, 0.5F, 0x1.fffffep-1F};
    EXPECT_EQ(Codes(Alpha, Random, 3, {0, 1}, draws).Code(1), "AMZ");
    EXPECT_EQ(Codes(Numeric, Random, 3, {0, 1}, draws).Code(1), "049");
    EXPECT_EQ(Codes(Mixed, Random, 3, {0, 1}, draws).Code(1), "0IZ");
}

TEST(SubjectCodes, RandomCodesAreDrawnUntilTheyDiffer) {
    Codes list(Numeric, Random, 2, {0, 1, 1});
    for (const int digit : {0, 9, 0, 9, 7, 0})
        list.desktop.random.Values.push_back(UniformFor(0, 9, digit));
    list.Make();
    EXPECT_EQ(list.results.CodeArr, (Texts{"09", "70"}));
    EXPECT_EQ(list.desktop.random.ReseededAt, (std::vector<std::size_t>{0, 2, 4})) << "once an attempt";
}

TEST(SubjectCodes, ASourceThatIsStuckIsAFailure) {
    Codes list(Numeric, Random, 1, {0, 2});
    EXPECT_EQ(FailureOf([&] { list.Make(); }).Number, failure_number::Unexpected);
    EXPECT_EQ(list.desktop.random.Consumed, 1U + 5'000'000U);
}

TEST(SubjectCodes, AListThatNeedsMoreCodesThanThereAreIsRefusedBeforeTheFirstDraw) {
    const struct {
        CodeAlphabets alphabet;
        CodeOrders order;
        int length;
        std::int16_t codes; ///< that there are
    } rows[] = {{Numeric, Sequential, 3, 999}, {Numeric, Random, 3, 1000}, {Alpha, Sequential, 2, 675},
                {Alpha, Random, 2, 676},       {Mixed, Sequential, 1, 35}, {Numeric, Random, 0, 0}};
    for (const auto& row : rows) {
        Codes list(row.alphabet, row.order, row.length, {0, row.codes, 1});
        EXPECT_EQ(CodesRefusal(list.settings, row.codes), std::nullopt) << row.codes;
        EXPECT_EQ(FailureOf([&] { list.Make(); }).Number, failure_number::TooLarge) << row.codes;
        EXPECT_EQ(list.desktop.random.Consumed, 0U) << row.codes;
    }
    const Codes longest(Mixed, Random, 10, {});
    EXPECT_EQ(CodesRefusal(longest.settings, LargestList), std::nullopt);
}

} // namespace
} // namespace orvane
