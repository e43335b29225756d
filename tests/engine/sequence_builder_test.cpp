#include "engine/sequence_builder.h"

#include "engine/random_source.h"
#include "engine/runs_test.h"
#include "fakes/desktop.h"
#include "platform/failure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace orvane {
namespace {

using fakes::FakeDesktop;
using fakes::MemoryGrid;
using fakes::SetEntropy;

struct Bench {
    explicit Bench(const std::vector<std::string>& names) : grid(names) {
        settings.NumberOfGroups = static_cast<std::int16_t>(names.size());
        for (int i = 1; i <= 40; ++i)
            results.CodeArr.push_back("c" + std::to_string(i));
    }

    /// Builds a block and returns its cells as "code name", blank cells as "".
    std::vector<std::string> Build(std::size_t size, std::int16_t offset = 0) {
        std::vector<std::string> names(size);
        std::vector<std::string> codes(size);
        builder.BuildSequenceArr(names, codes, offset);
        EXPECT_EQ(names.size(), codes.size());
        std::vector<std::string> cells;
        for (std::size_t k = 0; k < names.size(); ++k)
            cells.push_back(codes[k].empty() ? names[k] : codes[k] + " " + names[k]);
        return cells;
    }

    FakeDesktop desktop;
    MemoryGrid grid;
    ListSettings settings;
    ListResults results;
    SequenceBuilder builder{settings, results, grid, desktop.random, desktop.clock, desktop.messages};
};

// A source that gives 0 exchanges position 1 with itself, so that the groups stay as they were dealt.

TEST(SequenceBuilder, DealsInRowOrderAndRunsDownTheColumns) {
    Bench bench({"X", "Y", "Z"});
    EXPECT_EQ(bench.Build(10, 5), (std::vector<std::string>{"c6 X", "c8 Z", "c10 Y", "c12 X", "c14 Z", "",
                                                            "c7 Y", "c9 X", "c11 Z", "c13 Y", "c15 X", ""}));
    EXPECT_EQ(bench.desktop.random.Consumed, 2000U) << "20 values for each position squared";
    EXPECT_EQ(bench.desktop.random.ReseededAt, std::vector<std::size_t>{0});
}

TEST(SequenceBuilder, FillsEachRowOfTheTable) {
    const struct {
        std::size_t size;
        std::int16_t columns;
        std::vector<int> positions; ///< by cell, 0 for a blank one
    } rows[] = {
        {4, 6, {1, 2, 3, 4, 0, 0}},
        {14, 6, {1, 4, 7, 10, 13, 0, 2, 5, 8, 11, 14, 0, 3, 6, 9, 12, 0, 0}},
        {3, 1, {1, 2, 3}},
        {6, 3, {1, 3, 5, 2, 4, 6}},
        {7, 6, {1, 3, 5, 7, 0, 0, 2, 4, 6, 0, 0, 0}},
        {1, 2, {1, 0}},
    };
    for (const auto& row : rows) {
        Bench bench({"", "B"});
        bench.settings.Columns = row.columns;
        std::vector<std::string> expected;
        for (const int p : row.positions)
            expected.push_back(p == 0 ? "" : "c" + std::to_string(p) + (p % 2 == 0 ? " B" : " "));
        EXPECT_EQ(bench.Build(row.size), expected) << row.size << " in " << row.columns;
    }
    EXPECT_EQ(RaiseToLimit(32767, 1), 32767);
    EXPECT_THROW(RaiseToLimit(32767, 10), Failure);
}

TEST(SequenceBuilder, EveryBlockIsBalancedAndTheCodesStayInPlace) {
    Bench bench({"A", "B", "C"});
    SetEntropy entropy;
    RandomSource source(entropy);
    SequenceBuilder builder(bench.settings, bench.results, bench.grid, source, bench.desktop.clock,
                            bench.desktop.messages);
    bench.settings.Columns = 1;
    std::vector<std::vector<std::string>> seen;
    for (const std::int16_t size : std::vector<std::int16_t>{9, 10, 9}) {
        std::vector<std::string> names(static_cast<std::size_t>(size));
        std::vector<std::string> codes(names.size());
        builder.BuildSequenceArr(names, codes, 0);
        EXPECT_EQ(std::count(names.begin(), names.end(), "A"), size == 10 ? 4 : 3);
        EXPECT_EQ(std::count(names.begin(), names.end(), "B"), 3);
        EXPECT_EQ(std::count(names.begin(), names.end(), "C"), 3);
        EXPECT_EQ(codes, std::vector<std::string>(bench.results.CodeArr.begin(),
                                                  bench.results.CodeArr.begin() + size));
        seen.push_back(names);
    }
    EXPECT_EQ(bench.results.MaxPValue, 0) << "no test was asked for";
}

TEST(SequenceBuilder, ARejectedArrangementIsShuffledFurther) {
    Bench bench({"A", "B"});
    bench.settings.Columns = 1;
    bench.settings.PerformRuns = true;
    bench.settings.SigLevel = 0.2F;
    bench.results.MinPValue = 1;
    // A B A B has 4 runs and fails at 0.2. The second attempt exchanges positions 3 and 4.
    std::vector<float> values(320, 0.0F);
    values.push_back(fakes::UniformFor(1, 4, 3));
    values.push_back(fakes::UniformFor(1, 4, 4));
    bench.desktop.random.List(values);
    EXPECT_EQ(bench.Build(4), (std::vector<std::string>{"c1 A", "c2 B", "c3 B", "c4 A"}));
    EXPECT_EQ(bench.desktop.random.ReseededAt, (std::vector<std::size_t>{0, 320}));
    EXPECT_EQ(bench.desktop.random.Reseeds, std::vector<float>(2, bench.desktop.clock.Seconds));
    EXPECT_EQ(bench.desktop.random.Consumed, 640U);
    EXPECT_FLOAT_EQ(bench.results.MinPValue, 0.3989423F) << "the rejected attempt leaves no trace";
    EXPECT_EQ(bench.results.MaxPValue, bench.results.MinPValue);

    bench.settings.SigLevel = 0.05F;
    bench.desktop.random.List({});
    bench.Build(4, 4);
    EXPECT_FLOAT_EQ(bench.results.MinPValue, 0.1884470F);
    EXPECT_FLOAT_EQ(bench.results.MaxPValue, 0.3989423F);
    EXPECT_FLOAT_EQ(bench.results.LastPValue, 0.1884470F);
}

TEST(SequenceBuilder, ABlockThatCannotPassIsAFailureAndNeverHangs) {
    const struct {
        std::vector<std::string> names;
        std::size_t size;
        float level;
        bool hasStatistic;
    } rows[] = {{{"A", "B"}, 1, 0.05F, false},
                {{"A", "B"}, 2, 0.05F, false},
                {{"same", "same"}, 6, 0.05F, false},
                {{"A", "B", "B", "B"}, 4, 0.3F, true}};
    for (const auto& row : rows) {
        Bench bench(row.names);
        bench.settings.PerformRuns = true;
        bench.settings.SigLevel = row.level;
        try {
            bench.Build(row.size);
            ADD_FAILURE() << "a block of " << row.size << " was accepted";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number, failure_number::CannotPassRunsTest);
        }
        EXPECT_EQ(bench.desktop.messages.Take(),
                  row.hasStatistic ? "" : "Insufficient memory to perform statistics");
    }
}

TEST(SequenceBuilder, AnEqualPValueIsRejectedAndAStuckSourceDoesNotHang) {
    Bench bench({"A", "B"});
    bench.settings.PerformRuns = true;
    const std::vector<std::int16_t> dealt{1, 2, 1, 2};
    bench.settings.SigLevel = GetRandomness(dealt, bench.desktop.messages).PValue;
    try {
        bench.Build(4);
        ADD_FAILURE() << "an equal P value passed";
    } catch (const Failure& failure) {
        EXPECT_NE(failure.Description.find("2000 attempts"), std::string::npos);
    }
    EXPECT_EQ(bench.desktop.random.Consumed, 2000U * 320U);
}

TEST(SequenceBuilder, ABlockTooLargeToCountItsExchangesIsAFailure) {
    Bench bench({"A", "B"});
    bench.results.CodeArr.assign(14655, "c");
    EXPECT_THROW(bench.Build(14655), Failure);
    EXPECT_THROW(bench.Build(0), Failure);
    EXPECT_THROW(bench.Build(4, 14652), Failure) << "no codes left";
    EXPECT_THROW(bench.Build(4, -1), Failure);
    EXPECT_EQ(bench.desktop.random.Consumed, 0U);
}

} // namespace
} // namespace orvane
