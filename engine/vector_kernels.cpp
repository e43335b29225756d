#include "engine/vector_kernels.h"

#include <bit>
#include <cmath>
#include <iterator>

namespace orvane {

namespace {

/// Whether a machine rounds once or twice when it multiplies and adds.
enum class Rounding { Twice, Once };

ORVANE_INLINE void UniformBatch(const ChaChaWords& first, std::span<float, BatchValues> values) {
    alignas(CacheLine) ChaChaLanes<BatchBlocks> x[16];
    for (std::size_t word = 0; word < std::size(x); ++word)
        x[word].fill(first[word]);
    for (std::size_t block = 0; block < BatchBlocks; ++block)
        x[ChaChaCounterAt][block] += static_cast<std::uint32_t>(block);
    ChaChaRounds<SourceRounds>(x);

    for (std::size_t block = 0; block < BatchBlocks; ++block) {
        ChaChaWords words = first;
        words[ChaChaCounterAt] += static_cast<std::uint32_t>(block);
        for (std::size_t word = 0; word < words.size(); ++word)
            words[word] += x[word][block];
        for (std::size_t group = 0; group < BlockValues / 4; ++group) {
            const auto four = UniformValues(words[3 * group], words[3 * group + 1], words[3 * group + 2]);
            for (std::size_t i = 0; i < 4; ++i)
                values[(4 * group + i) * BatchBlocks + block] = four[i];
        }
        values[(BlockValues - 1) * BatchBlocks + block] = UniformValue(words[15]);
    }
}

// Adding 1.5 * 2^23 to a 32-bit float, or 1.5 * 2^52 to a 64-bit float, makes the processor round to an
// integer (to nearest, ties to even), which then stands in the low bits of the sum. The product must be exact
// before it is rounded: it has 24 + 15 bits, which a 64-bit float holds. A fused multiply-add rounds only the
// sum, so there 32-bit floats are enough.
template <Rounding rounding>
ORVANE_INLINE void ScaleToRange(std::span<const float> values, std::int16_t Lo, std::int16_t range,
                                std::span<std::int16_t> draws) {
    const float width = range;
    for (std::size_t i = 0; i < draws.size(); ++i) {
        if constexpr (rounding == Rounding::Once) {
            const float sum = std::fma(values[i], width, 0x1.8p23F);
            draws[i] = static_cast<std::int16_t>(std::bit_cast<std::int32_t>(sum) + Lo);
        } else {
            const double sum = static_cast<double>(values[i]) * width + 0x1.8p52;
            draws[i] = static_cast<std::int16_t>(std::bit_cast<std::int64_t>(sum) + Lo);
        }
    }
}

void UniformBatchPortable(const ChaChaWords& first, std::span<float, BatchValues> values) {
    UniformBatch(first, values);
}

void ScaleToRangePortable(std::span<const float> values, std::int16_t Lo, std::int16_t range,
                          std::span<std::int16_t> draws) {
    ScaleToRange<Rounding::Twice>(values, Lo, range, draws);
}

constexpr VectorKernels Portable{"portable", UniformBatchPortable, ScaleToRangePortable};

#if ORVANE_HAS_X86_VERSIONS

ORVANE_AVX2 void UniformBatchAvx2(const ChaChaWords& first, std::span<float, BatchValues> values) {
    UniformBatch(first, values);
}

ORVANE_AVX2 void ScaleToRangeAvx2(std::span<const float> values, std::int16_t Lo, std::int16_t range,
                                  std::span<std::int16_t> draws) {
    ScaleToRange<Rounding::Once>(values, Lo, range, draws);
}

ORVANE_AVX512 void UniformBatchAvx512(const ChaChaWords& first, std::span<float, BatchValues> values) {
    UniformBatch(first, values);
}

ORVANE_AVX512 void ScaleToRangeAvx512(std::span<const float> values, std::int16_t Lo, std::int16_t range,
                                      std::span<std::int16_t> draws) {
    ScaleToRange<Rounding::Once>(values, Lo, range, draws);
}

constexpr std::array<VectorKernels, 3> Versions{Portable,
                                                {"AVX2", UniformBatchAvx2, ScaleToRangeAvx2},
                                                {"AVX-512", UniformBatchAvx512, ScaleToRangeAvx512}};

std::size_t CountRunnable() {
    return MachineRunsAvx512() ? 3 : MachineRunsAvx2() ? 2 : 1;
}

#else

constexpr std::array<VectorKernels, 1> Versions{Portable};

std::size_t CountRunnable() {
    return 1;
}

#endif

} // namespace

std::span<const VectorKernels> RunnableKernels() {
    static const std::size_t runnable = CountRunnable();
    return std::span(Versions).first(runnable);
}

const VectorKernels& BestKernels() {
    return RunnableKernels().back();
}

} // namespace orvane
