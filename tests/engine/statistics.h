// What the tests of random behaviour share: a source that is truly random, and a bound on counts.
#pragma once

#include "engine/random_source.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iomanip>
#include <random>
#include <span>
#include <sstream>
#include <string>
#include <vector>

namespace orvane {

/// The entropy of this machine. Keeps what it handed out, so that a failure can be repeated.
class TrueEntropy : public Entropy {
  public:
    void Fill(std::span<std::byte> bytes) override {
        std::random_device device;
        for (std::byte& byte : bytes) {
            byte = static_cast<std::byte>(device());
            Key << std::hex << std::setw(2) << std::setfill('0') << std::to_integer<int>(byte);
        }
    }
    std::ostringstream Key;
};

/// How far Pearson's statistic of `counts` lies from its mean, in standard deviations of a normal
/// distribution (by the cube root of Wilson and Hilferty). Too even is as far off as too uneven.
inline double DeviationOf(const std::vector<std::int64_t>& counts, const std::vector<double>& shares,
                          std::int64_t draws) {
    double chiSquare = 0;
    for (std::size_t i = 0; i < counts.size(); ++i) {
        const double expected = static_cast<double>(draws) * shares[i];
        const double off = static_cast<double>(counts[i]) - expected;
        chiSquare += off * off / expected;
    }
    const double freedom = static_cast<double>(counts.size()) - 1;
    const double spread = 2 / (9 * freedom);
    return (std::cbrt(chiSquare / freedom) - (1 - spread)) / std::sqrt(spread);
}

/// A right program lies beyond once in forty million times.
inline constexpr double FarthestDeviation = 5.6;

} // namespace orvane
