#include "engine/block_shuffle.h"

#include "engine/list_settings.h"
#include "engine/random_draws.h"
#include "fakes/random.h"
#include "platform/failure.h"
#include "statistics.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <numeric>
#include <string>
#include <vector>

namespace orvane {
namespace {

using fakes::ListedSource;
using Groups = std::vector<std::uint8_t>;

TEST(BlockShuffle, GroupsAreDealtInTurn) {
    const struct {
        std::size_t size;
        std::int16_t groups;
        Groups dealt;
    } rows[] = {
        {10, 3, {1, 2, 3, 1, 2, 3, 1, 2, 3, 1}},
        {4, 2, {1, 2, 1, 2}},
        {1, 16, {1}},
        {17, 16, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 1}},
        {0, 2, {}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(DealGroups(row.size, row.groups), row.dealt);
}

TEST(BlockShuffle, ExchangesTheFirstDrawWithTheSecond) {
    // Of three positions, 0 draws the first, 0.5 the second, 0.9 the third. All later draws are position 1.
    const struct {
        std::vector<float> values;
        Groups shuffled;
    } rows[] = {
        {{0, 0.9F}, {3, 2, 1}},
        {{0, 0.5F, 0.5F, 0.9F}, {2, 3, 1}},
        {{0.5F, 0.9F, 0, 0.5F}, {3, 1, 2}},
        {{0.5F, 0.5F}, {1, 2, 3}},
    };
    for (const auto& row : rows) {
        ListedSource source(row.values);
        Groups groups{1, 2, 3};
        ShuffleBlock(source, groups);
        EXPECT_EQ(groups, row.shuffled);
        EXPECT_EQ(source.Consumed, 180U);
    }
}

TEST(BlockShuffle, EqualsSingleExchangesAndConsumesTwentyTimesTheSquare) {
    const std::size_t sizes[] = {1, 2, 3, 4, 7, 8, 9, 16, 31, 64, 65, 200, 256};
    for (const VectorKernels& kernels : RunnableKernels())
        for (const std::size_t N : sizes) {
            fakes::SetEntropy entropy;
            fakes::SetEntropy sameEntropy;
            RandomSource source(entropy, kernels);
            RandomSource single(sameEntropy);
            source.UniformReseed(7);
            single.UniformReseed(7);

            Groups groups(N);
            std::iota(groups.begin(), groups.end(), std::uint8_t{0});
            Groups expected = groups;
            ShuffleBlock(source, groups, kernels);
            const auto last = static_cast<std::int16_t>(N);
            for (std::size_t i = 0; i < 10 * N * N; ++i) {
                const auto A = static_cast<std::size_t>(DrawRandomInt(single, 1, last));
                const auto B = static_cast<std::size_t>(DrawRandomInt(single, 1, last));
                std::swap(expected[A - 1], expected[B - 1]);
            }
            EXPECT_EQ(groups, expected) << kernels.Name << " " << N;
            EXPECT_EQ(source.UniformNext(), single.UniformNext()) << kernels.Name << " " << N;
        }
}

TEST(BlockShuffle, WhatCannotBeCountedIsRefusedBeforeAnythingMoves) {
    for (const std::size_t size : {std::size_t{LargestBlock} + 1, std::size_t{70'000}}) {
        ListedSource source({0, 0.9F});
        Groups groups = DealGroups(size, 2);
        const Groups before = groups;
        EXPECT_THROW(ShuffleBlock(source, groups), Failure);
        EXPECT_EQ(groups, before);
        EXPECT_EQ(source.Consumed, 0U);
    }
    ListedSource source;
    Groups none;
    ShuffleBlock(source, none);
    EXPECT_EQ(source.Consumed, 0U);
}

TEST(BlockShuffle, AFailureOfTheSourceKeepsTheGroups) {
    class FailingSource : public ListedSource {
      public:
        void UniformFill(std::span<float> values) override {
            Broken = ++fills_ > 2;
            ListedSource::UniformFill(values);
        }

      private:
        int fills_ = 0;
    };
    FailingSource source;
    source.Rest = 0.6F;
    Groups groups = DealGroups(30, 3);
    EXPECT_THROW(ShuffleBlock(source, groups), Failure);
    EXPECT_EQ(std::count(groups.begin(), groups.end(), 1), 10);
    EXPECT_EQ(std::count(groups.begin(), groups.end(), 2), 10);
}

TEST(BlockShuffle, EveryArrangementIsAsLikelyAsEveryOther) {
    TrueEntropy entropy;
    RandomSource source(entropy);
    // Blocks of a group a position, and blocks of two groups, where arrangements that look alike are one.
    const std::size_t sizes[] = {4, 5, 6};
    for (const bool twoGroups : {false, true})
        for (const std::size_t N : sizes) {
            const std::int16_t groups = twoGroups ? std::int16_t{2} : static_cast<std::int16_t>(N);
            Groups block = DealGroups(N, groups);
            std::map<Groups, std::size_t> number;
            Groups arrangement = block;
            std::sort(arrangement.begin(), arrangement.end());
            do
                number.emplace(arrangement, number.size());
            while (std::next_permutation(arrangement.begin(), arrangement.end()));

            std::vector<std::int64_t> counts(number.size());
            constexpr std::int64_t shuffles = 20'000;
            for (std::int64_t i = 0; i < shuffles; ++i) {
                // Each from the same start, as the program does it.
                block = DealGroups(N, groups);
                ShuffleBlock(source, block);
                ++counts[number.at(block)];
            }
            const std::vector<double> even(counts.size(), 1.0 / static_cast<double>(counts.size()));
            EXPECT_LT(std::abs(DeviationOf(counts, even, shuffles)), FarthestDeviation)
                << N << " positions, " << groups << " groups, key " << entropy.Key.str();
        }
}

} // namespace
} // namespace orvane
