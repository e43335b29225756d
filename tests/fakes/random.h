// A uniform source with a list of values, and clocks and entropy that a test sets.
#pragma once

#include "platform/entropy.h"
#include "platform/failure.h"
#include "platform/time_of_day.h"
#include "platform/uniform_source.h"

#include <cstdint>
#include <span>
#include <vector>

namespace orvane::fakes {

/// Hands out `Values` in order, then `Rest` for ever.
class ListedSource : public UniformSource {
  public:
    explicit ListedSource(std::vector<float> values = {}) : Values(std::move(values)) {}

    float UniformNext() override {
        if (Broken)
            throw Failure("no randomness", failure_number::NoEntropy, "ListedSource");
        const std::size_t index = Consumed++;
        return index < Values.size() ? Values[index] : Rest;
    }
    void UniformFill(std::span<float> values) override {
        for (float& value : values)
            value = UniformNext();
    }
    /// Records the value and how many values had been handed out before.
    void UniformReseed(float value) override {
        if (Broken)
            throw Failure("no randomness", failure_number::NoEntropy, "ListedSource");
        Reseeds.push_back(value);
        ReseededAt.push_back(Consumed);
    }

    /// Starts anew with other values.
    void List(std::vector<float> values) {
        Values = std::move(values);
        Consumed = 0;
    }

    std::vector<float> Values;
    float Rest = 0;
    std::size_t Consumed = 0;
    std::vector<float> Reseeds;
    std::vector<std::size_t> ReseededAt;
    bool Broken = false; ///< every operation fails
};

/// A value U for which a draw from `Lo` to `Hi` gives `wanted`.
inline float UniformFor(int Lo, int Hi, int wanted) {
    if (Hi == Lo)
        return 0;
    const double middle = static_cast<double>(wanted - Lo) / (Hi - Lo);
    return wanted == Hi ? 0x1.fffffep-1F : static_cast<float>(middle);
}

class SetClock : public TimeOfDay {
  public:
    float SecondsSinceMidnight() override { return Seconds; }
    float Seconds = 43200.5F;
};

/// Hands out bytes that count up.
class SetEntropy : public Entropy {
  public:
    void Fill(std::span<std::byte> bytes) override {
        if (Broken)
            throw Failure("no entropy", failure_number::NoEntropy, "SetEntropy");
        for (std::byte& byte : bytes)
            byte = static_cast<std::byte>(Next++);
    }
    std::uint8_t Next = 0;
    bool Broken = false;
};

} // namespace orvane::fakes
