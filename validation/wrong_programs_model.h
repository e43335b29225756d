// A second, simple program, written independently from the documented rules, which can be given one
// deliberate fault.
#pragma once

#include "validation/statistics_program.h"

#include <memory>
#include <string>
#include <vector>

namespace orvane::validation {

enum class Fault {
    None,
    RemainderValues, ///< the source gives remainders of a division: low values are twice as likely
    CoarseValues,    ///< the source has 16 bits where it should have 24
    DoubledValues,   ///< the source gives every value twice
    RemainderDraws,  ///< a draw is the remainder of a byte
    UniformEnds,     ///< a draw gives its ends as often as the values between them
    TruncatedDraws,  ///< a draw is truncated instead of rounded
    FewExchanges,    ///< a block of N subjects gets N exchanges
    UnevenDeal,      ///< the last subject gets the first group
    RepeatedList,    ///< the source starts from the same key for every block
    FewKeys,         ///< the source starts from one of 256 keys for every block
    ContinuedBlocks, ///< a block starts from the previous block and gets few exchanges
    IgnoredRunsTest, ///< a block is used without regard to the Runs test
    RepeatedCode,    ///< the last code of a list is a copy of the first
};

/// With Fault::None it gives exactly the same draws as the delivered program with the same key.
class ModelProgram : public DrawingProgram {
  public:
    ModelProgram(Entropy& entropy, TimeOfDay& clock, Fault fault);

    void Values(std::span<float> values) override;
    std::int16_t Draw(std::int16_t Lo, std::int16_t Hi) override;
    Arrangement Block(int size, int groups, float level) override;
    std::vector<std::int16_t> BlockSizes(const ListSettings& settings) override;
    std::vector<std::string> Codes(std::int32_t alphabet, std::int16_t length, std::int16_t count) override;

  private:
    float Next();
    void Reseed();
    /// Starts a new source, for the faults of keys.
    void StartAnew();
    [[nodiscard]] Arrangement Dealt(int size, int groups) const;
    void Exchange(Arrangement& block, int times);
    std::string Code(std::int32_t alphabet, int length);

    Entropy& entropy_;
    TimeOfDay& clock_;
    Fault fault_;
    std::unique_ptr<RandomSource> source_;
    std::unique_ptr<Entropy> knownEntropy_;
    bool isDoubled_ = false;
    float doubled_ = 0;
    Arrangement before_;
};

} // namespace orvane::validation
