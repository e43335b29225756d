#include "engine/runs_test.h"
#include "engine/sequence_builder.h"
#include "fakes/desktop.h"

namespace orvane {
namespace {

using namespace fakes;

/// A source that gives 0 exchanges position 1 with itself, so that the groups stay as they were dealt. The
/// subject codes are 1 to 20.
struct Bench {
    explicit Bench(const Texts& names) {
        settings.NumberOfGroups = static_cast<std::int16_t>(names.size());
        settings.GroupNames = names;
        settings.Columns = 1;
        results.MinPValue = 1;
        for (int i = 1; i <= 20; ++i)
            results.CodeArr.push_back(std::to_string(i));
    }
    void TestRunsAt(float level) {
        settings.PerformRuns = true;
        settings.SigLevel = level;
    }
    /// Builds a block and returns the code and the name of each position.
    Texts Build(std::size_t size, int offset = 0) {
        Texts names(size);
        Texts codes(size);
        builder.BuildSequenceArr(names, codes, static_cast<std::int16_t>(offset));
        Texts positions;
        for (std::size_t position = 0; position < size; ++position)
            positions.push_back(codes.at(position) + " " + names.at(position));
        return positions;
    }
    Failure FailureOfBuild(std::size_t size, int offset = 0) {
        return FailureOf([&] { Build(size, offset); });
    }

    FakeDesktop desktop;
    ListSettings settings;
    ListResults results;
    SequenceBuilder builder{settings, results, desktop.platform};
};

TEST(SequenceBuilder, ARejectedArrangementIsShuffledFurther) {
    Bench bench({"A", "B"});
    bench.TestRunsAt(0.2F);
    constexpr std::size_t drawsOfAShuffle = 320;
    // A B A B has 4 runs and fails at 0.2. The second attempt exchanges positions 3 and 4.
    bench.desktop.random.Values.resize(drawsOfAShuffle, 0);
    bench.desktop.random.Values.push_back(UniformFor(1, 4, 3));
    bench.desktop.random.Values.push_back(UniformFor(1, 4, 4));
    EXPECT_EQ(bench.Build(4), (Texts{"1 A", "2 B", "3 B", "4 A"}));
    EXPECT_EQ(bench.desktop.random.ReseededAt, (std::vector<std::size_t>{0, drawsOfAShuffle}));
    EXPECT_FLOAT_EQ(bench.results.LastPValue, 0.3989423F);
    EXPECT_FLOAT_EQ(bench.results.MinPValue, 0.3989423F) << "the rejected attempt leaves no trace";
}

TEST(SequenceBuilder, ABlockThatCannotPassIsAFailureAfterOneAttempt) {
    const struct {
        Texts names;
        Texts messages;
    } rows[] = {
        {{"A", "B", "B", "B"}, {}}, // every arrangement is too orderly
        {{"C", "C", "C", "C"}, {"Insufficient memory to perform statistics"}},
    };
    for (const auto& row : rows) {
        Bench bench(row.names);
        bench.TestRunsAt(0.3F);
        EXPECT_EQ(bench.FailureOfBuild(4).Number, failure_number::CannotPassRunsTest) << row.names[0];
        EXPECT_EQ(bench.desktop.messages.TakeAll(), row.messages);
        EXPECT_EQ(bench.desktop.random.ReseededAt.size(), 1U) << row.names[0];
        EXPECT_EQ(bench.results.MaxPValue, 0) << row.names[0];
    }
}

TEST(SequenceBuilder, ASourceThatIsStuckAtAnArrangementThatFailsIsAFailure) {
    Bench bench({"A", "B"});
    bench.TestRunsAt(RunsPValue(RunsStatistic({2, 2, 4}).value())); // that of A B A B, which must be above it
    const Failure failure = bench.FailureOfBuild(4);
    EXPECT_EQ(failure.Number, failure_number::CannotPassRunsTest);
    EXPECT_EQ(failure.Description, "A block of 4 subjects did not pass the Runs test in 2000 attempts.");
    EXPECT_EQ(bench.desktop.random.ReseededAt.size(), 2000U);
}

TEST(SequenceBuilder, RefusesABlockWithoutPositionsCodesOrGroups) {
    Bench bench({"A", "B"});
    EXPECT_EQ(bench.FailureOfBuild(0).Number, failure_number::InvalidArgument);
    EXPECT_EQ(bench.FailureOfBuild(4, 17).Number, failure_number::InvalidArgument);
    EXPECT_EQ(bench.FailureOfBuild(4, -1).Number, failure_number::InvalidArgument);
    EXPECT_EQ(bench.desktop.random.Consumed, 0U);
    EXPECT_EQ(bench.Build(4, 16), (Texts{"17 A", "18 B", "19 A", "20 B"})) << "the last codes";
    EXPECT_EQ(Bench({}).FailureOfBuild(4).Number, failure_number::InvalidArgument) << "no groups";
}

TEST(SequenceBuilder, MakesABlockOfTheGroupsThatWereCheckedWhateverTheirNumberIsNow) {
    Bench bench({"A", "B"});
    bench.settings.NumberOfGroups = 3;
    EXPECT_EQ(bench.Build(4), (Texts{"1 A", "2 B", "3 A", "4 B"}));
}

TEST(RaiseToLimit, FailsAboveSixteenBits) {
    EXPECT_EQ(RaiseToLimit(32767, 1), 32767);
    EXPECT_THROW(RaiseToLimit(32767, 10), Failure);
}

} // namespace
} // namespace orvane
