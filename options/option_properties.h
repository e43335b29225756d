// The option values while their window is open: the snapshot that Cancel goes back to, and the ranges that
// the window's controls can show.
#pragma once

#include "engine/list_settings.h"

#include <cstdint>
#include <string>

namespace orvane {

/// A copy of the eight values that Cancel restores. Columns, TableBorder and CellSpacing are not among them.
class OptionSnapshot {
  public:
    OptionSnapshot() = default;
    explicit OptionSnapshot(const ListSettings& settings);
    void Restore(ListSettings& settings) const;

  private:
    std::int32_t codeAlphaNum_ = 0;
    std::int32_t codeSeqRandom_ = 0;
    std::int16_t codeLength_ = 0;
    std::int32_t blockOption_ = 0;
    std::string eqBlockSize_;
    std::string unEqBlockSize_;
    bool performRuns_ = false;
    float sigLevel_ = 0;
};

/// The fewest characters that a code may have: the common logarithm of the sample size, rounded to nearest,
/// ties to even, plus 1. `sampleSize` is above 0; the result is 1 to 6.
std::int16_t LowestCodeLength(std::int16_t sampleSize);

/// Gives each option that comes out of range from a settings file the nearest value that its control can
/// show, and raises CodeLength to LowestCodeLength. SampleSize is above 0.
void BringOptionsIntoRange(ListSettings& settings);

/// What typing `text` into the field of the significance level stores: its numeric value as the nearest
/// 32-bit float there is, the largest one for a number beyond it.
float LevelOf(const std::string& text);

} // namespace orvane
