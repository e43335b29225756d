#include "engine/random_draws.h"

#include "engine/block_shuffle.h"
#include "engine/list_settings.h"
#include "fakes/random.h"
#include "platform/failure.h"
#include "statistics.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <string>
#include <vector>

namespace orvane {
namespace {

using fakes::ListedSource;

constexpr float Largest = 0x1.fffffep-1F;

TEST(RandomDraws, RoundToNearestAndTiesToEven) {
    const struct {
        std::int16_t Lo, Hi;
        float U;
        std::int16_t drawn;
    } rows[] = {
        {1, 4, 0, 1},
        {1, 4, 0.1F, 1},
        {1, 4, 0.25F, 2},
        {1, 4, Largest, 4},
        {1, 1, 0.7F, 1},
        {0, 1, 0.5F, 0},
        {0, 3, 0.5F, 2},
        {65, 90, 0.5F, 77},
        {0, 1, 0.50001F, 1},
        {-3, 3, 0.25F, -1},
        {-4, -1, 0.5F, -2},
        {5, 2, 0.5F, 3},
        {0, 32767, 0.5F, 16384},
        {0, 32767, Largest, 32767},
        {-32768, -1, Largest, -1},
        {0, 2, 0.75F, 2},
    };
    for (const auto& row : rows) {
        ListedSource source({row.U});
        EXPECT_EQ(DrawRandomInt(source, row.Lo, row.Hi), row.drawn)
            << row.Lo << " " << row.Hi << " " << row.U;
        EXPECT_EQ(source.Consumed, 1U);
    }
}

TEST(RandomDraws, ARangeBeyond16BitsIsAFailure) {
    ListedSource source;
    EXPECT_THROW(DrawRandomInt(source, -1, 32767), Failure);
    EXPECT_THROW(DrawRandomInt(source, -32768, 32767), Failure);
    EXPECT_THROW(DrawRandomInt(source, 32767, -2), Failure);
}

/// W U rounded, in whole numbers: U is k times 2^-24.
std::int16_t RoundedProduct(std::int32_t W, std::int32_t k) {
    const std::int64_t product = std::int64_t{W} * k;
    const std::int64_t whole = product >> 24;
    const std::int64_t rest = product & 0xffffff;
    const bool up = rest > 0x800000 || (rest == 0x800000 && whole % 2 == 1);
    return static_cast<std::int16_t>(whole + (up ? 1 : 0));
}

/// For a range of width W the values, in multiples of 2^-24, on which a draw may go wrong: both ends, and the
/// surroundings of ties at the ends, in the middle and where a tie falls on a value exactly.
std::vector<std::int32_t> HardValues(std::int32_t W) {
    constexpr std::int32_t all = 1 << 24;
    std::vector<std::int32_t> values{0, 1, all / 2, all - 2, all - 1};
    const auto around = [&](std::int64_t k) {
        for (std::int64_t near = k - 1; near <= k + 1; ++near)
            if (near >= 0 && near < all)
                values.push_back(static_cast<std::int32_t>(near));
    };
    if (W == 0)
        return values;
    for (const std::int32_t tie : {0, 1, W / 3, W / 2, W - 2, W - 1})
        around((std::int64_t{2} * tie + 1) * (all / 2) / W);
    const std::int32_t exact = (all / 2) >> std::countr_zero(static_cast<std::uint32_t>(W));
    for (const std::int32_t odd : {1, 3, 5})
        around(std::int64_t{exact} * odd);
    return values;
}

TEST(RandomDraws, InBulkEveryVersionEqualsTheSingleDraw) {
    std::vector<std::int16_t> bulk;
    std::vector<float> listed;
    for (std::int32_t W = 0; W <= 32767; W = W < LargestBlock ? W + 1 : W + 733) {
        const std::vector<std::int32_t> hard = HardValues(W);
        const std::int16_t Lo = W <= 32766 ? 1 : 0;
        const auto Hi = static_cast<std::int16_t>(W + Lo);
        listed.clear();
        for (const std::int32_t k : hard)
            listed.push_back(static_cast<float>(k) * 0x1p-24F);
        for (std::size_t i = 0; i < hard.size(); ++i) {
            ListedSource single({listed[i]});
            ASSERT_EQ(DrawRandomInt(single, Lo, Hi), Lo + RoundedProduct(W, hard[i]))
                << "1 to " << Hi << " U " << hard[i];
        }
        for (const VectorKernels& kernels : RunnableKernels()) {
            // As many as fill a vector of any version several times over.
            bulk.assign(3 * hard.size(), 0);
            std::vector<float> thrice;
            for (int i = 0; i < 3; ++i)
                thrice.insert(thrice.end(), listed.begin(), listed.end());
            ListedSource source(std::move(thrice));
            DrawRandomInts(source, Lo, Hi, bulk, kernels);
            for (std::size_t i = 0; i < bulk.size(); ++i)
                ASSERT_EQ(bulk[i], Lo + RoundedProduct(W, hard[i % hard.size()]))
                    << kernels.Name << " " << Lo << " to " << Hi << " U " << hard[i % hard.size()];
            ASSERT_EQ(source.Consumed, bulk.size());
        }
    }
}

TEST(RandomDraws, AnyNumberInBulkConsumesAsManyValues) {
    const std::size_t counts[] = {0, 1, 7, 63, 2687, 2688, 2689, 8000};
    for (const VectorKernels& kernels : RunnableKernels())
        for (const std::size_t count : counts) {
            fakes::SetEntropy entropy;
            fakes::SetEntropy sameEntropy;
            RandomSource source(entropy, kernels);
            RandomSource single(sameEntropy);
            // One place more at each end, which must stay as it is.
            std::vector<std::int16_t> draws(count + 2, -1);
            DrawRandomInts(source, 1, 1000, std::span(draws).subspan(1, count), kernels);
            for (std::size_t i = 1; i <= count; ++i)
                ASSERT_EQ(draws[i], DrawRandomInt(single, 1, 1000)) << kernels.Name << " " << i;
            EXPECT_EQ(draws.front(), -1);
            EXPECT_EQ(draws.back(), -1);
            EXPECT_EQ(source.UniformNext(), single.UniformNext());
        }
}

TEST(RandomDraws, TheEndsAreHalfAsFrequentAsWhatLiesBetween) {
    TrueEntropy entropy;
    RandomSource source(entropy);
    constexpr std::int64_t Draws = 400'000;
    for (const auto& [Lo, Hi] : {std::pair<std::int16_t, std::int16_t>{0, 1}, {1, 4}, {0, 35}, {65, 90}}) {
        const int W = Hi - Lo;
        std::vector<double> shares(static_cast<std::size_t>(W) + 1, 1.0 / W);
        shares.front() = shares.back() = 0.5 / W;
        std::vector<std::int64_t> counts(shares.size());
        for (std::int64_t i = 0; i < Draws; ++i)
            ++counts.at(static_cast<std::size_t>(DrawRandomInt(source, Lo, Hi) - Lo));
        EXPECT_LT(std::abs(DeviationOf(counts, shares, Draws)), FarthestDeviation)
            << Lo << " to " << Hi << ", key " << entropy.Key.str();
    }
}

} // namespace
} // namespace orvane
