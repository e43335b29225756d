// The variables of the library known_key, which is loaded into the program before all others: the program
// then makes its lists from a known key at a known time of day, or finds no entropy.
#pragma once

#include "tools/driving/desktop.h"

#include <QDateTime>

#include <array>
#include <bit>
#include <cstdint>
#include <string>

namespace orvane::validation {

/// The 256 bits that the program asks of the operating system, as eight words, lowest byte first.
using Key = std::array<std::uint32_t, 8>;

inline constexpr qint64 StandingTime = 1'700'000'000; // an afternoon in November 2023

/// A key for a validation, the same at every run. Each number gives another one.
inline Key KeyNumber(std::uint32_t number) {
    Key key{};
    for (std::uint32_t word = 0; word < key.size(); ++word)
        key.at(word) = 0x9E3779B9U * (8 * number + word + 1); // bits of both values in every byte
    return key;
}

/// The program's clock stands still at TimeOfLists, while the key comes from the operating system.
inline driving::Environment WithStandingClock() {
    return {{"LD_PRELOAD", KNOWN_KEY}, {"KNOWN_TIME", std::to_string(StandingTime)}};
}

/// The program's clock stands still, and it gets this key.
inline driving::Environment WithKey(const Key& key) {
    const auto bytes = std::bit_cast<std::array<char, sizeof(Key)>>(key);
    driving::Environment variables = WithStandingClock();
    variables["KNOWN_KEY"] = QByteArray(bytes.data(), sizeof(Key)).toHex().toStdString();
    return variables;
}

/// The operating system gives the program no entropy.
inline driving::Environment WithoutEntropy() {
    return {{"LD_PRELOAD", KNOWN_KEY}, {"NO_ENTROPY", "1"}};
}

/// The local time of day, in seconds since midnight, at which the clock stands.
inline float TimeOfLists() {
    const QTime time = QDateTime::fromSecsSinceEpoch(StandingTime).time();
    return static_cast<float>(time.msecsSinceStartOfDay()) / 1000;
}

} // namespace orvane::validation
