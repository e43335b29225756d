// The variables of the library known_key, which is loaded into the program before all others: the program
// then makes its lists from a known key at a known time of day, or finds no entropy.
#pragma once

#include "tools/driving/desktop.h"

#include <QCryptographicHash>
#include <QDateTime>

#include <string>

namespace orvane::validation {

inline constexpr qint64 StandingTime = 1'700'000'000; // an afternoon in November 2023

/// The 256 bits that the program asks of the operating system. Each number gives other ones, the same at
/// every validation.
inline QByteArray KeyNumber(int number) {
    return QCryptographicHash::hash(QByteArray::number(number), QCryptographicHash::Sha256);
}

/// The program's clock stands still at TimeOfLists, while the key comes from the operating system.
inline driving::Environment WithStandingClock() {
    return {{"LD_PRELOAD", KNOWN_KEY}, {"KNOWN_TIME", std::to_string(StandingTime)}};
}

/// The program's clock stands still, and it gets this key.
inline driving::Environment WithKey(const QByteArray& key) {
    driving::Environment variables = WithStandingClock();
    variables["KNOWN_KEY"] = key.toHex().toStdString();
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
