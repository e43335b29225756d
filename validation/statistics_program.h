// The operations of a program that the statistics judge, so that one that is right and one that is wrong on
// purpose go through the same statistics.
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

/// The groups of a block in position order, a letter each: "ABBA".
using Arrangement = std::string;

class DrawingProgram {
  public:
    virtual ~DrawingProgram() = default;
    /// The next values of its random source.
    virtual void Values(std::span<float> values) = 0;
    virtual std::int16_t Draw(std::int16_t Lo, std::int16_t Hi) = 0;
    /// A new block of `size` subjects in `groups` groups. With a `level` above 0 it passes the Runs test.
    virtual Arrangement Block(int size, int groups, float level) = 0;
    /// The block sizes, in list order, that OK fixes. Settings: block option and its text, sample size and
    /// number of groups.
    virtual std::vector<std::int16_t> BlockSizes(const ListSettings& settings) = 0;
    /// The random codes of a list of `count` subjects.
    virtual std::vector<std::string> Codes(std::int32_t alphabet, std::int16_t length,
                                           std::int16_t count) = 0;
};

/// The delivered program's own routines, on a source that gets its key from `entropy`.
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
    Platform desktop_; ///< that of the list, with this program's clock
};

/// The letters of the groups, "A" the first.
Texts GroupLetters(int groups);

} // namespace orvane::validation
