#include "options/option_properties.h"

#include "engine/numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvane {

OptionSnapshot::OptionSnapshot(const ListSettings& settings)
    : codeAlphaNum_(settings.CodeAlphaNum), codeSeqRandom_(settings.CodeSeqRandom),
      codeLength_(settings.CodeLength), blockOption_(settings.prBlockOption),
      eqBlockSize_(settings.prEqBlockSize), unEqBlockSize_(settings.prUnEqBlockSize),
      performRuns_(settings.PerformRuns), sigLevel_(settings.SigLevel) {}

void OptionSnapshot::Restore(ListSettings& settings) const {
    settings.CodeAlphaNum = codeAlphaNum_;
    settings.CodeSeqRandom = codeSeqRandom_;
    settings.CodeLength = codeLength_;
    settings.prBlockOption = blockOption_;
    settings.prEqBlockSize = eqBlockSize_;
    settings.prUnEqBlockSize = unEqBlockSize_;
    settings.PerformRuns = performRuns_;
    settings.SigLevel = sigLevel_;
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
