// A uniform source with a list of values, and clocks and entropy that a test sets.
#pragma once

#include "fakes/faults.h"
#include "platform/entropy.h"
#include "platform/time_of_day.h"
#include "platform/uniform_source.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace orvane::fakes {

/// Hands out `Values` in order, then 0 for ever.
struct ListedSource : UniformSource, Faults {
    explicit ListedSource(std::vector<float> values = {}) : Values(std::move(values)) {}

    float UniformNext() override {
        Try("UniformNext");
        const std::size_t index = Consumed++;
        return index < Values.size() ? Values[index] : 0;
    }
    void UniformFill(std::span<float> values) override {
        std::generate(values.begin(), values.end(), [this] { return UniformNext(); });
    }
    /// Records how many values had been handed out before. Any value but the clock's fails the test.
    void UniformReseed(float value) override {
        Try("UniformReseed");
        if (value != Noon) // millions of times: an EXPECT_EQ is slow
            ADD_FAILURE() << value;
        ReseededAt.push_back(Consumed);
    }

    static constexpr float Noon = 43200.5F;
    std::vector<float> Values;
    std::size_t Consumed = 0;
    std::vector<std::size_t> ReseededAt;
};

/// A value for which a draw from `Lo` to `Hi` gives `wanted`.
inline float UniformFor(int Lo, int Hi, int wanted) {
    return wanted == Hi && Hi > Lo
               ? 0x1.fffffep-1F
               : static_cast<float>(wanted - Lo) / static_cast<float>(std::max(1, Hi - Lo));
}

struct SetClock : TimeOfDay {
    float SecondsSinceMidnight() override { return ListedSource::Noon; }
};

/// Hands out bytes that count up from `Next`.
struct SetEntropy : Entropy, Faults {
    void Fill(std::span<std::byte> bytes) override {
        Try("Fill");
        std::generate(bytes.begin(), bytes.end(), [this] { return static_cast<std::byte>(Next++); });
    }
    std::uint8_t Next = 0;
};

} // namespace orvane::fakes
