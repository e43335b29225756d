#include "options/option_properties.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>
#include <utility>
#include <vector>

namespace orvane {

TEST(OptionProperties, LowestCodeLengthRoundsTheLogarithm) {
    const std::vector<std::pair<int, int>> rows = {{1, 1},    {3, 1},     {4, 2},     {31, 2},
                                                   {32, 3},   {316, 3},   {317, 4},   {3162, 4},
                                                   {3163, 5}, {31622, 5}, {31623, 6}, {32767, 6}};
    for (const auto& [sampleSize, length] : rows)
        EXPECT_EQ(LowestCodeLength(static_cast<std::int16_t>(sampleSize)), length) << sampleSize;
}

TEST(OptionProperties, LoadedValuesGoToTheNearestOfTheirControls) {
    using Values = std::tuple<std::int32_t, std::int32_t, std::int32_t, std::int16_t>;
    const std::vector<std::pair<Values, Values>> rows = {{{-1, -2, -3, 0}, {0, 0, 0, 4}},
                                                         {{3, 2, 4, 32767}, {2, 1, 3, 10}},
                                                         {{2147483647, 99, 9, -5}, {2, 1, 3, 4}},
                                                         {{1, 1, 2, 4}, {1, 1, 2, 4}}};
    for (const auto& [loaded, shown] : rows) {
        ListSettings settings;
        settings.SampleSize = 1000;
        const auto values = std::tie(settings.CodeAlphaNum, settings.CodeSeqRandom, settings.prBlockOption,
                                     settings.CodeLength);
        std::tie(settings.CodeAlphaNum, settings.CodeSeqRandom, settings.prBlockOption, settings.CodeLength) =
            loaded;
        BringOptionsIntoRange(settings);
        EXPECT_EQ(Values(values), shown);
    }
}

TEST(OptionProperties, LevelIsTheNearestFloat) {
    constexpr float most = std::numeric_limits<float>::max();
    const std::vector<std::pair<const char*, float>> rows = {
        {"0.05", 0.05F}, {".3x", 0.3F},     {"", 0},        {"abc", 0},
        {"0,05", 0},     {"-0.1", -0.1F},   {"1E39", most}, {"-1E39", -most},
        {"1E999", most}, {"-1E999", -most}, {"1E-60", 0.0F}};
    for (const auto& [text, level] : rows)
        EXPECT_EQ(LevelOf(text), level) << text;
}

} // namespace orvane
