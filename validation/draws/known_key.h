// Lists from a known key: the variables of the library known_key, which is loaded into the program before all
// others, and a second program, written from the description of the first and without a line of it, that
// predicts them to the byte.
#pragma once

#include "tools/driving/desktop.h"
#include "validation/lists/list.h"

#include <QCryptographicHash>
#include <QDateTime>

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <vector>

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

/// z of the Runs test of a sequence, after Wald and Wolfowitz (1940): a run is a longest sequence of numbers
/// that are all below the mean, or all at or above it.
float RunsTest(const std::vector<int>& numbers);

/// What the program calls the P value: the standard normal density at z.
float HeightOfNormalCurve(float z);

class SecondProgram {
  public:
    /// Starts as the program does with this key, before its first list.
    explicit SecondProgram(const QByteArray& key);

    /// The next list of this start. As in the program, it depends on the lists made before.
    Prediction Make(const ListSetup& setup);

    using Words = std::array<std::uint32_t, 16>;

  private:
    void Reseed();
    double Value();
    /// From 0 to `highest`.
    std::size_t Draw(std::size_t highest);
    std::vector<int> BlockSizes(const ListSetup& setup);
    std::vector<std::string> Codes(const ListSetup& setup, std::size_t count, std::size_t& drawnAgain);
    void Shuffle(std::vector<int>& groups);

    Words input_;               ///< of the cipher's next block
    std::deque<double> values_; ///< made, and not used yet
};

/// Where a list differs from its prediction; empty if they are equal to the byte.
std::string DifferenceFromPrediction(const MadeList& list);

} // namespace orvane::validation
