// What a list is made of: subject codes, blocks, and the Runs test of a block.

#include "engine/runs_test.h"
#include "engine/sequence_builder.h"
#include "engine/subject_codes.h"
#include "fakes/desktop.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <tuple>

namespace orvane {
namespace {

using namespace fakes;

struct Codes {
    Codes(std::int32_t alphabet, std::int32_t order, std::int16_t length,
          const std::vector<std::int16_t>& blocks) {
        settings.CodeAlphaNum = alphabet;
        settings.CodeSeqRandom = order;
        settings.CodeLength = length;
        results.BlockSizes = blocks;
    }
    void Make() { CreateCodeArr(settings, results, desktop.random, desktop.clock); }
    FakeDesktop desktop;
    ListSettings settings;
    ListResults results;
};

TEST(SubjectCodes, SequentialCodesCountInTheirAlphabet) {
    const std::vector<std::tuple<CodeAlphabets, int, std::vector<std::pair<std::size_t, std::string>>>> rows =
        {
            {Numeric, 3, {{1, "001"}, {12, "012"}, {999, "999"}}},
            {Alpha, 3, {{1, "AAB"}, {25, "AAZ"}, {26, "ABA"}, {27, "ABB"}, {702, "BBA"}}},
            {Mixed, 3, {{1, "001"}, {9, "009"}, {10, "00A"}, {35, "00Z"}, {36, "010"}}},
            {Numeric, 10, {{999, "0000000999"}}},
        };
    for (const auto& [alphabet, length, codes] : rows) {
        Codes bench(alphabet, Sequential, static_cast<std::int16_t>(length), {7, 900, 99});
        bench.Make();
        EXPECT_EQ(bench.results.CodeArr.size(), 999U);
        for (const auto& [position, code] : codes)
            EXPECT_EQ(bench.results.CodeArr.at(position - 1), code);
    }
    EXPECT_EQ(ConvertToABC(0, 2) + ConvertToABC123(1295, 3), "AA0ZZ");
    EXPECT_EQ(FailureOf([] { ConvertToABC(676, 2); }).Number, failure_number::InvalidArgument);
    EXPECT_EQ(FailureOf([] { ZeroPad("1", -1); }).Number, failure_number::InvalidArgument);
}

TEST(SubjectCodes, RandomCodesAreDrawnUntilTheyDiffer) {
    const std::vector<std::tuple<CodeAlphabets, std::vector<float>, Texts, std::vector<std::size_t>>> rows = {
        {Alpha, {UniformFor('A', 'Z', 'Q'), 0, 0, UniformFor('A', 'Z', 'Z')}, {"QA", "AZ"}, {0, 2}},
        {Numeric, {0, 0.9999F, 0, 0.9999F, UniformFor('0', '9', '7'), 0}, {"09", "70"}, {0, 2, 4}},
        {Mixed, {UniformFor(0, 35, 10), UniformFor(0, 35, 9), 0, 0.9999F}, {"A9", "0Z"}, {0, 2}},
    };
    for (const auto& [alphabet, values, codes, reseeds] : rows) {
        Codes bench(alphabet, Random, 2, {0, 1, 1});
        bench.desktop.random.List(values);
        bench.Make();
        EXPECT_EQ(bench.results.CodeArr, codes);
        EXPECT_EQ(bench.desktop.random.ReseededAt, reseeds) << "once an attempt";
    }
    Codes stuck(Numeric, Random, 1, {0, 2});
    EXPECT_EQ(FailureOf([&] { stuck.Make(); }).Number, failure_number::Unexpected);
}

TEST(SubjectCodes, AListThatNeedsMoreCodesThanThereAreIsRefusedAtOnce) {
    const std::vector<std::tuple<CodeAlphabets, CodeOrders, int, int>> rows = {
        {Numeric, Sequential, 3, 999}, {Numeric, Random, 3, 1000}, {Alpha, Sequential, 2, 675},
        {Alpha, Random, 2, 676},       {Mixed, Sequential, 1, 35}, {Mixed, Random, 2, 1296},
        {Mixed, Random, 10, 32768},    {Mixed, Random, 1, 36},     {Numeric, Sequential, 0, 0}};
    for (const auto& [alphabet, order, length, available] : rows) {
        EXPECT_EQ(CodesAvailable(alphabet, order, static_cast<std::int16_t>(length)), available);
        const auto tooMany = static_cast<std::int16_t>(std::min(available, LargestList - 1) + 1);
        Codes bench(alphabet, order, static_cast<std::int16_t>(length), {0, tooMany, 0});
        bench.results.CodeArr = {"earlier"};
        bench.results.BlockSizes[2] = available > LargestList ? 1 : 0;
        EXPECT_EQ(FailureOf([&] { bench.Make(); }).Number,
                  available > LargestList ? failure_number::Overflow : failure_number::TooLarge);
        EXPECT_EQ(bench.results.CodeArr, Texts{"earlier"});
        EXPECT_EQ(bench.desktop.random.Consumed, 0U);
    }
}

TEST(RunsTest, GivesThePublishedFigures) {
    // The middle group of the last block counts with the upper one.
    std::istringstream rows(
        "1110010101110101 6 10 11 1.386750  1111122222233333333 11 8 2 -4.007095978613213 "
        "0001011001100110001011100 14 11 13 -0.1327477  1221 2 2 3 0  1122 2 2 2 -1.2247449 "
        "1212 2 2 4 1.2247449  112 2 1 2 -0.7071068  123123 2 4 4 0.3535534");
    FakeDesktop desktop;
    std::string block;
    RunsCounts expected{};
    for (double z = 0; rows >> block >> expected.n0 >> expected.n1 >> expected.runs >> z;) {
        const std::vector<std::int16_t> numbers(block.begin(), block.end());
        const RunsCounts counts = CountRuns(numbers);
        EXPECT_EQ(std::tuple(counts.n0, counts.n1, counts.runs),
                  std::tie(expected.n0, expected.n1, expected.runs))
            << block;
        EXPECT_NEAR(RunsStatistic(counts), z, 1e-6) << block;
        const double density = std::exp(-z * z / 2) / std::sqrt(2 * std::acos(-1.0));
        EXPECT_NEAR(GetRandomness(numbers, desktop.messages), density, density * 1e-5) << block;
    }
    EXPECT_EQ(block, "123123") << "all rows were read";
    // The expected number of runs and the statistic are 32-bit floats.
    EXPECT_EQ(RunsPValue(RunsStatistic({1, 2, 2})), 0.310696602F);
    EXPECT_EQ(RunsPValue(RunsStatistic({1, 4, 3})), 0.285854578F);
    std::vector<std::int16_t> tooManyRuns(40'000, 1);
    for (std::size_t i = 0; i < tooManyRuns.size(); i += 2)
        tooManyRuns[i] = 2;
    EXPECT_EQ(GetRandomness(tooManyRuns, desktop.messages), 0) << "and shows no message";
    EXPECT_FALSE(CanPassRunsTest({}, 0.0001F));
}

TEST(RunsTest, WhetherABlockCanPassIsWhatTryingEveryArrangementSays) {
    FakeDesktop desktop;
    for (const std::string& block : Texts{"112", "1222", "1112", "1122", "12222", "11122", "123", "112233",
                                          "11112222", "1222222", "11111222"}) {
        std::vector<std::int16_t> numbers(block.begin(), block.end());
        float best = 0;
        do
            best = std::max(best, GetRandomness(numbers, desktop.messages));
        while (std::next_permutation(numbers.begin(), numbers.end()));
        EXPECT_FALSE(CanPassRunsTest(numbers, best)) << block << ": an equal P value does not pass";
        EXPECT_TRUE(CanPassRunsTest(numbers, std::nextafter(best, 0.0F))) << block;
    }
    const MemoryGrid grid({"A", "a", "A", ""});
    EXPECT_EQ(GetIntName(grid, "A") * 100 + GetIntName(grid, "") * 10 + GetIntName(grid, "B"), 140);
}

/// A source that gives 0 exchanges position 1 with itself, so that the groups stay as they were dealt.
struct Bench {
    explicit Bench(const Texts& names, std::int16_t columns = 1, float level = 0) : grid(names) {
        settings.NumberOfGroups = static_cast<std::int16_t>(names.size());
        settings.Columns = columns;
        settings.PerformRuns = level > 0;
        settings.SigLevel = level;
        results.MinPValue = 1;
        for (int i = 1; i <= 20; ++i)
            results.CodeArr.push_back(std::to_string(i));
    }
    /// Builds a block and returns its cells as "code name", "|" behind each.
    std::string Build(std::size_t size, int offset = 0) {
        Texts names(size);
        Texts codes(size);
        builder.BuildSequenceArr(names, codes, static_cast<std::int16_t>(offset));
        EXPECT_EQ(names.size(), codes.size());
        std::string cells;
        for (std::size_t k = 0; k < names.size(); ++k)
            cells += codes[k] + " " + names[k] + "|";
        return cells;
    }

    FakeDesktop desktop;
    MemoryGrid grid;
    ListSettings settings;
    ListResults results;
    SequenceBuilder builder{settings, results, grid, desktop.platform};
};

TEST(SequenceBuilder, DealsInRowOrderAndRunsDownTheColumns) {
    const std::vector<std::tuple<std::size_t, int, int, std::string>> rows = {
        {10, 6, 5, "6 X|8 Z|10 Y|12 X|14 Z| |7 Y|9 X|11 Z|13 Y|15 X| |"},
        {4, 6, 0, "1 X|2 Y|3 Z|4 X| | |"},
        {7, 3, 13, "14 X|17 X|20 X|15 Y|18 Y| |16 Z|19 Z| |"},
        {6, 3, 0, "1 X|3 Z|5 Y|2 Y|4 X|6 Z|"},
    };
    for (const auto& [size, columns, offset, cells] : rows) {
        Bench bench({"X", "Y", "Z"}, static_cast<std::int16_t>(columns));
        EXPECT_EQ(bench.Build(size, offset), cells);
        EXPECT_EQ(bench.desktop.random.Consumed, 20 * size * size);
        EXPECT_EQ(bench.desktop.random.ReseededAt, std::vector<std::size_t>{0});
        EXPECT_EQ(bench.results.MaxPValue, 0) << "no test was asked for";
    }
    EXPECT_EQ(RaiseToLimit(32767, 1), 32767);
    EXPECT_THROW(RaiseToLimit(32767, 10), Failure);
}

TEST(SequenceBuilder, ARejectedArrangementIsShuffledFurther) {
    Bench bench({"A", "B"}, 1, 0.2F);
    // A B A B has 4 runs and fails at 0.2. The second attempt exchanges positions 3 and 4.
    std::vector<float> values(320, 0.0F);
    values.insert(values.end(), {UniformFor(1, 4, 3), UniformFor(1, 4, 4)});
    bench.desktop.random.List(values);
    EXPECT_EQ(bench.Build(4), "1 A|2 B|3 B|4 A|");
    EXPECT_EQ(bench.desktop.random.ReseededAt, (std::vector<std::size_t>{0, 320}));
    EXPECT_EQ(bench.desktop.random.Consumed, 640U);
    EXPECT_FLOAT_EQ(bench.results.MinPValue, 0.3989423F) << "the rejected attempt leaves no trace";

    bench.settings.SigLevel = 0.05F;
    bench.desktop.random.List({});
    bench.Build(4, 4);
    EXPECT_FLOAT_EQ(bench.results.MinPValue, 0.1884470F);
    EXPECT_FLOAT_EQ(bench.results.MaxPValue, 0.3989423F);
    EXPECT_FLOAT_EQ(bench.results.LastPValue, 0.1884470F);
}

TEST(SequenceBuilder, ABlockThatCannotPassIsAFailureAndNeverHangs) {
    const std::string none = "Insufficient memory to perform statistics";
    const std::string attempts = " subjects did not pass the Runs test in 2000 attempts.";
    const std::string cannot = " subjects cannot pass the Runs test at level 0.";
    const float ofABAB = RunsPValue(RunsStatistic({2, 2, 4})); // an equal P value does not pass
    const std::vector<std::tuple<Texts, std::size_t, float, std::string, std::string>> rows = {
        {{"A", "B"}, 1, 0.05F, none, cannot + "05"},
        {{"A", "B"}, 2, 0.05F, none, cannot + "05"},
        {{"C", "C"}, 6, 0.05F, none, cannot + "05"},
        {{"A", "B", "B", "B"}, 4, 0.3F, "", cannot + "3"},
        {{"A", "B"}, 4, ofABAB, "", attempts}};
    for (const auto& [names, size, level, message, failure] : rows) {
        Bench bench(names, 1, level);
        const Failure thrown = FailureOf([&, n = size] { bench.Build(n); });
        EXPECT_EQ(thrown.Description, "A block of " + std::to_string(size) + failure);
        EXPECT_EQ(thrown.Number, failure_number::CannotPassRunsTest);
        EXPECT_EQ(bench.desktop.messages.Take(), message);
        EXPECT_EQ(bench.desktop.random.ReseededAt.size(), failure == attempts ? 2000U : 1U);
        EXPECT_EQ(bench.results.MaxPValue, 0);
    }
    for (const auto& [size, offset] : {std::pair{0U, 0}, {4U, 17}, {4U, -1}}) {
        Bench bench({"A", "B"});
        const Failure failure = FailureOf([&, n = size, o = offset] { bench.Build(n, o); });
        EXPECT_EQ(failure.Number, failure_number::InvalidArgument);
        EXPECT_EQ(bench.desktop.random.Consumed, 0U);
    }
    EXPECT_EQ(Bench({"A", "B"}).Build(4, 16), "17 A|18 B|19 A|20 B|");
    const std::vector<int> rules = {20, 35, 55, 75, 95, 110, 130, 137, 142, 148};
    for (std::size_t columns = 1; columns <= rules.size(); ++columns)
        EXPECT_EQ(GetMaxEq(static_cast<std::int16_t>(columns)), rules[columns - 1]);
}

} // namespace
} // namespace orvane
