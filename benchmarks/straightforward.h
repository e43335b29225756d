// What the program does, done in the first way that comes to mind: the measure of what its own way gains.
#pragma once

#include "engine/chacha.h"
#include "engine/list_settings.h"
#include "platform/entropy.h"
#include "platform/time_of_day.h"
#include "platform/uniform_source.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace orvane::straightforward {

/// The cipher of the program's own source, a block at a time, a value a word, a full batch at each reseed.
class Source : public UniformSource {
  public:
    explicit Source(Entropy& entropy);
    float UniformNext() override;
    void UniformFill(std::span<float> values) override;
    void UniformReseed(float value) override;

  private:
    void PrepareBatch();

    ChaChaWords input_{};
    std::array<float, 1024> prepared_{};
    std::size_t next_ = 0;
};

/// A draw by one virtual call, rounded to nearest, ties to even.
std::int16_t Draw(UniformSource& random, std::int16_t Lo, std::int16_t Hi);

/// `exchanges` exchanges of two freely drawn entries.
void Shuffle(UniformSource& random, std::span<std::string> names, std::int64_t exchanges);

/// Random mixed codes, each compared with every earlier one.
std::vector<std::string> RandomCodes(std::size_t count, std::int16_t length, UniformSource& random,
                                     TimeOfDay& clock);

/// Codes and text list of blocks that fit one row of the table, into the file `path`.
void WriteList(const ListSettings& settings, const std::vector<std::int16_t>& blockSizes,
               const std::vector<std::string>& groupNames, UniformSource& random, TimeOfDay& clock,
               const std::string& path);

} // namespace orvane::straightforward
