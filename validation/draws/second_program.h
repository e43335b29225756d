// A second program, written from the description of the first and without a line of it. From a known key and
// a known time of day it predicts lists to the byte.
#pragma once

#include "validation/draws/known_key.h"
#include "validation/lists/reader.h"
#include "validation/record.h"

#include <deque>
#include <string>
#include <vector>

namespace orvane::validation {

/// A list as the second program makes it.
struct PredictedList {
    std::string Bytes;
    std::string RunsMessage; ///< lines ended by LF; empty if the Runs test is off
    validation::Blocks Blocks;
    std::vector<int> Shuffles; ///< of each block; more than 1 if the Runs test rejected an arrangement
    int CodesDrawnAgain = 0;   ///< because the list had them already
};

class SecondProgram {
  public:
    /// Starts as the program does with this key, before its first list.
    SecondProgram(const Key& key, float secondsOfDay);

    /// The next list of this start. As in the program, it depends on the lists made before.
    PredictedList Make(const ListSetup& setup);

    using Words = std::array<std::uint32_t, 16>;

  private:
    void Reseed();
    double Value();
    /// From 0 to `highest`.
    std::size_t Draw(std::size_t highest);
    std::vector<int> BlockSizes(const ListSetup& setup);
    std::vector<std::string> Codes(const ListSetup& setup, std::size_t count, int& drawnAgain);
    void Shuffle(std::vector<int>& groups);

    Words input_; ///< of the cipher's next block
    float secondsOfDay_;
    std::deque<double> values_; ///< made, and not used yet
};

/// Where the list or its message differs from the prediction; empty if they are equal to the byte.
std::string DifferenceFrom(const PredictedList& predicted, const MadeList& list);

/// The check CON-1.1: the published figures beside those of the second program.
void CheckSecondProgram(Record& record);

} // namespace orvane::validation
