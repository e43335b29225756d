// The cipher, the values made from it, the draws from ranges and the shuffle.

#include "engine/block_shuffle.h"
#include "engine/list_settings.h"
#include "engine/random_draws.h"
#include "engine/random_source.h"
#include "fakes/random.h"

#include <gtest/gtest.h>

#include <numeric>
#include <sstream>
#include <tuple>

namespace orvane {
namespace {

using namespace fakes;

ChaChaWords Input(std::uint32_t keyStart, std::uint32_t keyStep, std::array<std::uint32_t, 4> last) {
    ChaChaWords words{};
    std::copy(ChaChaConstants.begin(), ChaChaConstants.end(), words.begin());
    for (std::uint32_t i = 0; i < ChaChaKeyWords; ++i)
        words.at(ChaChaKeyAt + i) = keyStart + keyStep * i;
    std::copy(last.begin(), last.end(), words.begin() + ChaChaCounterAt);
    return words;
}

TEST(ChaCha, TwentyRoundsGiveThePublishedBlocks) {
    EXPECT_EQ(ChaChaBlock<20>(Input(0x03020100, 0x04040404, {1, 0x09000000, 0x4a000000, 0})),
              (ChaChaWords{0xe4e7f110, 0x15593bd1, 0x1fdd0f50, 0xc47120a3, 0xc7f4d1c7, 0x0368c033, 0x9aaa2204,
                           0x4e6cd4c3, 0x466482d2, 0x09aa9f07, 0x05d7c214, 0xa2028bd9, 0xd19c12b5, 0xb94e16de,
                           0xe883d0cb, 0x4e3c50a2}));
    EXPECT_EQ(ChaChaBlock<20>(Input(0, 0, {1, 0, 0, 0})),
              (ChaChaWords{0xbee7079f, 0x7a385155, 0x7c97ba98, 0x0d082d73, 0xa0290fcb, 0x6965e348, 0x3e53c612,
                           0xed7aee32, 0x7621b729, 0x434ee69c, 0xb03371d5, 0xd539d874, 0x281fed31, 0x45fb0a51,
                           0x1f0ae1ac, 0x6f4d794b}));
}

// The expected values come from an implementation of the cipher of its own, apart from this program.
TEST(RandomSource, TheStreamIsThatOfItsKeyAndReseeds) {
    // 24 bits of the value at each index
    using Indices = std::vector<std::uint32_t>;
    const auto expectBits = [](const std::vector<float>& values, const Indices& indices,
                               const Indices& bits) {
        for (std::size_t k = 0; k < bits.size(); ++k)
            EXPECT_EQ(static_cast<std::uint32_t>(values.at(indices.at(k)) * 0x1p24F), bits[k]) << indices[k];
    };
    SetEntropy entropy;
    RandomSource source(entropy);
    std::vector<float> values(1400);
    source.UniformFill(values);
    expectBits(
        values, {0, 1, 31, 32, 127, 128, 640, 671, 672, 1399},
        {0x8fb215, 0x0f6e1a, 0xbda559, 0x6aab12, 0x725a86, 0x3312c5, 0xd656a2, 0x727780, 0x880ebf, 0x4815de});
    source.UniformReseed(43200.5F);
    source.UniformFill(std::span(values).first(800));
    expectBits(values, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 681, 682, 799},
               {0xef6694, 0xdec3a9, 0x5e8c96, 0x49abb6, 0x94bcaf, 0xbcd419, 0x6cec0a, 0x19f824, 0x85f9cc,
                0xe665d2, 0xedb6d2, 0xca5f8b, 0x4acbf1, 0x53f8f7, 0x8ad1da});
    source.UniformReseed(43200.5F);
    expectBits({source.UniformNext()}, {0}, {0x06ee93});
}

TEST(RandomSource, WithoutEntropyTheFirstUseFailsAndTheNextAsksAgain) {
    for (const bool reseeds : {false, true}) {
        SetEntropy entropy;
        entropy.Fails = {"Fill"};
        RandomSource source(entropy);
        const auto use = [&] { reseeds ? source.UniformReseed(1) : static_cast<void>(source.UniformNext()); };
        EXPECT_THROW(use(), Failure);
        EXPECT_THROW(use(), Failure);
        entropy.Fails.clear();
        SetEntropy sameEntropy;
        EXPECT_EQ(source.UniformNext(), RandomSource(sameEntropy).UniformNext());
        entropy.Fails = {"Fill"};
        EXPECT_NO_THROW(use()) << "one key is enough";
    }
}

TEST(RandomSource, AReseedOverwritesTheValuesThatWerePrepared) {
    SetEntropy entropy;
    SetEntropy sameEntropy;
    RandomSource source(entropy);
    source.UniformNext();
    std::vector<float> values(BatchValues);
    RandomSource(sameEntropy).UniformFill(values);
    const auto prepared = std::as_bytes(std::span(values).subspan(100, 2));
    const auto memory = std::as_bytes(std::span(&source, 1));
    EXPECT_FALSE(std::ranges::search(memory, prepared).empty());
    source.UniformReseed(1);
    EXPECT_TRUE(std::ranges::search(memory, prepared).empty());
}

TEST(RandomDraws, RoundToNearestAndTiesToEven) {
    std::istringstream rows(
        "1 4 0 1  1 4 0.1 1  1 4 0.25 2  1 4 0.99999994 4  1 1 0.7 1  0 1 0.5 0  0 3 0.5 2 "
        "0 1 0.50001 1  -3 3 0.25 -1  5 2 0.5 3  0 32767 0.99999994 32767  -32768 -1 0.99999994 -1  0 32767 "
        "0.5 16384");
    std::tuple<std::int16_t, std::int16_t, float, int> row;
    auto& [Lo, Hi, U, drawn] = row;
    while (rows >> Lo >> Hi >> U >> drawn) {
        ListedSource source({U});
        EXPECT_EQ(DrawRandomInt(source, Lo, Hi), drawn) << Lo << " " << Hi << " " << U;
        EXPECT_EQ(source.Consumed, 1U);
    }
    EXPECT_TRUE(rows.eof()); // every row was read
    ListedSource source;
    EXPECT_EQ(FailureOf([&] { DrawRandomInt(source, -1, 32767); }).Number, failure_number::Overflow);
    EXPECT_EQ(FailureOf([&] { DrawRandomInt(source, 32767, -2); }).Number, failure_number::Overflow);
}

TEST(RandomDraws, InBulkEveryVersionEqualsTheSingleDraw) {
    constexpr std::int32_t all = 1 << 24; // a value is a multiple of 1 / all
    for (std::int32_t W = 0; W <= 32767; W += W < LargestBlock ? 1 : 733) {
        std::vector<float> hard{0, 0x1p-24F, 0.5F, 0x1.fffffcp-1F, 0x1.fffffep-1F};
        for (const std::int64_t tie : {0, 1, W / 3, W / 2, W - 2, W - 1})
            for (const int beside : {-1, 0, 1})
                if (const auto k = (2 * tie + 1) * (all / 2) / std::max(W, 1) + beside; k >= 0 && k < all)
                    hard.push_back(static_cast<float>(k) * 0x1p-24F);
        while (hard.size() < 70) // enough to fill the vectors of every version
            hard.push_back(hard[hard.size() / 2]);
        const auto Lo = static_cast<std::int16_t>(W < 32767 ? 1 : 0);
        const auto Hi = static_cast<std::int16_t>(W + Lo);
        ListedSource single(hard);
        std::vector<std::int16_t> expected(hard.size());
        std::generate(expected.begin(), expected.end(), [&] { return DrawRandomInt(single, Lo, Hi); });
        for (const VectorKernels& kernels : RunnableKernels()) {
            ListedSource source(hard);
            std::vector<std::int16_t> bulk(hard.size());
            DrawRandomInts(source, Lo, Hi, bulk, kernels);
            ASSERT_EQ(bulk, expected) << kernels.Name << " 1 to " << Hi;
        }
    }
}

using Groups = std::vector<std::uint8_t>;

TEST(BlockShuffle, ExchangesTheFirstDrawWithTheSecond) {
    // Of three positions, 0 draws the first, 0.5 the second, 0.9 the third. All later draws are position 1.
    for (const auto& [values, shuffled] :
         std::vector<std::pair<std::vector<float>, Groups>>{{{0, 0.9F}, {3, 2, 1}},
                                                            {{0, 0.5F, 0.5F, 0.9F}, {2, 3, 1}},
                                                            {{0.5F, 0.9F, 0, 0.5F}, {3, 1, 2}},
                                                            {{0.5F, 0.5F}, {1, 2, 3}}}) {
        ListedSource source(values);
        Groups groups{1, 2, 3};
        ShuffleBlock(source, groups);
        EXPECT_EQ(groups, shuffled);
        EXPECT_EQ(source.Consumed, 180U);
    }
    ListedSource source({0, 0.9F});
    Groups groups = DealGroups(LargestBlock + 1, 2);
    EXPECT_EQ(FailureOf([&] { ShuffleBlock(source, groups); }).Number, failure_number::Overflow);
    EXPECT_EQ(groups, DealGroups(groups.size(), 2));
}

// One source for all sizes: the bulk draws start within a batch, behind a reseed, and run over its end.
TEST(BlockShuffle, EqualsSingleExchangesAndConsumesTwentyTimesTheSquare) {
    for (const VectorKernels& kernels : RunnableKernels()) {
        SetEntropy entropy;
        SetEntropy sameEntropy;
        RandomSource source(entropy, kernels);
        RandomSource single(sameEntropy);
        for (const std::size_t N : {0U, 1U, 2U, 31U, 3U, 8U, 9U, 64U, 65U, 256U}) {
            if (N == 8) {
                source.UniformReseed(1);
                single.UniformReseed(1);
            }
            Groups groups(N);
            std::iota(groups.begin(), groups.end(), std::uint8_t{0});
            Groups expected = groups;
            ShuffleBlock(source, groups, kernels);
            const auto position = [&] {
                return static_cast<std::size_t>(DrawRandomInt(single, 1, static_cast<std::int16_t>(N))) - 1;
            };
            for (std::size_t i = 0; i < 10 * N * N; ++i) {
                const std::size_t A = position();
                std::swap(expected[A], expected[position()]);
            }
            EXPECT_EQ(groups, expected) << kernels.Name << " " << N;
            EXPECT_EQ(source.UniformNext(), single.UniformNext()) << kernels.Name << " " << N;
        }
    }
}

} // namespace
} // namespace orvane
