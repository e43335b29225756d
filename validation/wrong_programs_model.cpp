#include "validation/wrong_programs_model.h"

#include "validation/statistics_samples.h"

#include <cmath>
#include <cstddef>
#include <numeric>
#include <set>
#include <sstream>
#include <stdexcept>

namespace orvane::validation {
namespace {

/// Prevents an endless loop: a source with repeated values never gives a new code or a different block.
void RequireFewAttempts(int attempts) {
    constexpr int most = 100'000;
    if (attempts > most)
        throw std::runtime_error("the random source repeats its values");
}

} // namespace

ModelProgram::ModelProgram(Entropy& entropy, TimeOfDay& clock, Fault fault)
    : entropy_(entropy), clock_(clock), fault_(fault), source_(std::make_unique<RandomSource>(entropy)) {}

float ModelProgram::Next() {
    if (fault_ == Fault::DoubledValues) {
        isDoubled_ = !isDoubled_;
        if (!isDoubled_)
            return doubled_;
        return doubled_ = source_->UniformNext();
    }
    const float value = source_->UniformNext();
    const auto bits = static_cast<std::uint32_t>(value * 0x1p24F);
    constexpr std::uint32_t divisor = 10'000'000;
    if (fault_ == Fault::RemainderValues)
        return static_cast<float>(bits % divisor) / static_cast<float>(divisor);
    if (fault_ == Fault::CoarseValues)
        return static_cast<float>(bits >> 8U) * 0x1p-16F;
    return value;
}

void ModelProgram::Values(std::span<float> values) {
    for (float& value : values)
        value = Next();
}

void ModelProgram::Reseed() {
    if (fault_ != Fault::RepeatedList && fault_ != Fault::FewKeys)
        source_->UniformReseed(clock_.SecondsSinceMidnight());
}

void ModelProgram::StartAnew() {
    std::byte key{};
    if (fault_ == Fault::FewKeys)
        entropy_.Fill(std::span(&key, 1));
    else if (fault_ != Fault::RepeatedList)
        return;
    knownEntropy_ = std::make_unique<KnownEntropy>(std::to_integer<std::uint8_t>(key));
    source_ = std::make_unique<RandomSource>(*knownEntropy_);
}

std::int16_t ModelProgram::Draw(std::int16_t Lo, std::int16_t Hi) {
    const double U = Next();
    const int W = Hi - Lo;
    switch (fault_) {
    case Fault::RemainderDraws:
        return static_cast<std::int16_t>(Lo + static_cast<int>(U * 256) % (W + 1));
    case Fault::UniformEnds:
        return static_cast<std::int16_t>(Lo + static_cast<int>(U * (W + 1)));
    case Fault::TruncatedDraws:
        return static_cast<std::int16_t>(Lo + static_cast<int>(U * W));
    default:
        // The product is exact, and ties go to the even number.
        return static_cast<std::int16_t>(Lo + static_cast<int>(std::nearbyint(U * W)));
    }
}

Arrangement ModelProgram::Dealt(int size, int groups) const {
    Arrangement block;
    for (int i = 0; i < size; ++i)
        block += static_cast<char>('A' + i % groups);
    if (fault_ == Fault::UnevenDeal)
        block.back() = 'A';
    return block;
}

void ModelProgram::Exchange(Arrangement& block, int times) {
    const auto last = static_cast<std::int16_t>(block.size());
    for (int i = 0; i < times; ++i) {
        const auto A = static_cast<std::size_t>(Draw(1, last) - 1);
        const auto B = static_cast<std::size_t>(Draw(1, last) - 1);
        std::swap(block[A], block[B]);
    }
}

Arrangement ModelProgram::Block(int size, int groups, float level) {
    StartAnew();
    const bool isContinued =
        fault_ == Fault::ContinuedBlocks && before_.size() == static_cast<std::size_t>(size);
    Arrangement block = isContinued ? before_ : Dealt(size, groups);
    int exchanges = 10 * size * size;
    if (fault_ == Fault::FewExchanges)
        exchanges = size;
    if (isContinued)
        exchanges = size / 4;
    const bool isTested = level > 0 && fault_ != Fault::IgnoredRunsTest;
    int attempts = 0;
    do {
        RequireFewAttempts(++attempts);
        Reseed();
        Exchange(block, exchanges);
    } while (isTested && !(RunsDensity(block) > level));
    before_ = block;
    return block;
}

std::vector<std::int16_t> ModelProgram::BlockSizes(const ListSettings& settings) {
    Reseed();
    std::vector<std::int16_t> pool;
    if (settings.prBlockOption == RandomSizesOf) {
        std::istringstream list(settings.prUnEqBlockSize);
        for (std::string item; std::getline(list, item, ',');)
            pool.push_back(static_cast<std::int16_t>(std::stoi(item)));
    } else {
        const int deals = 1 + settings.SampleSize / settings.NumberOfGroups;
        for (int multiplier = deals / 5; multiplier <= deals / 3; ++multiplier)
            pool.push_back(static_cast<std::int16_t>(settings.NumberOfGroups * multiplier));
    }
    // Listed sizes end when the sum reaches the sample size, random sizes when it exceeds it.
    const int enough = settings.SampleSize + (settings.prBlockOption == RandomSizesOf ? 0 : 1);
    std::vector<std::int16_t> sizes;
    while (std::accumulate(sizes.begin(), sizes.end(), 0) < enough) {
        const std::int16_t slot = Draw(1, static_cast<std::int16_t>(pool.size()));
        sizes.push_back(pool.at(static_cast<std::size_t>(slot) - 1));
    }
    return sizes;
}

std::string ModelProgram::Code(std::int32_t alphabet, int length) {
    Reseed();
    std::string code;
    for (int place = 0; place < length; ++place) {
        if (alphabet == Alpha) {
            code += static_cast<char>(Draw('A', 'Z'));
        } else if (alphabet == Numeric) {
            code += static_cast<char>(Draw('0', '9'));
        } else {
            const std::int16_t digit = Draw(0, 35);
            code += static_cast<char>(digit < 10 ? '0' + digit : 'A' + digit - 10);
        }
    }
    return code;
}

std::vector<std::string> ModelProgram::Codes(std::int32_t alphabet, std::int16_t length, std::int16_t count) {
    std::vector<std::string> codes;
    std::set<std::string> used;
    int attempts = 0;
    while (codes.size() < static_cast<std::size_t>(count)) {
        RequireFewAttempts(++attempts);
        const std::string code = Code(alphabet, length);
        if (!used.insert(code).second)
            continue;
        codes.push_back(code);
        attempts = 0;
    }
    if (fault_ == Fault::RepeatedCode)
        codes.back() = codes.front();
    return codes;
}

} // namespace orvane::validation
