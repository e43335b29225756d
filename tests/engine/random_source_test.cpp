// The cipher and the values that are made from it.

#include "engine/random_source.h"
#include "fakes/random.h"

#include <map>

namespace orvane {
namespace {

using namespace fakes;

/// Takes so many values and compares those at some indices, each as its 24 bits.
void ExpectValues(RandomSource& source, std::size_t taken, const std::map<std::size_t, std::uint32_t>& bits) {
    std::vector<float> values(taken);
    source.UniformFill(values);
    for (const auto& [index, expected] : bits)
        EXPECT_EQ(static_cast<std::uint32_t>(values.at(index) * 0x1p24F), expected) << "index " << index;
}

// Test vector 1 of draft-strombergson-chacha-test-vectors, for a key of 256 bits.
TEST(ChaCha, GivesThePublishedBlockOfEightRounds) {
    ChaChaWords input{};
    std::copy(ChaChaConstants.begin(), ChaChaConstants.end(), input.begin());
    EXPECT_EQ(ChaChaBlock<8>(input),
              (ChaChaWords{0x2fef003e, 0xd6405f89, 0xe8b85b7f, 0xa1a5091f, 0xc30e842c, 0x3b7f9ace, 0x88e11b18,
                           0x1e1a71ef, 0x72e14c98, 0x416f21b9, 0x6753449f, 0x19566d45, 0xa3424a31, 0x01b086da,
                           0xb8fd7b38, 0x42fe0c0e}));
}

// The expected values come from an implementation of the cipher of its own, apart from this program.
TEST(RandomSource, TheStreamIsThatOfItsKeyAndReseedsInEveryVersion) {
    for (const VectorKernels& kernels : RunnableKernels()) {
        SCOPED_TRACE(kernels.Name);
        SetEntropy entropy;
        RandomSource source(entropy, kernels);
        ExpectValues(source, 1400,
                     {{0, 0x8fb215}, {31, 0xbda559}, {32, 0x6aab12}, {671, 0x727780}, {1399, 0x4815de}});
        source.UniformReseed(43200.5F);
        ExpectValues(source, 800,
                     {{0, 0xef6694},
                      {3, 0x49abb6},
                      {7, 0x19f824},
                      {8, 0x85f9cc},
                      {9, 0xe665d2},
                      {11, 0xca5f8b},
                      {681, 0x4acbf1},
                      {682, 0x53f8f7}});
        source.UniformReseed(43200.5F);
        ExpectValues(source, 1, {{0, 0x06ee93}});
    }
}

TEST(RandomSource, WithoutEntropyEveryUseFailsUntilThereIsSome) {
    SetEntropy entropy;
    entropy.Fails = {"Fill"};
    RandomSource source(entropy);
    EXPECT_THROW(source.UniformNext(), Failure);
    EXPECT_THROW(source.UniformReseed(1), Failure);
    EXPECT_THROW(source.UniformNext(), Failure);
    entropy.Fails.clear();
    SetEntropy sameEntropy;
    EXPECT_EQ(source.UniformNext(), RandomSource(sameEntropy).UniformNext());
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
    const auto isInMemory = [&] {
        return std::search(memory.begin(), memory.end(), prepared.begin(), prepared.end()) != memory.end();
    };
    EXPECT_TRUE(isInMemory());
    source.UniformReseed(1);
    EXPECT_FALSE(isInMemory());
}

} // namespace
} // namespace orvane
