// The same work as the program's, in the most obvious code: the reference for the speed of the program.
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

/// The program's cipher, one block at a time, one value a word, 1024 values prepared again at each reseed.
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

/// A draw with one virtual call, rounded to nearest, ties to even.
std::int16_t Draw(UniformSource& random, std::int16_t Lo, std::int16_t Hi);

/// Makes `exchanges` exchanges of two randomly drawn entries.
void Shuffle(UniformSource& random, std::span<std::string> names, std::int64_t exchanges);

/// Random mixed codes, each compared with every earlier one.
std::vector<std::string> RandomCodes(std::size_t count, std::int16_t length, UniformSource& random,
                                     TimeOfDay& clock);

/// Writes codes and assignments as a text list into the file `path`.
/// Requires: every block fits into one row of the table.
void WriteList(const ListSettings& settings, const std::vector<std::int16_t>& blockSizes,
               const std::vector<std::string>& groupNames, UniformSource& random, TimeOfDay& clock,
               const std::string& path);

} // namespace orvane::straightforward
