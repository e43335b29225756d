#include "options/option_properties.h"

#include "engine/numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvane {

void RestoreOptions(ListSettings& settings, const ListSettings& snapshot) {
    settings.CodeAlphaNum = snapshot.CodeAlphaNum;
    settings.CodeSeqRandom = snapshot.CodeSeqRandom;
    settings.CodeLength = snapshot.CodeLength;
    settings.prBlockOption = snapshot.prBlockOption;
    settings.prEqBlockSize = snapshot.prEqBlockSize;
    settings.prUnEqBlockSize = snapshot.prUnEqBlockSize;
    settings.PerformRuns = snapshot.PerformRuns;
    settings.SigLevel = snapshot.SigLevel;
}

std::int16_t LowestCodeLength(std::int16_t sampleSize) {
    const double digits = std::log(static_cast<double>(sampleSize)) / std::log(10.0);
    return Add16(ToInt16(digits), 1);
}

void BringOptionsIntoRange(ListSettings& settings) {
    settings.CodeAlphaNum = std::clamp<std::int32_t>(settings.CodeAlphaNum, Alpha, Mixed);
    settings.CodeSeqRandom = std::clamp<std::int32_t>(settings.CodeSeqRandom, Sequential, Random);
    settings.prBlockOption = std::clamp<std::int32_t>(settings.prBlockOption, OnlyOneBlock, RandomBlockSize);
    settings.CodeLength = std::clamp(settings.CodeLength, LowestCodeLength(settings.SampleSize), LongestCode);
}

float LevelOf(const std::string& text) {
    constexpr double most = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(NumericValueOrInfinity(text), -most, most));
}

} // namespace orvane
