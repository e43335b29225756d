// The operations of a program that the statistics check. The delivered program and programs with deliberate
// faults are checked by the same statistics.
#pragma once

#include "engine/list_settings.h"
#include "engine/random_source.h"
#include "options/option_validation.h"
#include "validation/memory_desktop.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace orvane::validation {

/// The groups of a block in position order, one letter for each subject: "ABBA".
using Arrangement = std::string;

class DrawingProgram {
  public:
    virtual ~DrawingProgram() = default;
    /// Fills `values` with the next values of the random source.
    virtual void Values(std::span<float> values) = 0;
    virtual std::int16_t Draw(std::int16_t Lo, std::int16_t Hi) = 0;
    /// A new block of `size` subjects in `groups` groups. With a `level` above 0 it passes the Runs test.
    virtual Arrangement Block(int size, int groups, float level) = 0;
    /// The block sizes, in list order, that pressing OK sets. Only the block option and its text, the sample
    /// size and the number of groups of `settings` are used.
    virtual std::vector<std::int16_t> BlockSizes(const ListSettings& settings) = 0;
    /// The random codes of a list of `count` subjects.
    virtual std::vector<std::string> Codes(std::int32_t alphabet, std::int16_t length,
                                           std::int16_t count) = 0;
};

/// The delivered program's own routines, with a random source that gets its key from `entropy`.
class DeliveredProgram : public DrawingProgram {
  public:
    DeliveredProgram(Entropy& entropy, TimeOfDay& clock);

    void Values(std::span<float> values) override { source_.UniformFill(values); }
    std::int16_t Draw(std::int16_t Lo, std::int16_t Hi) override;
    Arrangement Block(int size, int groups, float level) override;
    std::vector<std::int16_t> BlockSizes(const ListSettings& settings) override;
    std::vector<std::string> Codes(std::int32_t alphabet, std::int16_t length, std::int16_t count) override;

  private:
    TimeOfDay& clock_;
    RandomSource source_;
    MemoryList list_;
    Platform desktop_; ///< the list's desktop with this program's clock
};

/// The letters of the groups, beginning with "A".
Texts GroupLetters(int groups);

} // namespace orvane::validation
