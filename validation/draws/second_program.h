// A second program, written from the description of the first and without a line of it. From a known key and
// a known time of day it predicts lists to the byte.
#pragma once

#include "validation/draws/known_key.h"
#include "validation/lists/reader.h"

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <vector>

namespace orvane::validation {

/// z of the Runs test of a sequence, after Wald and Wolfowitz (1940): a run is a longest sequence of numbers
/// that are all below the mean, or all at or above it.
float RunsTest(const std::vector<int>& numbers);

/// What the program calls the P value: the standard normal density at z.
float HeightOfNormalCurve(float z);

class SecondProgram {
  public:
    /// Starts as the program does with this key, before its first list.
    explicit SecondProgram(const QByteArray& key);

    /// The next list of this start. As in the program, it depends on the lists made before.
    Prediction Make(const ListSetup& setup);

    using Words = std::array<std::uint32_t, 16>;

  private:
    void Reseed();
    double Value();
    /// From 0 to `highest`.
    std::size_t Draw(std::size_t highest);
    std::vector<int> BlockSizes(const ListSetup& setup);
    std::vector<std::string> Codes(const ListSetup& setup, std::size_t count, std::size_t& drawnAgain);
    void Shuffle(std::vector<int>& groups);

    Words input_;               ///< of the cipher's next block
    std::deque<double> values_; ///< made, and not used yet
};

/// Where a list differs from its prediction; empty if they are equal to the byte.
std::string DifferenceFromPrediction(const MadeList& list);

} // namespace orvane::validation
