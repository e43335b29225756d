// The interface of the random number source, from which every random decision of the program is drawn.
#pragma once

#include <span>

namespace orvane {

/// Gives values U, 0 <= U < 1, uniformly distributed over the multiples of 2^-24, which 32-bit floats hold
/// exactly. Every operation throws a Failure when the source has no unpredictable start value.
class UniformSource {
  public:
    virtual ~UniformSource() = default;

    /// The next value.
    virtual float UniformNext() = 0;

    /// Fills `values` with exactly the values that values.size() calls of UniformNext would return.
    virtual void UniformFill(std::span<float> values) = 0;

    /// Mixes `value` into the state. Never makes the state easier to guess.
    virtual void UniformReseed(float value) = 0;
};

} // namespace orvane
