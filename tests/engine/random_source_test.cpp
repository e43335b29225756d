#include "engine/random_source.h"

#include "fakes/random.h"
#include "platform/failure.h"
#include "statistics.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace orvane {
namespace {

using fakes::SetEntropy;

ChaChaWords Input(bool countingKey, std::array<std::uint32_t, 4> last) {
    ChaChaWords words{};
    std::copy(ChaChaConstants.begin(), ChaChaConstants.end(), words.begin());
    for (std::uint32_t i = 0; countingKey && i < ChaChaKeyWords; ++i)
        words.at(ChaChaKeyAt + i) = 0x03020100U + 0x04040404U * i;
    std::copy(last.begin(), last.end(), words.begin() + ChaChaCounterAt);
    return words;
}

TEST(ChaCha, TwentyRoundsGiveThePublishedBlocks) {
    const struct {
        ChaChaWords input;
        ChaChaWords block;
    } rows[] = {
        {Input(true, {1, 0x09000000, 0x4a000000, 0}),
         {0xe4e7f110, 0x15593bd1, 0x1fdd0f50, 0xc47120a3, 0xc7f4d1c7, 0x0368c033, 0x9aaa2204, 0x4e6cd4c3,
          0x466482d2, 0x09aa9f07, 0x05d7c214, 0xa2028bd9, 0xd19c12b5, 0xb94e16de, 0xe883d0cb, 0x4e3c50a2}},
        {Input(false, {0, 0, 0, 0}),
         {0xade0b876, 0x903df1a0, 0xe56a5d40, 0x28bd8653, 0xb819d2bd, 0x1aed8da0, 0xccef36a8, 0xc70d778b,
          0x7c5941da, 0x8d485751, 0x3fe02477, 0x374ad8b8, 0xf4b8436a, 0x1ca11815, 0x69b687c3, 0x8665eeb2}},
        {Input(false, {1, 0, 0, 0}),
         {0xbee7079f, 0x7a385155, 0x7c97ba98, 0x0d082d73, 0xa0290fcb, 0x6965e348, 0x3e53c612, 0xed7aee32,
          0x7621b729, 0x434ee69c, 0xb03371d5, 0xd539d874, 0x281fed31, 0x45fb0a51, 0x1f0ae1ac, 0x6f4d794b}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ChaChaBlock<20>(row.input), row.block);
}

std::uint32_t BitsOf(float value) {
    return static_cast<std::uint32_t>(value * 0x1p24F);
}

TEST(RandomSource, EveryVersionMakesTheBlocksOfTheCipher) {
    for (const VectorKernels& kernels : RunnableKernels())
        for (const std::uint32_t counter : {0U, 32U, 0x7fffffe0U, 0xffffffe0U}) {
            const ChaChaWords first = Input(true, {counter, 7, 0, 0});
            alignas(CacheLine) std::array<float, BatchValues> values{};
            kernels.UniformBatch(first, values);
            for (std::size_t block = 0; block < BatchBlocks; ++block) {
                ChaChaWords input = first;
                input[ChaChaCounterAt] += static_cast<std::uint32_t>(block);
                const ChaChaWords words = ChaChaBlock<SourceRounds>(input);
                for (std::size_t i = 0; i < BlockValues; ++i) {
                    const std::size_t word = i / 4 * 3;
                    const std::uint32_t expected = i % 4 < 3 ? words[word + i % 4] >> 8U
                                                             : (words[word] & 0xffU) << 16U |
                                                                   (words[word + 1] & 0xffU) << 8U |
                                                                   (words[word + 2] & 0xffU);
                    ASSERT_EQ(BitsOf(values[i * BatchBlocks + block]), expected)
                        << kernels.Name << " counter " << counter << " block " << block << " value " << i;
                }
            }
        }
}

// The expected values come from an implementation of the cipher of its own, apart from this program.
TEST(RandomSource, TheStreamIsThatOfItsKeyAndReseeds) {
    SetEntropy entropy;
    RandomSource source(entropy);
    std::vector<float> values(1400);
    source.UniformFill(values);
    const std::pair<std::size_t, std::uint32_t> fromTheStart[] = {
        {0, 0x8fb215},   {1, 0x0f6e1a},   {31, 0xbda559},  {32, 0x6aab12},  {127, 0x725a86},
        {128, 0x3312c5}, {640, 0xd656a2}, {671, 0x727780}, {672, 0x880ebf}, {1399, 0x4815de}};
    for (const auto& [index, bits] : fromTheStart)
        EXPECT_EQ(BitsOf(values[index]), bits) << index;

    source.UniformReseed(43200.5F);
    source.UniformFill(std::span(values).first(800));
    const std::uint32_t behindTheReseed[] = {0xef6694, 0xdec3a9, 0x5e8c96, 0x49abb6, 0x94bcaf, 0xbcd419,
                                             0x6cec0a, 0x19f824, 0x85f9cc, 0xe665d2, 0xedb6d2, 0xca5f8b};
    for (std::size_t i = 0; i < std::size(behindTheReseed); ++i)
        EXPECT_EQ(BitsOf(values[i]), behindTheReseed[i]) << i;
    EXPECT_EQ(BitsOf(values[681]), 0x4acbf1U);
    EXPECT_EQ(BitsOf(values[682]), 0x53f8f7U);
    EXPECT_EQ(BitsOf(values[799]), 0x8ad1daU);

    source.UniformReseed(43200.5F);
    EXPECT_EQ(BitsOf(source.UniformNext()), 0x06ee93U);
}

/// Takes values in portions, each portion singly when it is below 5, with a reseed before every portion of 7.
std::vector<float> Taken(const VectorKernels& kernels, const std::vector<std::size_t>& portions) {
    SetEntropy entropy;
    RandomSource source(entropy, kernels);
    std::vector<float> taken;
    for (const std::size_t portion : portions) {
        if (portion == 7)
            source.UniformReseed(1);
        const std::size_t before = taken.size();
        taken.resize(before + portion);
        const auto next = std::span(taken).subspan(before);
        if (portion < 5)
            std::generate(next.begin(), next.end(), [&] { return source.UniformNext(); });
        else
            source.UniformFill(next);
    }
    return taken;
}

TEST(RandomSource, HowTheValuesAreTakenChangesNone) {
    const std::vector<std::vector<std::size_t>> sameTotal[] = {
        {{2000}, {1, 1999}, {672, 1328}, {671, 3, 1326}, {1344, 1, 1, 654}, {1, 2, 3, 4, 5, 1985}},
        {{7, 1300, 7, 30}, {7, 1, 2, 1297, 7, 1, 1, 28}, {7, 3, 672, 625, 7, 4, 4, 22}},
    };
    for (const auto& ways : sameTotal) {
        const std::vector<float> expected = Taken(RunnableKernels().front(), ways.front());
        for (const VectorKernels& kernels : RunnableKernels())
            for (const auto& way : ways)
                EXPECT_EQ(Taken(kernels, way), expected) << kernels.Name;
    }
}

TEST(RandomSource, WithoutEntropyTheFirstUseFailsAndTheNextAsksAgain) {
    const std::function<void(RandomSource&)> uses[] = {
        [](RandomSource& source) { source.UniformNext(); },
        [](RandomSource& source) {
            std::vector<float> values(500);
            source.UniformFill(values);
        },
        [](RandomSource& source) { source.UniformReseed(1); },
    };
    for (const auto& use : uses) {
        SetEntropy entropy;
        entropy.Broken = true;
        RandomSource source(entropy);
        EXPECT_THROW(use(source), Failure);
        EXPECT_THROW(use(source), Failure);

        entropy.Broken = false;
        const std::vector<float> expected = Taken(BestKernels(), {1});
        EXPECT_EQ(source.UniformNext(), expected.front());
        entropy.Broken = true;
        EXPECT_NO_THROW(use(source)) << "one key is enough";
    }
}

TEST(RandomSource, AReseedDependsOnTheKeyAndOnEveryBitOfTheValue) {
    std::set<float> firstValues;
    const float values[] = {0, -0.0F, 1, 43200.5F, 43200.504F, 86399.99F};
    for (const bool otherKey : {false, true})
        for (const float value : values) {
            SetEntropy entropy;
            entropy.Next = otherKey ? 1 : 0;
            RandomSource source(entropy);
            source.UniformReseed(value);
            firstValues.insert(source.UniformNext());
        }
    EXPECT_EQ(firstValues.size(), 2 * std::size(values));
}

TEST(RandomSource, AReseedOverwritesTheValuesThatWerePrepared) {
    SetEntropy entropy;
    SetEntropy sameEntropy;
    RandomSource source(entropy);
    RandomSource twin(sameEntropy);
    std::vector<float> values(BatchValues);
    twin.UniformFill(values);
    source.UniformNext();
    const auto memory = std::as_bytes(std::span(&source, 1));
    const auto prepared = std::as_bytes(std::span(values).subspan(100, 2));
    const auto found = [&] {
        return std::search(memory.begin(), memory.end(), prepared.begin(), prepared.end()) != memory.end();
    };
    EXPECT_TRUE(found());
    source.UniformReseed(1);
    EXPECT_FALSE(found());
}

TEST(RandomSource, TheValuesAreEvenInEveryBitAndWithinTheirGrid) {
    TrueEntropy entropy;
    RandomSource source(entropy);
    constexpr std::int64_t Draws = 1'000'000;
    std::vector<std::int64_t> upper(256);
    std::vector<std::int64_t> lower(256);
    std::vector<std::int64_t> pairs(256);
    std::vector<float> values(Draws);
    source.UniformFill(values);
    std::uint32_t before = 0;
    for (const float value : values) {
        ASSERT_TRUE(value >= 0 && value < 1);
        ASSERT_EQ(static_cast<float>(BitsOf(value)) * 0x1p-24F, value);
        const std::uint32_t bits = BitsOf(value);
        ++upper[bits >> 16U];
        ++lower[bits & 255U];
        ++pairs[(before << 4U | bits >> 20U) & 255U];
        before = bits >> 20U;
    }
    const std::vector<double> even(256, 1.0 / 256);
    for (const auto* counts : {&upper, &lower, &pairs})
        EXPECT_LT(std::abs(DeviationOf(*counts, even, Draws)), FarthestDeviation) << entropy.Key.str();
}

} // namespace
} // namespace orvane
