#include "engine/list_settings.h"
#include "engine/random_draws.h"
#include "fakes/random.h"

namespace orvane {
namespace {

using namespace fakes;

TEST(DrawRandomInt, RoundsToNearestWithTiesToEven) {
    const auto draw = [](std::int16_t Lo, std::int16_t Hi, float U) {
        ListedSource source({U});
        return DrawRandomInt(source, Lo, Hi);
    };
    EXPECT_EQ(draw(1, 4, 0), 1);
    EXPECT_EQ(draw(1, 4, 0.25F), 2);
    EXPECT_EQ(draw(1, 4, 0.99999994F), 4);
    EXPECT_EQ(draw(0, 1, 0.5F), 0);
    EXPECT_EQ(draw(1, 2, 0.5F), 1) << "the tie is rounded before Lo is added";
    EXPECT_EQ(draw(5, 2, 0.5F), 3);
}

TEST(DrawRandomInt, OfARangeBeyond16BitsIsAFailure) {
    ListedSource source;
    EXPECT_EQ(FailureOf([&] { DrawRandomInt(source, -1, 32767); }).Number, failure_number::Overflow);
    EXPECT_EQ(FailureOf([&] { DrawRandomInt(source, 32767, -2); }).Number, failure_number::Overflow);
}

/// Values at and beside the ties of a range of this width, and at both ends.
std::vector<float> HardValues(std::int32_t width) {
    constexpr std::int32_t all = 1 << 24; // a value is a multiple of 1 / all
    constexpr std::size_t enoughForEveryVector = 70;
    std::vector<float> values{0, 0x1p-24F, 0.5F, 0x1.fffffcp-1F, 0x1.fffffep-1F};
    for (const std::int64_t tie : {0, 1, width / 3, width / 2, width - 2, width - 1})
        for (const int beside : {-1, 0, 1}) {
            const auto k = (2 * tie + 1) * (all / 2) / std::max(width, 1) + beside;
            if (k >= 0 && k < all)
                values.push_back(static_cast<float>(k) * 0x1p-24F);
        }
    while (values.size() < enoughForEveryVector)
        values.push_back(values[values.size() / 2]);
    return values;
}

TEST(DrawRandomInts, EqualSingleDrawsInEveryVersionForEveryRange) {
    for (std::int32_t width = 0; width <= 32767; width += width < LargestBlock ? 1 : 733) {
        const std::vector<float> values = HardValues(width);
        const auto Lo = static_cast<std::int16_t>(width < 32767 ? 1 : 0);
        const auto Hi = static_cast<std::int16_t>(width + Lo);
        ListedSource single(values);
        std::vector<std::int16_t> expected(values.size());
        std::generate(expected.begin(), expected.end(), [&] { return DrawRandomInt(single, Lo, Hi); });
        for (const VectorKernels& kernels : RunnableKernels()) {
            ListedSource source(values);
            std::vector<std::int16_t> bulk(values.size());
            DrawRandomInts(source, Lo, Hi, bulk, kernels);
            ASSERT_EQ(bulk, expected) << kernels.Name << ", up to " << Hi;
        }
    }
}

} // namespace
} // namespace orvane
