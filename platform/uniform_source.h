// The source behind every random decision of the program.
#pragma once

#include <span>

namespace orvane {

/// Values U, 0 <= U < 1, uniform on the grid of the multiples of 2^-24, which 32-bit floats hold exactly.
/// Every operation throws a Failure when the source has nothing unpredictable to start from.
class UniformSource {
  public:
    virtual ~UniformSource() = default;

    /// The next value.
    virtual float UniformNext() = 0;

    /// Fills `values` with the next values.size() values: bit for bit what that many calls of UniformNext
    /// give.
    virtual void UniformFill(std::span<float> values) = 0;

    /// Mixes `value` into the state; never makes the state weaker.
    virtual void UniformReseed(float value) = 0;
};

} // namespace orvane
