// The two loops in which a shuffle spends its time. Each is written once and compiled for several kinds of
// processor; every version gives the same values, bit for bit.
#pragma once

#include "engine/chacha.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace orvane {

/// Rounds of the cipher. No attack on 8 rounds is known that is faster than trying all keys.
inline constexpr int SourceRounds = 8;

/// The word of a block's input that holds the low half of the block counter.
inline constexpr std::size_t ChaChaCounterAt = 12;

/// Blocks that are made side by side: as many as fill two of the widest vectors. While the processor waits
/// for the result of one vector, it works on the other.
inline constexpr std::size_t BatchBlocks = 32;
/// Values of a block: three words give four values, the sixteenth word gives one.
inline constexpr std::size_t BlockValues = 21;
inline constexpr std::size_t BatchValues = BatchBlocks * BlockValues;

/// The arrays of these loops start at a multiple of this many bytes: loading a vector that crosses a cache
/// line takes twice as long.
inline constexpr std::size_t CacheLine = 64;

/// The value that is made of the upper 24 bits of `word`.
ORVANE_INLINE float UniformValue(std::uint32_t word) {
    return static_cast<float>(static_cast<std::int32_t>(word >> 8U)) * 0x1p-24F;
}

/// Four values: one from the upper 24 bits of each word, one from the lower 8 bits of all three.
ORVANE_INLINE std::array<float, 4> UniformValues(std::uint32_t a, std::uint32_t b, std::uint32_t c) {
    return {UniformValue(a), UniformValue(b), UniformValue(c),
            UniformValue((a << 24U) | ((b & 255U) << 16U) | ((c & 255U) << 8U))};
}

/// The loops, compiled for one kind of machine.
struct VectorKernels {
    const char* Name;

    /// The values of BatchBlocks blocks: of the input `first` and of the following counter values. First the
    /// first value of every block, then the second value of every block, and so on.
    /// Requires: the counter of `first` is a multiple of BatchBlocks.
    void (*UniformBatch)(const ChaChaWords& first, std::span<float, BatchValues> values);

    /// draws[i] = Lo + values[i] * range, the exact product rounded to nearest, ties to even.
    /// Requires: range from 0 to 32767; every value at least 0 and below 1; every result fits 16 bits.
    void (*ScaleToRange)(std::span<const float> values, std::int16_t Lo, std::int16_t range,
                         std::span<std::int16_t> draws);
};

/// The versions that this machine can run, the slowest first. The first one runs on every machine.
std::span<const VectorKernels> RunnableKernels();

/// The fastest version that this machine can run. It is determined once.
const VectorKernels& BestKernels();

} // namespace orvane
